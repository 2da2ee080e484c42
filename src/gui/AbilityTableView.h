#pragma once

#include <QTableView>

namespace tarnic {

// The ability table: whole rows, one at a time, and never none once a row is chosen (the
// editor always works on the selected ability, so Ctrl+click must not leave it without one).
class AbilityTableView : public QTableView {
    Q_OBJECT
public:
    explicit AbilityTableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;

protected:
    // What QTableView measures, found faster: the header fits the owner and key columns to their
    // contents, and asks for that on every show, selection and reload; measuring each of the 160
    // rows with the delegate (a text layout per cell) was the bulk of the work before the first
    // paint. Cells of one column with the same text and no picture are the same size, so each
    // such text is measured once. Cells with a picture are measured one by one; so is a model
    // with more rows than the header's resize precision, which QTableView samples.
    int sizeHintForColumn(int column) const override;

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};

// Selects exactly `row`, replacing the selection; whoever watches the selection hears of it once.
// A row the table does not have selects nothing.
void selectRow(QTableView& table, int row);

// The selected row, or -1.
int selectedRow(const QTableView& table);

} // namespace tarnic
