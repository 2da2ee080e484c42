#include "store/IntegerValue.h"

#include <limits>

namespace tarnic {

std::optional<std::int64_t> integerValue(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::SChar:
        return value.toLongLong();
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar: {
        const qulonglong unsignedValue = value.toULongLong();
        if (unsignedValue > static_cast<qulonglong>(std::numeric_limits<std::int64_t>::max())) {
            return std::nullopt;
        }
        return static_cast<std::int64_t>(unsignedValue);
    }
    default:
        return std::nullopt;
    }
}

} // namespace tarnic
