#include "gui/AbilityTableModel.h"

#include "gui/GuiResources.h"
#include "gui/Pictures.h"

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

int AbilityTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int AbilityTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(identifiers_.size());
}

QVariant AbilityTableModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid) ||
        static_cast<std::size_t>(index.row()) >= list_.size()) {
        return {};
    }
    const Column& column = columns_.at(static_cast<std::size_t>(index.column()));
    if (role == Qt::TextAlignmentRole && column.isKey) {
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    }
    if (role != Qt::DisplayRole && !(role == Qt::DecorationRole && column.isName)) {
        return {};
    }
    const std::string* value = field(list_[static_cast<std::size_t>(index.row())], column.key);
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
        it = thumbnails_.insert(name, tarnic::thumbnail(name));
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
