// Status bars: panels with texts along a form's lower edge.
#pragma once

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HWinControl.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"

namespace rux {

/// A control with panels.
class HPanelledBar : public HWinControl {
 public:
    HPanelledBar(HToolkit& kit, const HClassDef& def) : HWinControl(kit, def) { SetAlign(HAlign::alBottom); }
    std::vector<HContentLine> Content() override;

 protected:
    int CountPanels();
    /// Raises EListError for an index outside.
    std::string TextOfPanel(int index);

 private:
    HCollection* Panels();
};

class HStatusBar : public With<HPanelledBar, TStatusBar> {
 public:
    using With::With;
    int PanelCount() override { return CountPanels(); }
    std::string PanelText(int index) override { return TextOfPanel(index); }
};

class HTBXStatusBar : public With<HPanelledBar, TTBXStatusBar> {
 public:
    using With::With;
    int PanelCount() override { return CountPanels(); }
    std::string PanelText(int index) override { return TextOfPanel(index); }
};

}  // namespace rux
