#pragma once

#include "core/platform/KeyLabels.h"
#include "core/vocabulary/KeyNames.h"

#include <QObject>

namespace tarnic {

// The names of the keys as the player's keyboard layout prints them, kept up to date: read from
// the platform's KeyLabels when made, and again whenever the platform announces a new layout
// (on the event loop). Without KeyLabels, or while it knows no layout, the keys keep their US
// names.
class LayoutKeyNames : public QObject {
    Q_OBJECT
public:
    // `labels` may be null; otherwise it must outlive this object's use of it (its change
    // monitor falls silent once this object is gone).
    explicit LayoutKeyNames(KeyLabels* labels, QObject* parent = nullptr);

    const KeyNames& names() const { return names_; }

signals:
    // The names differ from what they were: the layout changed.
    void changed();

private:
    void reread();

    KeyLabels* labels_;
    KeyNames names_;
};

} // namespace tarnic
