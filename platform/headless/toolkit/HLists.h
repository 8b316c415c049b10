// Plain controls that the keyboard reaches or that have a border.
#pragma once

#include "platform/headless/toolkit/HWinControl.h"

namespace rux {

/// A control without behaviour of its own that Tab stops at.
class HInputControl : public HWinControl {
 public:
    HInputControl(HToolkit& kit, const HClassDef& def) : HWinControl(kit, def) { FTabStop = true; }
};

/// The room that a border takes, if the object's BorderStyle asks for one.
HInsets BorderInsets(const HObject& object);

/// A control whose border takes room from its client area.
class HBorderedControl : public HWinControl {
 public:
    using HWinControl::HWinControl;

 protected:
    HInsets Insets() const override;
};

}  // namespace rux
