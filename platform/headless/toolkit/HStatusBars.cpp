#include "platform/headless/toolkit/HStatusBars.h"

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

HCollection* HPanelledBar::Panels() {
    static const TName panels = InternName("Panels");
    TPropValue value;
    return GetProp(panels, value) ? dynamic_cast<HCollection*>(value.Object) : nullptr;
}

int HPanelledBar::CountPanels() {
    const HCollection* panels = Panels();
    return panels ? panels->Count() : 0;
}

std::string HPanelledBar::TextOfPanel(int index) {
    static const TName text = InternName("Text");
    const HCollection* panels = Panels();
    if (!panels || index < 0 || index >= panels->Count())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    const HObject& panel = *panels->Items()[static_cast<std::size_t>(index)];
    // Panels say it in one of two properties.
    const TPropValue* value = panel.Stored(text);
    if (!value) value = panel.Stored(Kit().Names().Caption);
    return value ? value->Text : std::string();
}

std::vector<HContentLine> HPanelledBar::Content() {
    std::vector<HContentLine> lines;
    const int count = CountPanels();
    for (int i = 0; i < count; ++i) lines.push_back({"panel", 0, {TextOfPanel(i)}});
    return lines;
}

}  // namespace rux
