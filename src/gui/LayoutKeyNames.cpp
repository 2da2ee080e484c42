#include "gui/LayoutKeyNames.h"

#include <QPointer>

namespace tarnic {

LayoutKeyNames::LayoutKeyNames(KeyLabels* labels, QObject* parent)
    : QObject(parent), labels_(labels) {
    if (labels_ == nullptr) {
        return;
    }
    names_ = KeyNames::fromLayout([labels](int code) { return labels->keysymAt(code); });
    labels_->addChangeMonitor([self = QPointer<LayoutKeyNames>(this)] {
        if (self) {
            self->reread();
        }
    });
}

void LayoutKeyNames::reread() {
    KeyNames names = KeyNames::fromLayout([this](int code) { return labels_->keysymAt(code); });
    if (names == names_) {
        return;
    }
    names_ = std::move(names);
    emit changed();
}

} // namespace tarnic
