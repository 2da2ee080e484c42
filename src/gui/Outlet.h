#pragma once

#include "core/fatal/Fatal.h"

#include <QPointer>

#include <string_view>

namespace tarnic {

// Controls belong to the window and the controllers only point at them. Using one that the
// window never connected (or that is gone) is a programming error, reported by the control's
// name instead of a crash somewhere inside Qt.
template <class T> T& outlet(const QPointer<T>& control, std::string_view name) {
    if (control.isNull()) {
        fatalError(kNilImplicitUnwrap, name);
    }
    return *control;
}

} // namespace tarnic
