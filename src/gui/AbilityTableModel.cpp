#include "gui/AbilityTableModel.h"

#include "core/editor/ClashRule.h"
#include "gui/GuiResources.h"
#include "gui/Pictures.h"
#include "gui/PopUpTitles.h"

#include <QApplication>
#include <QPixmap>
#include <QStyle>

#include <algorithm>

namespace tarnic {

AbilityTableModel::AbilityTableModel(const std::vector<AbilityRecord>& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(static_cast<int>(list.size())) {
    initGuiResources();
}

void AbilityTableModel::setColumns(const QStringList& identifiers, const QStringList& titles) {
    beginResetModel();
    identifiers_ = identifiers;
    titles_ = titles;
    columns_.clear();
    for (const QString& identifier : identifiers) {
        Column column;
        column.key = identifier.toStdString();
        column.isKey = column.key == def_hotkey || column.key == new_hotkey;
        column.isName = column.key == name_spell;
        column.isNewKey = column.key == new_hotkey;
        columns_.push_back(std::move(column));
    }
    rows_ = static_cast<int>(list_.size());
    endResetModel();
}

void AbilityTableModel::reload() {
    const int rows = static_cast<int>(list_.size());
    if (rows == rows_) {
        // Same shape: repaint every cell and keep the views' selection as it is.
        if (rows > 0 && !identifiers_.isEmpty()) {
            emit dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
        }
        return;
    }
    beginResetModel();
    rows_ = rows;
    endResetModel();
}

void AbilityTableModel::rowChanged(int row) {
    if (row >= 0 && row < rows_ && !identifiers_.isEmpty()) {
        emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

void AbilityTableModel::setClashPartners(std::vector<std::vector<std::size_t>> partners) {
    // Unchanged marks need no repaint; a repaint of the column would also have the views measure
    // every row again for the column widths.
    const auto partnersOf = [](const std::vector<std::vector<std::size_t>>& all, std::size_t row) {
        return row < all.size() ? all[row] : std::vector<std::size_t>();
    };
    bool unchanged = true;
    for (std::size_t row = 0; unchanged && row < std::max(partners.size(), clashPartners_.size());
         ++row) {
        unchanged = partnersOf(partners, row) == partnersOf(clashPartners_, row);
    }
    clashPartners_ = std::move(partners);
    if (unchanged) {
        return;
    }
    // The warning sign comes from the icon theme, whose lookup reads the theme's whole index: it
    // is fetched when the first clash needs it, not for a list without any.
    const bool anyClash = std::any_of(clashPartners_.begin(), clashPartners_.end(),
                                      [](const auto& row) { return !row.empty(); });
    if (anyClash && clashIcon_.isNull()) {
        clashIcon_ = QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    }
    const int column = static_cast<int>(identifiers_.indexOf(QLatin1String(new_hotkey)));
    if (column >= 0 && rows_ > 0) {
        emit dataChanged(index(0, column), index(rows_ - 1, column),
                         {Qt::DecorationRole, Qt::ToolTipRole});
    }
}

QVariant AbilityTableModel::clashMark(int row, int role) const {
    const auto at = static_cast<std::size_t>(row);
    if (at >= clashPartners_.size() || clashPartners_[at].empty()) {
        return {};
    }
    if (role == Qt::DecorationRole) {
        return clashIcon_;
    }
    // "Q is also the key of Storm Bolt and Attack."
    QStringList names;
    for (std::size_t partner : clashPartners_[at]) {
        if (partner < list_.size()) {
            const std::string* name = optionalField(list_[partner], name_spell);
            names << (name != nullptr ? QString::fromStdString(*name) : QString());
        }
    }
    QString joined = names.join(QStringLiteral(", "));
    if (names.size() > 1) {
        joined = names.mid(0, names.size() - 1).join(QStringLiteral(", ")) +
                 QStringLiteral(" and ") + names.last();
    }
    return QStringLiteral("%1 is also the key of %2.")
        .arg(toQString(keyInForce(list_[at])), joined);
}

int AbilityTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int AbilityTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(identifiers_.size());
}

QVariant AbilityTableModel::data(const QModelIndex& index, int role) const {
    // Asked for every role of every cell the views measure or paint: the roles this model never
    // answers leave first.
    if (!index.isValid() || index.model() != this) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    const auto at = static_cast<std::size_t>(index.column());
    if (row >= list_.size() || row >= static_cast<std::size_t>(rows_) || at >= columns_.size()) {
        return {};
    }
    const Column& column = columns_[at];
    switch (role) {
    case Qt::DisplayRole:
        break;
    case Qt::DecorationRole:
        if (column.isNewKey) {
            return clashMark(index.row(), role);
        }
        if (!column.isName) {
            return {};
        }
        break;
    case Qt::ToolTipRole:
        return column.isNewKey ? clashMark(index.row(), role) : QVariant();
    case Qt::TextAlignmentRole:
        return column.isKey ? QVariant::fromValue(Qt::Alignment(Qt::AlignCenter)) : QVariant();
    default:
        return {};
    }
    const std::string* value = optionalField(list_[row], column.key);
    if (value == nullptr) {
        return {};
    }
    const QString text = QString::fromStdString(*value);
    return role == Qt::DisplayRole ? QVariant(text) : QVariant(thumbnail(text));
}

QPixmap AbilityTableModel::thumbnail(const QString& name) const {
    // A small copy of the ability's picture beside its name; drawn rows only, and drawn small at
    // build time, so that the first rows cost little to show.
    auto it = thumbnails_.find(name);
    if (it == thumbnails_.end()) {
        it = thumbnails_.insert(name, tarnic::thumbnailNamed(name));
    }
    return it.value();
}

QVariant AbilityTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 ||
        section >= static_cast<int>(titles_.size())) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    if (role == Qt::TextAlignmentRole && section < static_cast<int>(identifiers_.size()) &&
        (identifiers_.at(section) == QLatin1String(def_hotkey) ||
         identifiers_.at(section) == QLatin1String(new_hotkey))) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    if (role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return titles_.at(section);
}

} // namespace tarnic
