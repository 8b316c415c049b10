#include "platform/headless/native/HMessageBox.h"

#include <algorithm>
#include <vector>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/native/HNativeFactory.h"
#include "rtl/CodePage.h"
#include "rtl/Stack.h"

namespace rux {

namespace {

constexpr TRect IconPlace{12, 16, 44, 48};
constexpr int TextLeft = 60, TextTop = 16, Margin = 20;
/// Of the text.
constexpr int SmallestWidth = 200, LargestWidth = 600, SmallestHeight = 44;
constexpr int ButtonWidth = 75, ButtonHeight = 25, ButtonGap = 8;
constexpr unsigned TypeMask = 15, DefaultMask = 0xF00;

const char* ButtonText(unsigned answer) {
    static constexpr const char* texts[] = {"确定",     "取消",   "中止(&A)", "重试(&R)",
                                            "忽略(&I)", "是(&Y)", "否(&N)"};
    return texts[answer - IDOK];
}

std::vector<unsigned> AnswersOf(unsigned flags) {
    switch (flags & TypeMask) {
        case MB_OKCANCEL:
            return {IDOK, IDCANCEL};
        case MB_ABORTRETRYIGNORE:
            return {IDABORT, IDRETRY, IDIGNORE};
        case MB_YESNOCANCEL:
            return {IDYES, IDNO, IDCANCEL};
        case MB_YESNO:
            return {IDYES, IDNO};
        case MB_RETRYCANCEL:
            return {IDRETRY, IDCANCEL};
        default:
            return {IDOK};
    }
}

unsigned CloseAnswer(const std::vector<unsigned>& answers) {
    if (answers.size() == 1) return answers.front();
    return std::find(answers.begin(), answers.end(), IDCANCEL) == answers.end() ? 0u : IDCANCEL;
}

struct TSize {
    int Width = 0, Height = 0;
};

/// What the text takes: a line that is too wide breaks, and each break may leave room for a word.
TSize MeasureText(std::string_view text) {
    const int rowsOfScreen = HScreenRect.Height() / HCanvas::LineHeight - 10;
    int rows = 0, width = SmallestWidth;
    while (!text.empty() && rows < rowsOfScreen) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const int line = HCanvas::TextWidth(text.substr(0, end));
        width = std::max(width, std::min(line, LargestWidth));
        rows += line <= LargestWidth ? 1 : std::min(line / (LargestWidth - 50) + 1, rowsOfScreen);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {width, std::max(SmallestHeight, std::min(rows, rowsOfScreen) * HCanvas::LineHeight)};
}

class TBoxMaker {
 public:
    TBoxMaker(HDesktop& desktop, const std::string& text, unsigned flags)
        : FDesktop(desktop), FText(text), FAnswers(AnswersOf(flags)), FTextSize(MeasureText(text)) {
        FDefault = std::min<std::size_t>((flags & DefaultMask) >> 8, FAnswers.size() - 1);
    }

    /// 0 when there is no room for a further window.
    HWnd Make(const std::string& caption, HWnd owner, std::shared_ptr<HDialogWait> wait) {
        const int buttonTop = TextTop + FTextSize.Height + 16;
        const TSize client{std::max(TextLeft + FTextSize.Width, ButtonRow()) + Margin,
                           buttonTop + ButtonHeight + 12};
        const int width = client.Width + 2 * HFixedFrame;
        const int height = client.Height + 2 * HFixedFrame + HCaptionHeight;
        const int left = (HScreenRect.Width() - width) / 2, top = (HScreenRect.Height() - height) / 2;
        const auto box = CreateNativeDialog(FDesktop, caption, {left, top, left + width, top + height}, owner,
                                            {{}, CloseAnswer(FAnswers), std::move(wait)});
        if (box == 0) return 0;
        AddButtons(box, {(client.Width - ButtonRow()) / 2, buttonTop});
        Add(box, "Static", "", 0, IconPlace, 0);
        Add(box, "Static", FText, 0,
            {TextLeft, TextTop, TextLeft + FTextSize.Width, TextTop + FTextSize.Height}, 0xFFFF);
        return box;
    }

 private:
    int ButtonRow() const {
        return static_cast<int>(FAnswers.size()) * (ButtonWidth + ButtonGap) - ButtonGap;
    }

    HWnd Add(HWnd box, const char* className, const std::string& text, std::uint32_t style, const TRect& rect,
             unsigned id) {
        return CreateNativeWindow(FDesktop, className, text, style | WS_CHILD | WS_VISIBLE, box, rect, id);
    }

    void AddButtons(HWnd box, TPoint place) {
        for (std::size_t i = 0; i < FAnswers.size(); ++i) {
            const TRect rect{place.X, place.Y, place.X + ButtonWidth, place.Y + ButtonHeight};
            const HWnd button = Add(box, "Button", Ansi(ButtonText(FAnswers[i])),
                                    i == FDefault ? HNativeButton::BS_DEFPUSHBUTTON : 0, rect, FAnswers[i]);
            auto& dialog = static_cast<HNativeDialog&>(*FDesktop.Find(box)->Target);
            if (i == FDefault) dialog.SetFocusChild(button);
            place.X += ButtonWidth + ButtonGap;
        }
    }

    HDesktop& FDesktop;
    const std::string& FText;
    const std::vector<unsigned> FAnswers;
    const TSize FTextSize;
    std::size_t FDefault = 0;
};

/// Wakes the waiting thread when the application ends.
class TQuitWatch {
 public:
    TQuitWatch(HDesktop& desktop, TEvent& event) : FDesktop(desktop), FEvent(event) {
        desktop.AddQuitEvent(event);
    }
    ~TQuitWatch() { FDesktop.RemoveQuitEvent(FEvent); }
    TQuitWatch(const TQuitWatch&) = delete;
    TQuitWatch& operator=(const TQuitWatch&) = delete;

 private:
    HDesktop& FDesktop;
    TEvent& FEvent;
};

unsigned WaitForBox(HDesktop& desktop, TBoxMaker& maker, const std::string& caption, HWnd owner) {
    const auto wait = std::make_shared<HDialogWait>();
    wait->Done = desktop.Kernel().CreateEventA();
    HWnd box = 0;
    desktop.RunOnOwner([&] { box = maker.Make(caption, owner, wait); });
    if (box == 0) return 0;
    const TQuitWatch watch(desktop, *wait->Done);
    try {
        desktop.ShowWindow(box, SW_SHOWNORMAL);
    } catch (...) {
        // Somebody's patch.
        desktop.RunOnOwner([&] { desktop.DestroyWindow(box); });
        throw;
    }
    desktop.RunOnOwner([&] { desktop.SetActiveWindow(box); });
    wait->Done->WaitFor(WaitForever);
    return wait->Result;
}

}  // namespace

unsigned RunMessageBox(HDesktop& desktop, const std::string& text, const std::string& caption, HWnd owner,
                       unsigned flags) {
    desktop.Journal().Add(HEntry::Box, "box " + caption + ": " + text);
    // Errors of timers that fire under the boxes of earlier ones.
    if (StackRoom() < StackOfDialog) return 0;
    TBoxMaker maker(desktop, text, flags);
    if (!desktop.OnOwnerThread()) return WaitForBox(desktop, maker, caption, owner);
    return RunNativeDialog(desktop, maker.Make(caption, owner, nullptr));
}

}  // namespace rux
