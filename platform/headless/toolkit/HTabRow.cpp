#include "platform/headless/toolkit/HTabRow.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/drawing/HFramePainter.h"

namespace rux {

void HTabRow::Arrange(const std::vector<std::string>& texts, int top, int bottom) {
    FStale = false;
    FTabs.clear();
    FTabs.reserve(texts.size());
    int left = HTabMargin;
    for (const std::string& text : texts) {
        std::string caption = WithoutAccelerator(text);
        const int right = std::min(left + HCanvas::TextWidth(caption) + HTabPadding, HScreenCoordLimit);
        FTabs.push_back({std::move(caption), {left, top, right, bottom}});
        left = right;
    }
}

TRect HTabRow::Rect(int index) const {
    return index >= 0 && index < Count() ? FTabs[static_cast<std::size_t>(index)].Rect : TRect{};
}

int HTabRow::At(TPoint point) const {
    const auto place = std::upper_bound(FTabs.begin(), FTabs.end(), point.X,
                                        [](int x, const TTab& tab) { return x < tab.Rect.Right; });
    if (place == FTabs.end() || !place->Rect.Contains(point)) return -1;
    return static_cast<int>(place - FTabs.begin());
}

}  // namespace rux
