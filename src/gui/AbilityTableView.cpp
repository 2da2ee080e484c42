#include "gui/AbilityTableView.h"

#include <QHeaderView>
#include <QAbstractItemDelegate>

#include <algorithm>

namespace tarnic {

AbilityTableView::AbilityTableView(QWidget* parent) : QTableView(parent) {
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(26);
    setIconSize(QSize(20, 20));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void AbilityTableView::setModel(QAbstractItemModel* model) {
    QTableView::setModel(model);
    // The first column (the ability) takes the room; the others fit their contents.
    QHeaderView* header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setStretchLastSection(false);
    if (model != nullptr && model->columnCount() > 0) {
        header->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

namespace {

// A cell whose width is its text's alone, for a given delegate and style.
bool isPlainText(const QModelIndex& index) {
    for (int role : {Qt::DecorationRole, Qt::FontRole, Qt::CheckStateRole, Qt::SizeHintRole}) {
        if (index.data(role).isValid()) {
            return false;
        }
    }
    return true;
}

} // namespace

int AbilityTableView::sizeHintForColumn(int column) const {
    const QAbstractItemModel* source = model();
    if (source == nullptr) {
        return -1;
    }
    const int rows = source->rowCount(rootIndex());
    const int precision = horizontalHeader()->resizeContentsPrecision();
    if (precision > 0 && rows > precision) {
        return QTableView::sizeHintForColumn(column);
    }
    ensurePolished();
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const MeasureContext context{
        option.font,          style(),       option.decorationSize, option.features,
        option.textElideMode, option.locale, option.direction};
    if (measuredIn_ != context) {
        measuredWidths_.clear();
        measuredIn_ = context;
    }
    int hint = 0;
    for (int row = 0; row < rows; ++row) {
        if (isRowHidden(row)) {
            continue;
        }
        const QModelIndex index = source->index(row, column, rootIndex());
        if (indexWidget(index) != nullptr || isPersistentEditorOpen(index)) {
            // An editor's own size counts too; leave that to QTableView.
            return QTableView::sizeHintForColumn(column);
        }
        QAbstractItemDelegate* delegate = itemDelegateForIndex(index);
        if (!isPlainText(index)) {
            hint = std::max(hint, delegate->sizeHint(option, index).width());
            continue;
        }
        const std::pair<const void*, QString> key(delegate, index.data(Qt::DisplayRole).toString());
        auto width = measuredWidths_.constFind(key);
        if (width == measuredWidths_.constEnd()) {
            width = measuredWidths_.insert(key, delegate->sizeHint(option, index).width());
        }
        hint = std::max(hint, width.value());
    }
    return showGrid() ? hint + 1 : hint;
}

QItemSelectionModel::SelectionFlags AbilityTableView::selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const {
    QItemSelectionModel::SelectionFlags flags = QTableView::selectionCommand(index, event);
    if (flags.testAnyFlags(QItemSelectionModel::Deselect | QItemSelectionModel::Toggle)) {
        return index.isValid() ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                               : QItemSelectionModel::NoUpdate;
    }
    if (!index.isValid() && flags.testFlag(QItemSelectionModel::Clear)) {
        return QItemSelectionModel::NoUpdate;
    }
    return flags;
}

void selectRow(QTableView& table, int row) {
    QAbstractItemModel* model = table.model();
    if (model == nullptr || row < 0 || row >= model->rowCount()) {
        return;
    }
    const QModelIndex index = model->index(row, 0);
    table.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                       QItemSelectionModel::Rows);
}

int selectedRow(const QTableView& table) {
    const QItemSelectionModel* selection = table.selectionModel();
    if (selection == nullptr) {
        return -1;
    }
    const QModelIndexList rows = selection->selectedRows();
    return rows.isEmpty() ? -1 : rows.last().row();
}

} // namespace tarnic
