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
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
};

// Selects exactly `row`, replacing the selection; whoever watches the selection hears of it once.
// A row the table does not have selects nothing.
void selectRow(QTableView& table, int row);

// The selected row, or -1.
int selectedRow(const QTableView& table);

} // namespace tarnic
