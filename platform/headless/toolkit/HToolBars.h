// Tool bars and their buttons.
#pragma once

#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

/// A bar whose edges take room from its client area.
class HToolWindow : public HWinControl {
 public:
    using HWinControl::HWinControl;

 protected:
    HInsets Insets() const override;
};

class HToolBar : public HToolWindow {
 public:
    HToolBar(HToolkit& kit, const HClassDef& def);
    int ButtonWidth() const { return FButtonWidth; }
    void SetButtonWidth(int value) { FButtonWidth = value; }
    int ButtonHeight() const { return FButtonHeight; }
    void SetButtonHeight(int value) { FButtonHeight = value; }

 private:
    int FButtonWidth = 23, FButtonHeight = 22;
};

enum class HToolButtonStyle { tbsButton, tbsCheck, tbsDropDown, tbsSeparator, tbsDivider };
template <>
const HEnumInfo& HEnumOf<HToolButtonStyle>();

/// A click on a check button turns it over before OnClick; of a group one stays down unless all may be up.
class HToolButton : public HGraphicControl {
 public:
    HToolButton(HToolkit& kit, const HClassDef& def);
    HToolButtonStyle Style() const { return FStyle; }
    void SetStyle(HToolButtonStyle value) { FStyle = value; }
    bool Down() const { return FDown; }
    /// A grouped check button that goes down lets its neighbours up.
    void SetDown(bool value);
    bool Grouped() const { return FGrouped; }
    void SetGrouped(bool value) { FGrouped = value; }
    bool AllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool value) { FAllowAllUp = value; }
    void ActionChanged(HCustomAction& action, bool onlyDefaults) override;
    void Loaded() override;

 protected:
    void MouseDown(HMouseButton button, TPoint point) override;
    void MouseUp(HMouseButton button, TPoint point) override;

 private:
    bool IsSeparator() const {
        return FStyle == HToolButtonStyle::tbsSeparator || FStyle == HToolButtonStyle::tbsDivider;
    }
    /// The check buttons of its group, itself among them: neighbours that are grouped.
    std::vector<HToolButton*> Group() const;
    void Toggle();

    HSeenState FSeen;
    HToolButtonStyle FStyle = HToolButtonStyle::tbsButton;
    bool FDown = false, FGrouped = false, FAllowAllUp = false, FPressed = false;
};

}  // namespace rux
