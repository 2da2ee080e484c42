#include "gui/AbilityTableModel.h"

namespace tarnic {

AbilityTableModel::AbilityTableModel(const std::vector<AbilityRecord>& list, QObject* parent)
    : QAbstractTableModel(parent), list_(list), rows_(static_cast<int>(list.size())) {}

void AbilityTableModel::setColumns(const QStringList& identifiers, const QStringList& titles) {
    beginResetModel();
    identifiers_ = identifiers;
    titles_ = titles;
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
    if (role != Qt::DisplayRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        static_cast<std::size_t>(index.row()) >= list_.size()) {
        return {};
    }
    const std::string key = identifiers_.at(index.column()).toStdString();
    const std::string* value = field(list_[static_cast<std::size_t>(index.row())], key);
    if (value == nullptr) {
        return {};
    }
    return QString::fromStdString(*value);
}

QVariant AbilityTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= static_cast<int>(titles_.size())) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return titles_.at(section);
}

} // namespace tarnic
