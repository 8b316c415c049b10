#include "Engine/Adapters/RUXStatusBarAdapters.h"

#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ExtraCtrls.h"

namespace rux {

namespace {

template <class Bar>
std::string PanelTexts(Bar& bar) {
    std::string text;
    const int count = bar.PanelCount();
    for (int i = 0; i < count; ++i) text += (i == 0 ? "" : ";") + bar.PanelText(i);
    return text;
}

}  // namespace

std::string TSolviTStatusBarAdapter::GetText() {
    return PanelTexts(Cast<TStatusBar>(FControl));
}

std::string TSolviTBXStatusBarAdapter::GetText() {
    return PanelTexts(Cast<TTBXStatusBar>(FControl));
}

}  // namespace rux
