#include "platform/win32/Win32Pictures.h"

#include <algorithm>
#include <functional>
#include <utility>

#include "platform/win32/Headers.h"

namespace rux {

namespace {

constexpr int BytesPerPixel = 3;

/// A device context of a window, or of the screen for none; given back at the end.
class TWindowDc {
 public:
    static TWindowDc OfScreen() { return TWindowDc(nullptr, ::GetDC(nullptr)); }
    /// With the frame.
    static TWindowDc OfWindow(HWND window) { return TWindowDc(window, ::GetWindowDC(window)); }
    ~TWindowDc() {
        if (FDc) ::ReleaseDC(FWindow, FDc);
    }
    TWindowDc(const TWindowDc&) = delete;
    TWindowDc& operator=(const TWindowDc&) = delete;
    HDC Handle() const { return FDc; }

 private:
    TWindowDc(HWND window, HDC dc) : FWindow(window), FDc(dc) {}

    const HWND FWindow;
    const HDC FDc;
};

/// What is drawn into: black in the beginning.
class TDrawingSurface {
 public:
    TDrawingSurface(int width, int height) : FWidth(width), FHeight(height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 8 * BytesPerPixel;
        info.bmiHeader.biCompression = BI_RGB;
        FBitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &FBytes, nullptr, 0);
        if (!FBitmap) return;
        FDc = ::CreateCompatibleDC(nullptr);
        if (FDc) FBefore = ::SelectObject(FDc, FBitmap);
    }
    ~TDrawingSurface() {
        if (FBefore) ::SelectObject(FDc, FBefore);
        if (FDc) ::DeleteDC(FDc);
        if (FBitmap) ::DeleteObject(FBitmap);
    }
    TDrawingSurface(const TDrawingSurface&) = delete;
    TDrawingSurface& operator=(const TDrawingSurface&) = delete;

    /// False when there was no memory.
    bool Made() const { return FBefore != nullptr; }
    HDC Handle() const { return FDc; }
    /// Rows lie from bottom to top, each filled up to whole words.
    TBitmap Picture() const {
        ::GdiFlush();
        TBitmap picture{FWidth, FHeight, {}};
        picture.Pixels.reserve(static_cast<std::size_t>(FWidth) * static_cast<std::size_t>(FHeight));
        const std::size_t rowSize = (static_cast<std::size_t>(FWidth) * BytesPerPixel + 3) / 4 * 4;
        for (int y = FHeight; y-- > 0;) {
            const auto* byte =
                static_cast<const std::uint8_t*>(FBytes) + static_cast<std::size_t>(y) * rowSize;
            for (int x = 0; x < FWidth; ++x, byte += BytesPerPixel)
                picture.Pixels.push_back({byte[2], byte[1], byte[0]});
        }
        return picture;
    }

 private:
    const int FWidth, FHeight;
    void* FBytes = nullptr;
    HBITMAP FBitmap = nullptr;
    HDC FDc = nullptr;
    HGDIOBJ FBefore = nullptr;
};

bool SizeOf(const TRect& place, int& width, int& height) {
    const std::int64_t w = std::int64_t{place.Right} - place.Left, h = std::int64_t{place.Bottom} - place.Top;
    if (w <= 0 || h <= 0 || w > BitmapPixelLimit / h) return false;
    width = static_cast<int>(w);
    height = static_cast<int>(h);
    return true;
}

/// No more than one colour besides the black that the surface had before: a background, and a frame that was
/// left out.
bool IsFlat(const TBitmap& picture) {
    const TColor black;
    const TColor* only = nullptr;
    for (const TColor& pixel : picture.Pixels) {
        if (pixel == black) continue;
        if (!only) only = &pixel;
        if (pixel != *only) return false;
    }
    return true;
}

/// What stands on the screen of the window alone.
TBitmap ShownPicture(HWND window, int width, int height) {
    const TDrawingSurface surface(width, height);
    const TWindowDc source = TWindowDc::OfWindow(window);
    if (!surface.Made() || !source.Handle()) return {};
    if (!::BitBlt(surface.Handle(), 0, 0, width, height, source.Handle(), 0, 0, SRCCOPY)) return {};
    return surface.Picture();
}

/// The screens together.
TRect AllScreens() {
    const TPoint origin{::GetSystemMetrics(SM_XVIRTUALSCREEN), ::GetSystemMetrics(SM_YVIRTUALSCREEN)};
    return {origin.X, origin.Y, origin.X + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
            origin.Y + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

}  // namespace

bool PictureOfWindow(HWND window, TBitmap& picture) {
    RECT place;
    int width = 0, height = 0;
    if (!::GetWindowRect(window, &place)) return false;
    if (!SizeOf({place.left, place.top, place.right, place.bottom}, width, height)) return false;
    TBitmap made;
    {
        const TDrawingSurface surface(width, height);
        if (!surface.Made() || !::PrintWindow(window, surface.Handle(), 0)) return false;
        made = surface.Picture();
    }
    // There are windows that cannot be told where to draw: they paint on the screen alone, or past the
    // system's drawing, and their picture is flat. What is on the screen is the better
    // picture then.
    if (IsFlat(made) && ::IsWindowVisible(window)) {
        TBitmap shown = ShownPicture(window, width, height);
        if (!shown.Empty() && !IsFlat(shown)) made = std::move(shown);
    }
    picture = std::move(made);
    return true;
}

bool PictureOfScreen(const TRect& place, TBitmap& picture) {
    int width = 0, height = 0;
    if (!SizeOf(place, width, height)) return false;
    const TDrawingSurface surface(width, height);
    const TWindowDc screen = TWindowDc::OfScreen();
    if (!surface.Made() || !screen.Handle()) return false;
    const TRect all = AllScreens();
    const TRect part{std::max(place.Left, all.Left), std::max(place.Top, all.Top),
                     std::min(place.Right, all.Right), std::min(place.Bottom, all.Bottom)};
    // Windows that are partly transparent are copied with the rest.
    if (part.Left < part.Right && part.Top < part.Bottom &&
        !::BitBlt(surface.Handle(), part.Left - place.Left, part.Top - place.Top, part.Width(), part.Height(),
                  screen.Handle(), part.Left, part.Top, SRCCOPY | CAPTUREBLT))
        return false;
    picture = surface.Picture();
    return true;
}

}  // namespace rux
