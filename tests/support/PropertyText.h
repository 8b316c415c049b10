// Values of properties as the tests of the desktop show them.
#pragma once

#include <string>

#include "platform/toolkit/Classes.h"
#include "rtl/Numbers.h"

namespace rux::test {

/// An object shows by its class, none as `nil`.
inline std::string PropertyText(const TPropValue& value) {
    switch (value.Kind) {
        case TTypeKind::Integer:
        case TTypeKind::Char:
        case TTypeKind::WChar:
        case TTypeKind::Int64:
            return IntToStr(value.Ordinal);
        case TTypeKind::Float:
            return FloatToStr(value.Real);
        case TTypeKind::Class:
            return value.Object ? value.Object->ClassType().Name() : "nil";
        default:
            return value.Text;
    }
}

}  // namespace rux::test
