#include "platform/headless/native/HNativeFactory.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/native/HNativeCombo.h"
#include "platform/headless/native/HNativeDialog.h"
#include "platform/headless/native/HNativeTree.h"
#include "rtl/Text.h"

namespace rux {

namespace {

using TTarget = std::shared_ptr<HWindowTarget>;

struct TNativeClass {
    const char* Name;
    TTarget (*Make)(HDesktop& desktop, unsigned id);
};

template <class T>
TTarget Make(HDesktop& desktop, unsigned id) {
    return std::make_shared<T>(desktop, id);
}

constexpr TNativeClass Classes[] = {
    {"#32770",
     [](HDesktop& desktop, unsigned) -> TTarget {
         return std::make_shared<HNativeDialog>(desktop, HDialogTraits());
     }},
    {"Button", Make<HNativeButton>},
    {"ComboBox", Make<HNativeCombo>},
    {"Edit", Make<HNativeEdit>},
    {"Static",
     [](HDesktop& desktop, unsigned id) -> TTarget {
         return std::make_shared<HNativeWindow>(desktop, "Static", id);
     }},
    {"SysTreeView32", Make<HNativeTree>},
};

}  // namespace

HWnd CreateNativeWindow(HDesktop& desktop, std::string_view className, const std::string& text,
                        std::uint32_t style, HWnd parent, const TRect& rect, unsigned id) {
    const auto* found = std::find_if(std::begin(Classes), std::end(Classes),
                                     [&](const TNativeClass& row) { return SameText(row.Name, className); });
    if (found == std::end(Classes)) return 0;
    HCreateParams params;
    params.ClassName = found->Name;
    params.Text = text;
    params.Style = style;
    params.Parent = parent;
    params.Rect = rect;
    params.OwnedTarget = found->Make(desktop, id);
    if (!(style & WS_CHILD) && found == Classes)
        params.Insets = {HFixedFrame, HFixedFrame + HCaptionHeight, HFixedFrame, HFixedFrame};
    return desktop.CreateWindowA(params);
}

}  // namespace rux
