// Rows of the tables that many classes share.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/classes/HEnums.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "platform/headless/toolkit/HWinControl.h"
#include "rtl/Text.h"

namespace rux {

void AddChain(HClasses& classes, std::string_view parent, HNameList names) {
    for (const std::string_view name : names) {
        classes.Add(name, parent);
        parent = name;
    }
}

void AddChildren(HClasses& classes, std::string_view parent, HNameList names) {
    for (const std::string_view name : names) classes.Add(name, parent);
}

// ------------------------------------------------------------------------------------------ makers of rows

HPropDef KeptEnum(std::string_view name, std::string_view type, std::string_view fallback) {
    const HEnumInfo& info = EnumNamed(type);
    const int ordinal = fallback.empty() ? 0 : info.OrdinalOf(fallback);
    Assert(ordinal >= 0, "The default is not an element of the enumeration");
    return HKept(name, HEnumValue(info, ordinal), &info);
}

HPropDef KeptSet(std::string_view name, std::string_view type, std::string_view fallback) {
    return HKept(name, HSetValue(std::string(fallback)), &EnumNamed(type));
}

HRows Join(std::initializer_list<HRows> groups) {
    HRows all;
    for (const HRows& group : groups) all.insert(all.end(), group.begin(), group.end());
    return all;
}

namespace {

template <class MakeRow>
HRows Each(HNameList names, MakeRow makeRow) {
    HRows rows;
    for (const std::string_view name : names) rows.push_back(makeRow(name));
    return rows;
}

}  // namespace

HRows Bools(HNameList names, bool fallback) {
    return Each(names, [&](std::string_view name) { return KeptBool(name, fallback); });
}
HRows Ints(HNameList names, std::int64_t fallback) {
    return Each(names, [&](std::string_view name) { return KeptInt(name, fallback); });
}
HRows Texts(HNameList names) {
    return Each(names, [](std::string_view name) { return KeptText(name); });
}
HRows Objects(HNameList names) {
    return Each(names, [](std::string_view name) { return KeptObject(name); });
}

// ------------------------------------------------------------------------------------------ from the parent

namespace {

/// A property that a control takes from its parent while a flag of its class says so.
struct HParentRule {
    TName Property, Flag;
};

HParentRule ColorRule() {
    static const HParentRule rule{InternName("Color"), InternName("ParentColor")};
    return rule;
}
HParentRule FontRule() {
    static const HParentRule rule{InternName("Font"), InternName("ParentFont")};
    return rule;
}
HParentRule HintRule() {
    static const HParentRule rule{InternName("ShowHint"), InternName("ParentShowHint")};
    return rule;
}
HParentRule ReadingRule() {
    static const HParentRule rule{InternName("BiDiMode"), InternName("ParentBiDiMode")};
    return rule;
}
HParentRule ThreeDRule() {
    static const HParentRule rule{InternName("Ctl3D"), InternName("ParentCtl3D")};
    return rule;
}

/// Classes that do not publish the flag take the value from their parent, as controls do at first.
bool TakesFromParent(HControl& control, TName flag) {
    TPropValue value;
    return !control.GetProp(flag, value) || value.Ordinal != 0;
}

/// The control whose own value counts.
HControl& Decider(HControl& control, HParentRule rule) {
    HControl* step = &control;
    HControl* publishing = &control;
    // What a form file says of a part goes into the control's own part.
    const HPropDef* def = control.Def().Props->Find(rule.Property);
    if (control.Loading() && def && def->Kind == TTypeKind::Class) return control;
    for (; step; step = step->ParentControl()) {
        if (!step->Def().Props->Find(rule.Property)) continue;
        publishing = step;
        if (step->Stored(rule.Property) || !TakesFromParent(*step, rule.Flag)) break;
    }
    return *publishing;
}

template <HParentRule (*Rule)()>
HPropDef FromParent(HPropDef row) {
    row.Get = [](HObject& object, TPropValue& value) {
        Decider(static_cast<HControl&>(object), Rule()).GetKept(Rule().Property, value);
    };
    row.Set = [](HObject& object, const TPropValue& value) { object.Store(Rule().Property, value); };
    return row;
}

}  // namespace

// ------------------------------------------------------------------------------------------ groups

namespace {

/// What a control holds on to while nobody says otherwise: the sides that its alignment touches.
std::string_view AnchorsOf(HAlign align) {
    switch (align) {
        case HAlign::alTop:
            return "akLeft,akTop,akRight";
        case HAlign::alBottom:
            return "akLeft,akRight,akBottom";
        case HAlign::alLeft:
            return "akLeft,akTop,akBottom";
        case HAlign::alRight:
            return "akTop,akRight,akBottom";
        case HAlign::alClient:
            return "akLeft,akTop,akRight,akBottom";
        case HAlign::alNone:
        case HAlign::alCustom:
            break;
    }
    return "akLeft,akTop";
}

TName AnchorsName() {
    static const TName name = InternName("Anchors");
    return name;
}

HPropDef AnchorsRow() {
    HPropDef row = KeptSet("Anchors", "TAnchorKind");
    row.Get = [](HObject& object, TPropValue& value) {
        const TPropValue* stored = object.Stored(AnchorsName());
        value = stored ? *stored : HSetValue(std::string(AnchorsOf(static_cast<HControl&>(object).Align())));
    };
    row.Set = [](HObject& object, const TPropValue& value) { object.Store(AnchorsName(), value); };
    return row;
}

}  // namespace

HRows Captioned() {
    return {HProp<&HControl::TextRef, &HControl::SetText>("Caption")};
}

HRows Texted() {
    return {HProp<&HControl::TextRef, &HControl::SetText>("Text")};
}

HRows Aligned() {
    return {HProp<&HControl::Align, &HControl::SetAlign>("Align")};
}

HRows Acting() {
    return {HProp<&HControl::ActionObject, &HControl::SetAction>("Action")};
}

HRows Shown() {
    return {HProp<&HControl::IsEnabled, &HControl::SetEnabled>("Enabled"),
            HProp<&HControl::IsVisible, &HControl::SetVisible>("Visible"),
            HProp<&HControl::PopupMenuObject, &HControl::SetPopupMenu>("PopupMenu"),
            FromParent<HintRule>(KeptBool("ShowHint")), KeptBool("ParentShowHint", true)};
}

HRows Dragging() {
    return {KeptInt("DragCursor", -12), KeptEnum("DragKind", "TDragKind"), KeptEnum("DragMode", "TDragMode")};
}

HRows Anchored() {
    return {AnchorsRow(), KeptPart("Constraints", "TSizeConstraints")};
}

HRows Basic() {
    return Join(
        {Shown(),
         Dragging(),
         Anchored(),
         {FromParent<ReadingRule>(KeptEnum("BiDiMode", "TBiDiMode")), KeptBool("ParentBiDiMode", true)}});
}

HRows Lettered() {
    return {FromParent<FontRule>(KeptPart("Font", "TFont")), KeptBool("ParentFont", true)};
}

HRows Coloured(std::int64_t fallback, bool parents) {
    return {FromParent<ColorRule>(KeptInt("Color", fallback)), KeptBool("ParentColor", parents)};
}

HRows ThreeD() {
    return {FromParent<ThreeDRule>(KeptBool("Ctl3D", true)), KeptBool("ParentCtl3D", true)};
}

HRows Tabbed() {
    return {HProp<&HWinControl::TabOrder, &HWinControl::SetTabOrder>("TabOrder"),
            HProp<&HWinControl::TabStop, &HWinControl::SetTabStop>("TabStop")};
}

HRows Typing() {
    return {KeptEnum("ImeMode", "TImeMode", "imDontCare"), KeptText("ImeName")};
}

HRows Bevelled() {
    return {KeptSet("BevelEdges", "TBevelEdge", "beLeft,beTop,beRight,beBottom"),
            KeptEnum("BevelInner", "TBevelCut", "bvRaised"), KeptEnum("BevelKind", "TBevelKind"),
            KeptEnum("BevelOuter", "TBevelCut", "bvLowered")};
}

HRows Docked() {
    return {KeptBool("DockSite")};
}

HRows Windowed() {
    return Join({Basic(), Lettered(), Tabbed()});
}

HRows Framed() {
    return Join({Windowed(), Coloured(), ThreeD(), {KeptEnum("BorderStyle", "TBorderStyle", "bsSingle")}});
}

HRows UnknownControlRows(bool windowed, const std::function<bool(TName)>& stored) {
    HRows rows = Join({Captioned(), Texted(), Aligned(), Acting()});
    std::erase_if(rows, [&](const HPropDef& row) { return !stored(row.Name); });
    return Join({rows, Shown(), windowed ? Tabbed() : HRows{}});
}

HRows ViewRows() {
    return Join({Framed(),
                 Aligned(),
                 Bevelled(),
                 Objects({"StateImages"}),
                 Bools({"HotTrack", "MultiSelect", "ReadOnly", "RowSelect"}),
                 Bools({"HideSelection"}, true),
                 Ints({"BorderWidth"}),
                 {KeptEnum("SortType", "TSortType")}});
}

}  // namespace rux
