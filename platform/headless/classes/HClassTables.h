// The tables of classes, by the unit that declares them in the target. Each adds its classes with their
// parents, published properties and defaults; ancestors come before descendants.
#pragma once

#include <functional>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HControl.h"

namespace rux {

void RegisterGraphicsUnit(HClasses& classes);
void RegisterControlsUnit(HClasses& classes);
void RegisterFormsUnit(HClasses& classes);
void RegisterStdCtrlsUnit(HClasses& classes);
void RegisterListUnits(HClasses& classes);
void RegisterButtonUnits(HClasses& classes);
void RegisterExtCtrlsUnit(HClasses& classes);
void RegisterPanelClasses(HClasses& classes);
void RegisterMenusUnit(HClasses& classes);
void RegisterActionUnits(HClasses& classes);
void RegisterActionBarUnits(HClasses& classes);
void RegisterComCtrlsUnit(HClasses& classes);
void RegisterViewClasses(HClasses& classes);
void RegisterTreeClasses(HClasses& classes);
void RegisterListViewClasses(HClasses& classes);
void RegisterShellUnit(HClasses& classes);
void RegisterExtraClasses(HClasses& classes);
void RegisterToolBarClasses(HClasses& classes);
void RegisterDialogUnits(HClasses& classes);
void RegisterGridUnits(HClasses& classes);
void RegisterPageUnits(HClasses& classes);
void RegisterDataUnits(HClasses& classes);
void RegisterDataControlUnits(HClasses& classes);
void RegisterReportUnits(HClasses& classes);
void RegisterSystemUnits(HClasses& classes);

using HNameList = std::initializer_list<std::string_view>;

// ------------------------------------------------------------------------------------------ classes

/// Each class is the child of the one before it, the first of `parent`.
void AddChain(HClasses& classes, std::string_view parent, HNameList names);
/// All are children of one class, without properties of their own.
void AddChildren(HClasses& classes, std::string_view parent, HNameList names);

template <class T, HAlign Align>
std::unique_ptr<HObject> HMakeAligned(HToolkit& kit, const HClassDef& def) {
    auto made = std::make_unique<T>(kit, def);
    made->SetAlign(Align);
    return made;
}
/// For classes that do not store their size where it is this one.
template <class T, int Width, int Height>
std::unique_ptr<HObject> HMakeSized(HToolkit& kit, const HClassDef& def) {
    auto made = std::make_unique<T>(kit, def);
    made->SetBounds({0, 0, Width, Height});
    return made;
}

// ------------------------------------------------------------------------------------------ single rows

/// Properties without behaviour and their defaults.
inline HPropDef KeptInt(std::string_view name, std::int64_t fallback = 0) {
    return HKept(name, HIntegerValue(fallback));
}
inline HPropDef KeptBool(std::string_view name, bool fallback = false) {
    return HKept(name, HBooleanValue(fallback), &HBooleanInfo());
}
inline HPropDef KeptText(std::string_view name, std::string fallback = {}) {
    return HKept(name, HStringValue(std::move(fallback)));
}
inline HPropDef KeptFloat(std::string_view name, double fallback = 0) {
    return HKept(name, HFloatValue(fallback));
}
inline HPropDef KeptChar(std::string_view name) {
    return HKept(name, HCharValue({}));
}
/// `type` as the toolkit declares it. Without a fallback the first element is the default.
HPropDef KeptEnum(std::string_view name, std::string_view type, std::string_view fallback = {});
/// `type` is the elements' enumeration; `fallback` has them joined by commas.
HPropDef KeptSet(std::string_view name, std::string_view type, std::string_view fallback = {});
inline HPropDef KeptObject(std::string_view name) {
    return HKept(name, HObjectValue(nullptr));
}
/// A part of a class of its own, such as a font, that is made when somebody asks for it or stores into it.
inline HPropDef KeptPart(std::string_view name, std::string_view className) {
    TPropValue none = HObjectValue(nullptr);
    none.Text = className;
    return HKept(name, std::move(none));
}

// ------------------------------------------------------------------------------------------ groups of rows

using HRows = std::vector<HPropDef>;

HRows Join(std::initializer_list<HRows> groups);
HRows Bools(HNameList names, bool fallback = false);
HRows Ints(HNameList names, std::int64_t fallback = 0);
HRows Texts(HNameList names);
HRows Objects(HNameList names);

/// A colour of the user's scheme, by the system's index.
constexpr std::int64_t HSystemColor(int index) {
    return static_cast<std::int32_t>(0xFF000000u | static_cast<unsigned>(index));
}
inline constexpr std::int64_t HWindowColor = HSystemColor(5), HTextColor = HSystemColor(8),
                              HButtonColor = HSystemColor(15);
/// clNone.
inline constexpr std::int64_t HNoColor = 0x1FFFFFFF;

// What the classes share, under the words of the toolkit's own documentation where there are any.
HRows Captioned();
HRows Texted();
HRows Aligned();
HRows Acting();
/// Enabled, Visible, hints, pop-up menu.
HRows Shown();
HRows Dragging();
HRows Anchored();
/// The three above and the reading direction: what nearly every control publishes.
HRows Basic();
HRows Lettered();
/// A colour of its own, or its parent's unless the file says otherwise.
HRows Coloured(std::int64_t fallback = HWindowColor, bool parents = false);
HRows ThreeD();
HRows Tabbed();
HRows Typing();
HRows Bevelled();
HRows Docked();
/// Basic, font, place in the tab order.
HRows Windowed();
/// Windowed with a colour and a border like edits and lists.
HRows Framed();
/// What edits of all kinds share, and what plain ones have beyond it.
/// What a control that nobody knows publishes: what nearly all do, and what its form files store of the rest.
HRows UnknownControlRows(bool windowed, const std::function<bool(TName)>& stored);
HRows EditRows();
HRows FullEditRows();
HRows GroupBoxRows();
/// Trees and list views.
HRows ViewRows();
HRows PanelRows();
/// Columns and rows of grids.
HRows GridRows();
/// A picture with its place on a button.
HRows GlyphRows();

}  // namespace rux
