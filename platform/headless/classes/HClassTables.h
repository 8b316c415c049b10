// The tables of classes, by the unit that declares them in the target. Each adds its classes with their
// parents, published properties and defaults; ancestors come before descendants.
#pragma once

#include "platform/headless/toolkit/HClasses.h"

namespace rux {

void RegisterControlsUnit(HClasses& classes);
void RegisterFormsUnit(HClasses& classes);
void RegisterStdCtrlsUnit(HClasses& classes);
void RegisterMenusUnit(HClasses& classes);
void RegisterComCtrlsUnit(HClasses& classes);
void RegisterExtCtrlsUnit(HClasses& classes);

/// Shorthand for properties without behaviour and their defaults.
inline HPropDef KeptInt(std::string_view name, std::int64_t fallback = 0) {
    return HKept(name, HIntegerValue(fallback));
}
inline HPropDef KeptBool(std::string_view name, bool fallback = false) {
    return HKept(name, HBooleanValue(fallback), &HBooleanInfo());
}
inline HPropDef KeptText(std::string_view name) {
    return HKept(name, HStringValue({}));
}
inline HPropDef KeptEnum(std::string_view name, const HEnumInfo& info, int fallback = 0) {
    return HKept(name, HEnumValue(info, fallback), &info);
}
inline HPropDef KeptSet(std::string_view name, const HEnumInfo& info, std::string fallback = {}) {
    return HKept(name, HSetValue(std::move(fallback)), &info);
}
inline HPropDef KeptObject(std::string_view name) {
    return HKept(name, HObjectValue(nullptr));
}
/// A part of a class of its own, such as a font, that is made when somebody asks for it or stores into it.
inline HPropDef KeptPart(std::string_view name, std::string_view className) {
    TPropValue none = HObjectValue(nullptr);
    none.Text = className;
    return HKept(name, std::move(none));
}

}  // namespace rux
