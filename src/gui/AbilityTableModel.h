#pragma once

#include "core/record/AbilityRecord.h"
#include "gui/Pictures.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QPixmap>
#include <QStringList>

#include <cstddef>
#include <string>
#include <vector>

namespace tarnic {

// Shows a list of ability records one per row, in list order. Each column is identified by a
// record key and shows that key's value; a record without the key shows an empty cell. The
// ability's name comes with a small copy of its picture, and the keys are centred.
// The model reads the list it is given and never changes it; after the owner changes the list,
// reload() tells the views.
class AbilityTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    AbilityTableModel(const std::vector<AbilityRecord>& list, QObject* parent = nullptr);

    // The columns: record keys and their header titles, in order.
    void setColumns(const QStringList& identifiers, const QStringList& titles);
    QStringList columnIdentifiers() const { return identifiers_; }

    // Brings the views in line with the list after it changed.
    void reload();
    // One record changed in place.
    void rowChanged(int row);

    // For each row the rows whose abilities clash with it (clashPartners). A row with partners
    // shows a warning mark in the "new hotkey" column, and its tooltip names them.
    void setClashPartners(std::vector<std::vector<std::size_t>> partners);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;

    // Edge of the ability pictures shown in the table, in pixels.
    static constexpr int kThumbnail = kThumbnailEdge;

private:
    QPixmap thumbnail(const QString& name) const;
    QVariant clashMark(int row, int role) const;

    // What each column shows, worked out once: the delegate asks for a dozen roles per cell.
    struct Column {
        std::string key;
        bool isKey = false;    // a hotkey: centred
        bool isName = false;   // the ability's name: with its picture
        bool isNewKey = false; // the chosen key: with the clash mark
    };

    const std::vector<AbilityRecord>& list_;
    QStringList identifiers_;
    std::vector<Column> columns_;
    QStringList titles_;
    // The row count the views were last told; the list may already have changed.
    int rows_ = 0;
    mutable QHash<QString, QPixmap> thumbnails_;
    std::vector<std::vector<std::size_t>> clashPartners_;
    QIcon clashIcon_;
};

} // namespace tarnic
