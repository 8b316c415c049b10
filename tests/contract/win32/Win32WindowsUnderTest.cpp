// The system's windows as a platform under test.
#include <algorithm>

#include "contract/WindowContract.h"
#include "platform/win32/Win32Code.h"
#include "platform/win32/Win32Windows.h"
// After the boundary.
#include "platform/win32/Headers.h"

namespace rux::test {

namespace {

HWND Handle(HWnd window) {
    return reinterpret_cast<HWND>(window);
}

HWnd NumberOf(HWND window) {
    return reinterpret_cast<HWnd>(window);
}

LRESULT CALLBACK PaintedProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_PAINT) return ::DefWindowProcA(window, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(window, &paint);
    RECT part;
    ::GetClientRect(window, &part);
    for (const COLORREF color : {RGB(0, 0, 255), RGB(255, 0, 0)}) {
        const HBRUSH brush = ::CreateSolidBrush(color);
        ::FillRect(dc, &part, brush);
        ::DeleteObject(brush);
        part.right /= 2;
    }
    ::EndPaint(window, &paint);
    return 0;
}

HWND ShownDialog = nullptr;

BOOL CALLBACK DialogProc(HWND dialog, UINT message, WPARAM, LPARAM) {
    if (message == WM_INITDIALOG) ShownDialog = dialog;
    if (message == WM_CLOSE) ::EndDialog(dialog, IDCANCEL);
    return message == WM_CLOSE || message == WM_INITDIALOG;
}

/// By timer.
std::map<UINT_PTR, std::function<void()>> CodeForLater;

void CALLBACK RunLater(HWND, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(nullptr, timer);
    CodeForLater.extract(timer).mapped()();
}

class TWin32WindowsUnderTest final : public TWindowsUnderTest {
 public:
    TWin32WindowsUnderTest() : TWindowsUnderTest(FWindows, FCode) {
        FThunks.SetReport([this](const std::exception& error) { Errors.push_back(error.what()); });
        EveryBoxCanBeClosed =
            ::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
        for (const auto& [name, procedure] :
             {std::pair{"Plain", &::DefWindowProcA}, {"Painted", &PaintedProc}}) {
            WNDCLASSA info{};
            info.lpfnWndProc = procedure;
            info.lpszClassName = name;
            ::RegisterClassA(&info);
        }
    }

    HWnd Make(const TNewWindow& window) override {
        const TRect& r = window.Rect;
        return NumberOf(::CreateWindowExA(window.ExStyle, window.ClassName, window.Text.c_str(), window.Style,
                                          r.Left, r.Top, r.Width(), r.Height(), Handle(window.Parent),
                                          nullptr, nullptr, nullptr));
    }
    void Destroy(HWnd window) override { ::DestroyWindow(Handle(window)); }
    void Show(HWnd window, TShowCommand command) override { ::ShowWindow(Handle(window), command); }
    void Enable(HWnd window, bool enabled) override { ::EnableWindow(Handle(window), enabled); }
    void BringToTop(HWnd window) override { ::BringWindowToTop(Handle(window)); }
    void Mark(HWnd window, const std::string& name, std::uintptr_t value) override {
        const ATOM atom = ::GlobalAddAtomA(name.c_str());
        ::SetPropA(Handle(window), MAKEINTATOM(atom), reinterpret_cast<HANDLE>(value));
    }
    void Pump() override {
        for (MSG message; ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE);) ::DispatchMessageA(&message);
    }
    void Later(std::function<void()> code) override {
        CodeForLater[::SetTimer(nullptr, 0, 50, RunLater)] = std::move(code);
    }
    unsigned RunMessageBox(const std::string& text, const std::string& caption, HWnd owner,
                           unsigned flags) override {
        return static_cast<unsigned>(::MessageBoxA(Handle(owner), text.c_str(), caption.c_str(), flags));
    }
    HWnd ShowDialog(const std::string& caption, bool modal) override {
        // Behind the header no menu, the usual class, the caption.
        struct alignas(4) {
            DLGTEMPLATE Header{WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 20, 20, 100, 50};
            WORD Rest[20] = {};
        } bytes;
        std::copy(caption.begin(), caption.end(), bytes.Rest + 2);
        if (modal)
            ::DialogBoxIndirectParamA(nullptr, &bytes.Header, nullptr, DialogProc, 0);
        else
            ::CreateDialogIndirectParamA(nullptr, &bytes.Header, nullptr, DialogProc, 0);
        return NumberOf(std::exchange(ShownDialog, nullptr));
    }

 private:
    TWin32Thunks FThunks;
    TWin32Windows FWindows{FThunks};
    TWin32Code FCode{FThunks};
};

INSTANTIATE_TEST_SUITE_P(Windows, WindowContract,
                         testing::Values(+[]() -> std::unique_ptr<TWindowsUnderTest> {
                             return std::make_unique<TWin32WindowsUnderTest>();
                         }));

/// A number that grows with the objects of the graphics system: their count, or where the system does not
/// tell it, the last place in their table that some new ones get.
unsigned GraphicsObjects() {
    if (const DWORD count = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS)) return count;
    HDC probes[20];
    unsigned last = 0;
    for (HDC& probe : probes) {
        probe = ::CreateCompatibleDC(nullptr);
        last = std::max<unsigned>(last, LOWORD(reinterpret_cast<std::uintptr_t>(probe)));
    }
    for (const HDC probe : probes) ::DeleteDC(probe);
    return last;
}

}  // namespace

TEST(TestWin32Windows, TheEndOfTheLoopIsLeftInTheQueue) {
    TWin32WindowsUnderTest stage;
    const HWnd window = stage.Make({"Plain", ""});
    ::PostQuitMessage(3);
    TMessage taken;
    for (int i = 0; i < 2; ++i) EXPECT_FALSE(stage.Windows.PeekMessageA(taken, window, 0, WM_USER));
    MSG message{};
    EXPECT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE) && message.wParam == 3);
    stage.Destroy(window);
}

TEST(TestWin32Pictures, LeaveNoObjectsBehind) {
    TWin32WindowsUnderTest stage;
    const HWnd window = stage.Make({"Painted", "", Popup | Visible, 0, {200, 150, 208, 154}});
    stage.Pump();
    const unsigned before = GraphicsObjects();
    TBitmap picture;
    for (int i = 0; i < 200; ++i)
        ASSERT_TRUE(stage.Windows.PrintWindow(window, picture) &&
                    stage.Windows.CopyScreen({0, 0, 9, 9}, picture));
    EXPECT_LT(GraphicsObjects(), before + 50);
    stage.Destroy(window);
}

}  // namespace rux::test
