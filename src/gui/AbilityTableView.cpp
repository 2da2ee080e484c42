#include "gui/AbilityTableView.h"

#include <QHeaderView>
#include <QAbstractItemDelegate>
#include <QFontMetrics>

#include <algorithm>
#include <optional>

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
    for (const QMetaObject::Connection& connection : std::as_const(modelConnections_)) {
        disconnect(connection);
    }
    modelConnections_.clear();
    forgetColumnHints();
    if (model != nullptr) {
        // Before the view's own connections: the header measures again from inside its handlers.
        const auto forgetAll = [this] { forgetColumnHints(); };
        modelConnections_ = {connect(model, &QAbstractItemModel::dataChanged, this,
                                     [this](const QModelIndex& from, const QModelIndex& to) {
                                         forgetColumnHints(from.column(), to.column());
                                     }),
                             connect(model, &QAbstractItemModel::modelReset, this, forgetAll),
                             connect(model, &QAbstractItemModel::layoutChanged, this, forgetAll),
                             connect(model, &QAbstractItemModel::rowsInserted, this, forgetAll),
                             connect(model, &QAbstractItemModel::rowsRemoved, this, forgetAll),
                             connect(model, &QAbstractItemModel::rowsMoved, this, forgetAll),
                             connect(model, &QAbstractItemModel::columnsInserted, this, forgetAll),
                             connect(model, &QAbstractItemModel::columnsRemoved, this, forgetAll),
                             connect(model, &QAbstractItemModel::columnsMoved, this, forgetAll)};
    }
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

// The sum of the characters' own advances, each looked up once; nothing for a text with a
// character from beyond the Latin, Greek and Cyrillic blocks or a combining mark, whose shaping
// can change its width by more than kerning does.
std::optional<int> summedAdvance(const QString& text, const QFontMetrics& metrics,
                                 QHash<char16_t, int>& advances) {
    int sum = 0;
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if ((unit >= 0x0300 && unit < 0x0370) || unit >= 0x0530) {
            return std::nullopt;
        }
        auto found = advances.constFind(unit);
        if (found == advances.constEnd()) {
            found = advances.insert(unit, metrics.horizontalAdvance(c));
        }
        sum += found.value();
    }
    return sum;
}

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
        columnHints_.clear();
        measuredIn_ = context;
    }
    const int hiddenRows = verticalHeader()->hiddenSectionCount();
    const auto kept = columnHints_.constFind(column);
    if (kept != columnHints_.constEnd() && kept->rows == rows && kept->hiddenRows == hiddenRows) {
        return kept->hint;
    }
    const int hint = measureColumn(column, option);
    if (hint >= 0) {
        columnHints_.insert(column, {hint, rows, hiddenRows});
    }
    return hint;
}

// The width of the column's widest cell, or -1 when QTableView must measure the column itself.
// A plain-text cell's width is its text's shaped advance plus what the style adds around it, the
// same for every such cell of the view. Shaping is the dear part, in the delegate's measure as in
// the font's, so the texts are first sized by the sum of their characters' own advances, which
// the font keeps, and only those that come near the widest are measured with the delegate.
// Kerning and ligatures move a text's width away from that sum by a pixel or two per few
// characters; the margin allows more than that. A text in a script that shapes its letters into
// others is always measured.
int AbilityTableView::measureColumn(int column, const QStyleOptionViewItem& option) const {
    constexpr int kAdvanceMargin = 4;
    const QAbstractItemModel* source = model();
    const int rows = source->rowCount(rootIndex());
    int hint = 0;
    // Plain texts not measured yet, by delegate, with their sum of advances and its margin.
    struct Unmeasured {
        QModelIndex index;
        int advance = 0;
        int margin = 0;
    };
    QHash<std::pair<const void*, QString>, Unmeasured> unmeasured;
    int widestAdvance = 0;
    const QFontMetrics metrics(option.font);
    QHash<char16_t, int> characterAdvances;
    for (int row = 0; row < rows; ++row) {
        if (isRowHidden(row)) {
            continue;
        }
        const QModelIndex index = source->index(row, column, rootIndex());
        if (indexWidget(index) != nullptr || isPersistentEditorOpen(index)) {
            // An editor's own size counts too; leave that to QTableView, every time.
            return QTableView::sizeHintForColumn(column);
        }
        QAbstractItemDelegate* delegate = itemDelegateForIndex(index);
        if (!isPlainText(index)) {
            hint = std::max(hint, delegate->sizeHint(option, index).width());
            continue;
        }
        std::pair<const void*, QString> key(delegate, index.data(Qt::DisplayRole).toString());
        const auto width = measuredWidths_.constFind(key);
        if (width != measuredWidths_.constEnd()) {
            hint = std::max(hint, width.value());
        } else if (!unmeasured.contains(key)) {
            const std::optional<int> advance =
                summedAdvance(key.second, metrics, characterAdvances);
            if (!advance) {
                const int measured = delegate->sizeHint(option, index).width();
                measuredWidths_.insert(key, measured);
                hint = std::max(hint, measured);
                continue;
            }
            const int margin = kAdvanceMargin + static_cast<int>(key.second.size()) / 3;
            widestAdvance = std::max(widestAdvance, *advance - margin);
            unmeasured.insert(std::move(key), {index, *advance, margin});
        }
    }
    for (auto it = unmeasured.constBegin(); it != unmeasured.constEnd(); ++it) {
        if (it->advance + it->margin < widestAdvance) {
            continue;
        }
        const auto* delegate = static_cast<const QAbstractItemDelegate*>(it.key().first);
        const int width = delegate->sizeHint(option, it->index).width();
        measuredWidths_.insert(it.key(), width);
        hint = std::max(hint, width);
    }
    return showGrid() ? hint + 1 : hint;
}

void AbilityTableView::forgetColumnHints(int first, int last) {
    if (last < 0) {
        columnHints_.clear();
        return;
    }
    for (int column = first; column <= last; ++column) {
        columnHints_.remove(column);
    }
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
