// Pictures of windows and of the screen.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/windows/HDesktop.h"

namespace rux {

namespace {

/// Pixels that one picture may cost. Where far more lies over each other than a person can have meant, what
/// is on top is missing.
constexpr std::int64_t PaintBudget = std::int64_t{1} << 30;

/// A window that is still to be drawn, and the canvas of what it stands on. The canvas has the screen's
/// origin.
struct TPending {
    const HWindow* Window;
    HCanvas Around;
};

/// A stack of its own: windows may be nested deeper than the thread's.
using TPendingRow = std::vector<TPending>;

TRect ClientOnScreen(const HWindow& window) {
    return window.ClientRect().MovedBy(window.ClientOrigin());
}

/// Puts the windows of a row (bottom to top) that can be seen on the stack, the lowest to be drawn first.
/// True when one of them covers all the others stand on: nothing below it is to be drawn.
bool Push(TPendingRow& pending, const std::vector<HWindow*>& row, const HCanvas& around) {
    for (auto step = row.rbegin(); step != row.rend(); ++step) {
        const HWindow& window = **step;
        if (!window.Visible() || !around.Shows(window.Rect)) continue;
        pending.push_back({&window, around});
        if (around.CoveredBy(window.Rect)) return true;
    }
    return false;
}

void Draw(TPendingRow& pending, HWnd active) {
    while (!pending.empty()) {
        const TPending next = pending.back();
        pending.pop_back();
        const HWindow& window = *next.Window;
        HCanvas frame = next.Around.Part(window.Rect);
        PaintFrame(frame, window, window.Handle == active);
        const TRect client = ClientOnScreen(window);
        const HCanvas inside = next.Around.Clipped(window.Rect).Clipped(client);
        if (!inside.Shows(client) || Push(pending, window.Children, inside)) continue;
        HCanvas canvas = inside.Part(client);
        PaintClassBackground(canvas, window);
        if (window.Target) window.Target->Paint(canvas, window);
    }
}

/// False for a place that is empty or too large. Pixels are black.
bool MakePicture(const TRect& place, TBitmap& picture) {
    const std::int64_t width = std::int64_t{place.Right} - place.Left;
    const std::int64_t height = std::int64_t{place.Bottom} - place.Top;
    if (width <= 0 || height <= 0 || width > BitmapPixelLimit / height) return false;
    picture.Width = static_cast<int>(width);
    picture.Height = static_cast<int>(height);
    picture.Pixels.resize(static_cast<std::size_t>(width * height));
    return true;
}

HCanvas ScreenCanvas(TBitmap& picture, const TRect& place, std::int64_t& budget) {
    // Far beyond the screen every place looks the same.
    const auto back = [](std::int64_t coordinate) {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(-coordinate, -HScreenCoordLimit, HScreenCoordLimit));
    };
    return HCanvas(picture, &budget).WithOrigin({back(place.Left), back(place.Top)});
}

}  // namespace

bool HDesktop::PrintWindow(HWnd handle, TBitmap& picture) {
    const HWindow* window = FTable.Find(handle);
    TBitmap made;
    if (!window || !MakePicture(window->Rect, made)) return false;
    std::int64_t budget = PaintBudget;
    TPendingRow pending{{window, ScreenCanvas(made, window->Rect, budget)}};
    Draw(pending, FActive);
    picture = std::move(made);
    return true;
}

bool HDesktop::CopyScreen(const TRect& place, TBitmap& picture) {
    TBitmap made;
    if (!MakePicture(place, made)) return false;
    std::int64_t budget = PaintBudget;
    HCanvas screen = ScreenCanvas(made, place, budget).Clipped(HScreenRect);
    screen.Fill(HScreenRect, clBackground);
    TPendingRow pending;
    Push(pending, FTopLevel, screen);
    Draw(pending, FActive);
    picture = std::move(made);
    return true;
}

}  // namespace rux
