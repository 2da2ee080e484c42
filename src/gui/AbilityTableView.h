#pragma once

#include <QFont>
#include <QHash>
#include <QLocale>
#include <QSize>
#include <QStyleOptionViewItem>
#include <QTableView>

#include <optional>
#include <utility>

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
    // contents, and asks for that when the table is first shown (three times over) and after each
    // reload; measuring each of the 160 rows with the delegate (a text layout per cell) was the
    // bulk of the work before the first paint. A plain-text cell's width depends on its text and
    // on the delegate and style it is measured with, so each text is measured once and its width
    // kept until the font or style changes. Cells with a picture, a font, a check box or a size of
    // their own are measured one by one; so is a model with more rows than the header's resize
    // precision, which QTableView samples. A column's result is kept until the model says that
    // the column's cells, or the rows, changed: the header asks again at every layout pass.
    int sizeHintForColumn(int column) const override;

    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    // What, besides its text and delegate, a plain-text cell's width depends on.
    struct MeasureContext {
        QFont font;
        const QStyle* style = nullptr;
        QSize decorationSize;
        QStyleOptionViewItem::ViewItemFeatures features;
        Qt::TextElideMode elide = Qt::ElideRight;
        QLocale locale;
        Qt::LayoutDirection direction = Qt::LeftToRight;
        bool operator==(const MeasureContext&) const = default;
    };
    int measureColumn(int column, const QStyleOptionViewItem& option) const;
    // Forgets the kept results of columns first..last (all of them by default).
    void forgetColumnHints(int first = 0, int last = -1);

    mutable std::optional<MeasureContext> measuredIn_;
    mutable QHash<std::pair<const void*, QString>, int> measuredWidths_;
    // Per column: the result, and the rows and hidden rows it was found for.
    struct ColumnHint {
        int hint = 0;
        int rows = 0;
        int hiddenRows = 0;
    };
    mutable QHash<int, ColumnHint> columnHints_;
    QList<QMetaObject::Connection> modelConnections_;
};

// Selects exactly `row`, replacing the selection; whoever watches the selection hears of it once.
// A row the table does not have selects nothing.
void selectRow(QTableView& table, int row);

// The selected row, or -1.
int selectedRow(const QTableView& table);

} // namespace tarnic
