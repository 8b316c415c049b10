#include "platform/headless/toolkit/HToolBars.h"

#include <algorithm>

#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

constexpr int SeparatorWidth = 8;

struct HEdgeNames {
    TName Borders = InternName("EdgeBorders"), Inner = InternName("EdgeInner"),
          Outer = InternName("EdgeOuter"), Width = InternName("BorderWidth");
};

}  // namespace

template <>
const HEnumInfo& HEnumOf<HToolButtonStyle>() {
    static const HEnumInfo info{"TToolButtonStyle",
                                {"tbsButton", "tbsCheck", "tbsDropDown", "tbsSeparator", "tbsDivider"}};
    return info;
}

HInsets HToolWindow::Insets() const {
    static const HEdgeNames names;
    const TPropValue* borders = Kept(names.Borders);
    const auto has = [&](std::string_view edge) {
        return borders && borders->Text.find(edge) != std::string::npos;
    };
    // Each of the two edges is one pixel; esNone is 0.
    int edge = 0;
    for (const TName name : {names.Inner, names.Outer})
        if (const TPropValue* style = Kept(name); style && style->Ordinal != 0) ++edge;
    const TPropValue* width = Kept(names.Width);
    const int border = width ? static_cast<int>(std::clamp<std::int64_t>(width->Ordinal, 0, 1000)) : 0;
    const auto side = [&](std::string_view name) { return border + (has(name) ? edge : 0); };
    return {side("ebLeft"), side("ebTop"), side("ebRight"), side("ebBottom")};
}

HToolBar::HToolBar(HToolkit& kit, const HClassDef& def) : HToolWindow(kit, def) {
    SetAlign(HAlign::alTop);
    // The height that a form file leaves out.
    HControl::SetBounds({0, 0, 150, 32});
}

// ------------------------------------------------------------------------------------------ buttons

HToolButton::HToolButton(HToolkit& kit, const HClassDef& def) : HGraphicControl(kit, def) {
    FClickEvents = false;
    FDoubleClicks = false;
}

void HToolButton::Loaded() {
    HGraphicControl::Loaded();
    const auto* bar = dynamic_cast<const HToolBar*>(ParentControl());
    if (!bar) return;
    // Form files store the width of separators alone, and no height.
    if (Width() == 0) SetWidth(IsSeparator() ? SeparatorWidth : bar->ButtonWidth());
    if (Height() == 0) SetHeight(bar->ButtonHeight());
}

std::vector<HToolButton*> HToolButton::Group() const {
    if (!FGrouped || FStyle != HToolButtonStyle::tbsCheck || !ParentControl()) return {};
    std::vector<HToolButton*> run;
    bool found = false;
    for (HControl* control : ParentControl()->GraphicControls()) {
        auto* other = dynamic_cast<HToolButton*>(control);
        if (other && other->FGrouped && other->FStyle == HToolButtonStyle::tbsCheck) {
            run.push_back(other);
            found = found || other == this;
            continue;
        }
        if (found) break;
        run.clear();
    }
    return run;
}

void HToolButton::SetDown(bool value) {
    FDown = value;
    if (!value || Loading()) return;
    for (HToolButton* other : Group())
        if (other != this) other->FDown = false;
}

void HToolButton::Toggle() {
    if (FStyle != HToolButtonStyle::tbsCheck) return;
    if (FDown && FGrouped && !FAllowAllUp) return;
    SetDown(!FDown);
}

void HToolButton::ActionChanged(HCustomAction& action, bool onlyDefaults) {
    HGraphicControl::ActionChanged(action, onlyDefaults);
    if (FSeen.Differs(action, FDown, onlyDefaults)) SetDown(action.Checked());
    action.Hand(Kit().Names().ImageIndex, *this, onlyDefaults);
}

void HToolButton::MouseDown(HMouseButton button, TPoint point) {
    HGraphicControl::MouseDown(button, point);
    if (button == HMouseButton::Left && IsEnabled() && !IsSeparator()) FPressed = true;
}

void HToolButton::MouseUp(HMouseButton button, TPoint point) {
    HGraphicControl::MouseUp(button, point);
    if (button != HMouseButton::Left || Dead()) return;
    if (!std::exchange(FPressed, false) || !ClientRect().Contains(point)) return;
    Toggle();
    Click();
}

}  // namespace rux
