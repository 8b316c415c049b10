// Windows that are no objects of the toolkit, driven as a script drives them: by messages and keys.
#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <map>
#include <tuple>

#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/native/HNativeCombo.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/headless/native/HNativeTree.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "rtl/CodePage.h"
#include "rtl/Exceptions.h"

namespace rux::test {

namespace {

using TSteps = std::vector<std::function<void()>>;
constexpr std::uint32_t Child = WS_CHILD | WS_VISIBLE;

class TNativeStage {
 public:
    TNativeStage() {
        SetAnsiCodePage(LoadCodePage(936));
        Desktop.SetErrorReport(
            [this](const std::exception& error) { Note(std::string("error ") + error.what()); });
    }
    void Note(const std::string& text) { FNotes += (FNotes.empty() ? "" : "; ") + text; }
    std::string Notes() { return std::exchange(FNotes, {}); }

    /// A dialog of 200 by 200 whose code notes what it is told.
    HWnd Dialog(HDialogProc proc = {}, HWnd owner = 0) {
        HDialogTraits traits;
        traits.Proc = [this, proc](HWnd dialog, unsigned message, WParam w, LParam l) {
            if (message == WM_COMMAND) Note(std::to_string(w & 0xFFFF) + "/" + std::to_string(w >> 16));
            if (message == HNativeWindow::WM_NOTIFY) {
                const auto& notice = *reinterpret_cast<const TTreeNotice*>(l);
                Note(std::to_string(w) + "/" + std::to_string(notice.Code) + " " +
                     std::to_string(notice.Old) + ">" + std::to_string(notice.New));
            }
            return proc && proc(dialog, message, w, l);
        };
        return CreateNativeDialog(Desktop, "Dialog", {0, 0, 200, 200}, owner, traits);
    }
    HWnd Shown(HWnd window) {
        Desktop.ShowWindow(window, SW_SHOWNORMAL);
        Desktop.SetActiveWindow(window);
        return window;
    }
    LResult Send(HWnd window, unsigned message, WParam w = 0, LParam l = 0) {
        return Desktop.SendMessageA(window, message, w, l);
    }
    LResult Send(HWnd window, unsigned message, WParam w, const char* text) {
        return Send(window, message, w, reinterpret_cast<LParam>(text));
    }
    void Click(HWnd window, TPoint point = {2, 2}) {
        Desktop.PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam(point));
        Desktop.PostMessageA(window, WM_LBUTTONUP, 0, MakePointParam(point));
    }
    void Key(std::uint8_t key) {
        Desktop.keybd_event(key, 0, 0, 0);
        Desktop.keybd_event(key, 0, 2, 0);
    }
    void Pump() {
        for (TMessage message; Desktop.PeekAny(message);) Desktop.DispatchMessage(message);
    }
    void PumpUntil(const std::function<bool()>& done) {
        for (; !done(); Pump()) Desktop.WaitMessage();
    }
    /// Each step when nothing else waits, in whatever loop runs by then.
    void Play(TSteps steps) {
        const auto timer = std::make_shared<unsigned>(0);
        *timer = Desktop.SetTimer(0, [this, timer, steps = std::move(steps)]() mutable {
            Desktop.KillTimer(*timer);
            const auto step = steps.front();
            steps.erase(steps.begin());
            if (!steps.empty()) Play(steps);
            step();
        });
    }
    std::vector<HWnd> Buttons(HWnd window) {
        std::vector<HWnd> found;
        Desktop.EnumChildWindows(window, [&](HWnd child) {
            if (Desktop.GetClassNameA(child) == "Button") found.push_back(child);
            return true;
        });
        return found;
    }

 private:
    std::string FNotes;

 public:
    TManualClock Clock;
    TPosixKernel Kernel{Clock, {}};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles Files;
    THeadlessPlatform Platform{Kernel, Clock, Sockets, Files};
    HDesktop& Desktop = Platform.Desktop();
};

/// A tree view of four rows.
class TTreeStage : public TNativeStage {
 public:
    HTreeItem Insert(const char* text, HTreeItem parent, HTreeItem after = TVI_LAST) {
        TTVInsert insert{parent, after, {}};
        insert.Item.Mask = TVIF_TEXT;
        insert.Item.Text = const_cast<char*>(text);
        return static_cast<HTreeItem>(Send(Tree, TVM_INSERTITEMA, 0, reinterpret_cast<LParam>(&insert)));
    }
    HTreeItem Next(WParam relation, HTreeItem item = 0) {
        return static_cast<HTreeItem>(Send(Tree, TVM_GETNEXTITEM, relation, static_cast<LParam>(item)));
    }
    std::string TextOf(HTreeItem item) {
        char text[8] = "?";
        TTVItem wanted{TVIF_TEXT, item, 0, 0, text, sizeof text, 0, 0, 0, 0};
        Send(Tree, TVM_GETITEMA, 0, reinterpret_cast<LParam>(&wanted));
        return text;
    }
    bool RectOf(HTreeItem item, TRect& rect, bool ofText = true) {
        std::memcpy(static_cast<void*>(&rect), &item, sizeof item);
        return Send(Tree, TVM_GETITEMRECT, ofText, reinterpret_cast<LParam>(&rect)) != 0;
    }
    /// The nodes in sight, from the top.
    std::string Sight() {
        std::map<int, std::string> rows;
        for (HTreeItem item = 1; item <= 20; ++item)
            if (TRect rect; RectOf(item, rect))
                rows[rect.Top] = TextOf(item) + (Next(TVGN_CARET) == item ? "*" : "");
        std::string text;
        for (const auto& [top, name] : rows) text += (text.empty() ? "" : " ") + name;
        return text;
    }
    LResult Act(std::string_view verb, HTreeItem item) {
        const std::tuple<std::string_view, unsigned, unsigned> rows[] = {
            {"expand", TVM_EXPAND, TVE_EXPAND},
            {"collapse", TVM_EXPAND, 1},
            {"toggle", TVM_EXPAND, 3},
            {"select", TVM_SELECTITEM, TVGN_CARET},
            {"see", TVM_ENSUREVISIBLE, 0}};
        for (const auto& [name, message, w] : rows)
            if (name == verb) return Send(Tree, message, w, static_cast<LParam>(item));
        TRect rect;
        if (!RectOf(item, rect)) return 0;
        const TPoint point{rect.Left + (verb == "box" ? -9 : 2), rect.Top + 8};
        if (verb == "dbl")
            Send(Tree, WM_LBUTTONDBLCLK, 0, MakePointParam(point));
        else
            Click(Tree, point);
        Pump();
        return 1;
    }

    const HWnd Parent = Shown(Dialog());
    const HWnd Tree = CreateNativeWindow(Desktop, "systreeview32", "", Child, Parent, {0, 0, 150, 64}, 9);
};

}  // namespace

TEST(NativeTree, NodesRowsAndSelection) {
    TTreeStage stage;
    const HTreeItem a = stage.Insert("A", TVI_ROOT), b = stage.Insert("B", 0), a1 = stage.Insert("A1", a);
    const HTreeItem a3 = stage.Insert("A3", a), a2 = stage.Insert("A2", a, a1), c = stage.Insert("C", 0, a3);
    const HTreeItem a0 = stage.Insert("A0", a, TVI_FIRST), a11 = stage.Insert("A11", a1);
    EXPECT_EQ(stage.Next(TVGN_NEXT, stage.Next(TVGN_CHILD, stage.Next(TVGN_ROOT))), a1);
    EXPECT_EQ(stage.Next(HNativeTree::TVGN_PARENT, a2), a);
    const std::map<std::string, HTreeItem> names{{"A", a},   {"B", b},   {"C", c},     {"A0", a0},
                                                 {"A1", a1}, {"A2", a2}, {"A11", a11}, {"none", 0}};
    const struct {
        const char *Verb, *Item, *Expected;
    } rows[] = {
        {"see", "B", "1 A B C"},
        {"expand", "B", "0 A B C"},
        {"toggle", "A", "1 A A0 A1 A2"},
        {"see", "C", "1 A2 A3 B C"},
        {"click", "A11", "0 A2 A3 B C"},
        {"toggle", "A", "1 A B C"},
        {"see", "A11", "1 A A0 A1 A11"},
        {"see", "A2", "1 A0 A1 A11 A2"},
        {"click", "A2", "1 A0 A1 A11 A2*; 9/-402 0>5"},
        {"click", "A2", "1 A0 A1 A11 A2*"},
        {"box", "A1", "1 A0 A1 A2* A3"},
        {"dbl", "A1", "1 A0 A1 A11 A2*"},
        {"select", "A11", "1 A0 A1 A11* A2; 9/-402 5>8"},
        {"collapse", "A", "1 A* B C; 9/-402 8>1"},
        {"collapse", "A", "1 A* B C"},
        {"select", "none", "1 A B C; 9/-402 1>0"},
        {"select", "A0", "1 A A0* A1 A11; 9/-402 0>7"},
    };
    for (const auto& row : rows) {
        std::string line = std::to_string(stage.Act(row.Verb, names.at(row.Item)));
        line += " " + stage.Sight();
        if (const std::string notes = stage.Notes(); !notes.empty()) line += "; " + notes;
        EXPECT_EQ(line, row.Expected) << row.Verb << " " << row.Item;
    }
    TRect text, line;
    ASSERT_TRUE(stage.RectOf(a11, text) && stage.RectOf(a11, line, false));
    EXPECT_EQ((TPoint{text.Left, text.Top}), (TPoint{57, 48}));
    EXPECT_EQ(line, (TRect{0, 48, 150, 64}));
    // Half a click chooses nothing, and waits for the other half.
    stage.Send(stage.Tree, WM_LBUTTONDOWN, 0, MakePointParam({60, 50}));
    EXPECT_EQ(stage.Next(TVGN_CARET), a0);
    stage.Send(stage.Tree, WM_LBUTTONUP, 0, MakePointParam({60, 50}));
    EXPECT_EQ(stage.Next(TVGN_CARET), a11);
}

TEST(NativeTree, TextsAndNumbersThatAreNone) {
    TTreeStage stage;
    const HTreeItem only = stage.Insert("only", TVI_ROOT);
    char buffer[] = "xxxxxxx";
    TTVItem item{TVIF_TEXT | HNativeTree::TVIF_CHILDREN, only, 0, 0, buffer, 3, 0, 0, 9, 0};
    const auto param = reinterpret_cast<LParam>(&item);
    EXPECT_EQ(stage.Send(stage.Tree, TVM_GETITEMA, 0, param), 1);
    EXPECT_EQ(std::string(buffer, 7), std::string("on\0xxxx", 7));
    EXPECT_EQ(item.Children, 0);
    item.TextMax = 0;
    item.Text = const_cast<char*>("new");
    stage.Send(stage.Tree, TVM_SETITEMA, 0, param);
    item.Text = nullptr;
    EXPECT_EQ(stage.Send(stage.Tree, TVM_GETITEMA, 0, param), 1);
    EXPECT_EQ(stage.TextOf(only), "new");
    for (const HTreeItem none : {HTreeItem{0}, only + 1, TVI_ROOT, ~HTreeItem{0}, HTreeItem{1} << 40}) {
        for (const char* verb : {"expand", "toggle", "see", "click", "dbl"})
            EXPECT_EQ(stage.Act(verb, none), 0) << verb << none;
        for (const WParam relation : {WParam{TVGN_NEXT}, WParam{TVGN_CHILD}, HNativeTree::TVGN_PARENT})
            EXPECT_EQ(stage.Next(relation, none), 0u);
        EXPECT_EQ(stage.TextOf(none), "?");
        item.Item = none;
        EXPECT_EQ(stage.Send(stage.Tree, TVM_SETITEMA, 0, param), 0);
        if (none != 0 && none != TVI_ROOT) {
            EXPECT_EQ(stage.Insert("x", none), 0u);
        }
    }
    EXPECT_EQ(stage.Act("select", only + 1), 0);
    for (const unsigned message : {TVM_INSERTITEMA, TVM_GETITEMA, TVM_SETITEMA, TVM_GETITEMRECT})
        EXPECT_EQ(stage.Send(stage.Tree, message), 0);
}

TEST(NativeTree, DeepAndFull) {
    TTreeStage stage;
    const HTreeItem root = stage.Insert("r", TVI_ROOT);
    HTreeItem deepest = root;
    for (int i = 0; i < 100'000; ++i) deepest = stage.Insert("n", deepest);
    TRect rect;
    EXPECT_FALSE(stage.RectOf(deepest, rect));
    EXPECT_EQ(stage.Act("select", deepest), 1);
    // Its text is in the client area, far as it may be indented.
    EXPECT_EQ(stage.Act("click", deepest), 1);
    EXPECT_EQ(stage.Next(TVGN_CARET), deepest);
    EXPECT_EQ(stage.Act("collapse", root), 1);
    EXPECT_EQ(stage.Sight(), "r*");
    while (stage.Insert("", root) != 0) {
    }
    EXPECT_EQ(stage.Send(stage.Tree, TVM_GETCOUNT), static_cast<LResult>(HTreeNodes::Limit));
}

TEST(NativeCombo, ItemsTextAndChoice) {
    TNativeStage stage;
    const HWnd parent = stage.Shown(stage.Dialog());
    using C = HNativeCombo;
    constexpr const char* no = nullptr;
    const std::tuple<unsigned, WParam, const char*> rows[] = {
        {C::CB_ADDSTRING, 0, "one"}, {C::CB_ADDSTRING, 0, "two"}, {C::CB_GETCOUNT, 0, no},
        {C::CB_GETLBTEXTLEN, 1, no}, {C::CB_GETLBTEXTLEN, 2, no}, {C::CB_SETCURSEL, 1, no},
        {WM_SETTEXT, 0, "set"},      {WM_CHAR, 'a', no},          {C::CB_SETCURSEL, 1, no},
        {WM_KEYDOWN, VK_DOWN, no},   {WM_KEYDOWN, 38, no},        {C::CB_SETCURSEL, 2, no},
        {C::CB_SETCURSEL, 0, no},    {C::CB_RESETCONTENT, 0, no}};
    // Each message's answer, the text and the choice then, and at last what the parent heard.
    const auto play = [&](std::uint32_t style) {
        const HWnd combo = CreateNativeWindow(stage.Desktop, "ComboBox", "", Child | style, parent, {}, 5);
        std::string line;
        for (const auto& [message, w, text] : rows) {
            line += std::to_string(stage.Send(combo, message, w, text)) + " ";
            line += stage.Desktop.GetWindowTextA(combo) + "/";
            line += std::to_string(stage.Send(combo, C::CB_GETCURSEL)) + ", ";
        }
        return line + stage.Notes();
    };
    EXPECT_EQ(play(2),
              "0 /-1, 1 /-1, 2 /-1, 3 /-1, -1 /-1, 1 two/1, 1 set/1, 0 seta/-1, 1 two/1, 0 two/1, 0 one/0, "
              "-1 /-1, 0 one/0, 0 /-1, 5/5; 5/1");
    EXPECT_EQ(play(C::CBS_DROPDOWNLIST),
              "0 /-1, 1 /-1, 2 /-1, 3 /-1, -1 /-1, 1 two/1, -1 two/1, 0 two/1, 1 two/1, 0 two/1, 0 one/0, "
              "-1 /-1, 0 one/0, 0 /-1, 5/1");
    const HWnd combo = CreateNativeWindow(stage.Desktop, "ComboBox", "", Child, parent, {});
    char text[] = "xxxxxx";
    stage.Send(combo, C::CB_ADDSTRING, 0, "one");
    EXPECT_EQ(stage.Send(combo, C::CB_GETLBTEXT, 1, text), C::CB_ERR);
    EXPECT_EQ(stage.Send(combo, C::CB_GETLBTEXT, 0, text), 3);
    EXPECT_EQ(std::string(text, 6), std::string("one\0xx", 6));
}

TEST(NativeDialog, TypingAndClickingInAModalDialog) {
    TNativeStage stage;
    HDesktop& desktop = stage.Desktop;
    const HWnd owner = stage.Shown(stage.Dialog());
    const auto react = [&](HWnd dialog, unsigned message, WParam w, LParam) {
        if (message == WM_CLOSE) stage.Note("close");
        if (message != WM_COMMAND) return false;
        if (w == 13) throw Exception("no");
        if (w == 14) EndNativeDialog(desktop, dialog, 77);
        return w == 12;
    };
    // A dialog with an edit and five buttons, played; then what it answered.
    const auto play = [&](const TSteps& steps) {
        const HWnd dialog = stage.Dialog(react, owner);
        CreateNativeWindow(desktop, "Static", "label", Child, dialog, {}, 9);
        CreateNativeWindow(desktop, "Edit", "", Child, dialog, {0, 0, 50, 20}, 10);
        for (unsigned id = 11; id <= 15; ++id)
            CreateNativeWindow(desktop, "Button", "", Child | (id == 11) | (id == 15 ? 3 : 0), dialog,
                               {0, 0, 50, 20}, id);
        stage.Play(steps);
        const unsigned result = RunNativeDialog(desktop, dialog);
        stage.Note((desktop.IsWindowEnabled(owner) ? "=" : "disabled=") + std::to_string(result));
        EXPECT_FALSE(desktop.IsWindow(dialog));
        return stage.Notes();
    };
    const auto child = [&](std::size_t i) { return stage.Buttons(desktop.GetActiveWindow())[i]; };
    const auto press = [&](std::size_t i) { return [&, i] { stage.Click(child(i)); }; };
    const auto key = [&](std::uint8_t k) { return [&, k] { stage.Key(k); }; };
    const auto text = [&] { stage.Note(desktop.GetWindowTextA(desktop.GetFocus())); };
    // The edit has the focus first; handled, failed and checking buttons do not end it, Enter presses the
    // default one.
    EXPECT_EQ(play({key('A'), key('B'), key(8), text, key(VK_RETURN)}),
              "10/768; 10/768; 10/768; a; 11/0; =11");
    EXPECT_EQ(play({press(1), press(2), press(4), press(3)}), "12/0; 13/0; error no; 15/0; 14/0; =77");
    EXPECT_EQ(play({press(1), key(VK_RETURN), press(0)}), "12/0; 12/0; 11/0; =11");
    EXPECT_EQ(play({key(VK_ESCAPE)}), "close; =2");
    EXPECT_EQ(play({[&] { desktop.DestroyWindow(desktop.GetActiveWindow()); }}), "=2");
    // One above the other: the inner one's owner is disabled, and enabled again.
    EXPECT_EQ(play({[&] {
                        const HWnd outer = desktop.GetActiveWindow();
                        const unsigned answer =
                            RunMessageBox(desktop, "text", "title", outer, MB_YESNOCANCEL);
                        stage.Note("answer " + std::to_string(answer));
                    },
                    key(VK_ESCAPE), key(VK_ESCAPE)}),
              "answer 2; close; =2");
    EXPECT_EQ(play({[&] { desktop.Quit(); }}), "=0");
}

TEST(NativeDialog, WithoutALoop) {
    TNativeStage stage;
    HDesktop& desktop = stage.Desktop;
    const auto react = [&](HWnd dialog, unsigned, WParam w, LParam) {
        return w == 4 && EndNativeDialog(desktop, dialog, 1);
    };
    for (const unsigned id : {3u, 4u}) {
        const HWnd dialog = stage.Shown(stage.Dialog(react));
        stage.Click(CreateNativeWindow(desktop, "Button", "", Child, dialog, {0, 0, 50, 20}, id));
        stage.Pump();
        EXPECT_EQ(desktop.IsWindow(dialog), id == 3);
        stage.Send(dialog, WM_CLOSE);
        EXPECT_FALSE(desktop.IsWindow(dialog) || EndNativeDialog(desktop, dialog, 1));
        EXPECT_EQ(RunNativeDialog(desktop, dialog), 0u);
        EXPECT_EQ(CreateNativeWindow(desktop, "Edit", "", Child, dialog, {}), 0u);
    }
    EXPECT_EQ(CreateNativeWindow(desktop, "Unknown", "", 0, 0, {}), 0u);
}

TEST(MessageBox, ButtonsAndWaysToCloseIt) {
    TNativeStage stage;
    HDesktop& desktop = stage.Desktop;
    const HWnd owner = stage.Shown(stage.Dialog());
    std::string all;
    const auto ask = [&](unsigned flags, const std::function<void(HWnd)>& way) {
        HWnd box = 0;
        const auto act = [&] {
            box = desktop.GetActiveWindow();
            if (desktop.IsWindowEnabled(owner)) all += " owner enabled";
            way(box);
        };
        stage.Play({act, [&] { EndNativeDialog(desktop, box, 99); }});
        const unsigned answer = RunMessageBox(desktop, "text", "title", owner, flags);
        stage.Pump();
        if (!desktop.IsWindowEnabled(owner) || desktop.IsWindow(box)) all += " owner disabled";
        all += " " + (answer == 99 ? "open" : std::to_string(answer));
    };
    for (const unsigned flags : {0u, 1u, 2u, 3u, 4u, 5u, MB_YESNO | MB_DEFBUTTON2 | 0x30u}) {
        std::size_t count = 0;
        all += std::to_string(flags) + " ";
        ask(flags, [&](HWnd box) {
            const std::vector<HWnd> buttons = stage.Buttons(box);
            count = buttons.size();
            for (const HWnd button : buttons) all += desktop.GetWindowTextA(button);
            stage.Key(VK_RETURN);
        });
        ask(flags, [&](HWnd) { stage.Key(VK_ESCAPE); });
        ask(flags, [&](HWnd box) { desktop.PostMessageA(box, WM_CLOSE, 0, 0); });
        all += " |";
        for (std::size_t i = 0; i < count; ++i)
            ask(flags, [&](HWnd box) { stage.Click(stage.Buttons(box)[i]); });
        all += "\n";
    }
    EXPECT_EQ(AnsiToUtf8(all),
              "0 确定 1 1 1 | 1\n"
              "1 确定取消 1 2 2 | 1 2\n"
              "2 中止(&A)重试(&R)忽略(&I) 3 open open | 3 4 5\n"
              "3 是(&Y)否(&N)取消 6 2 2 | 6 7 2\n"
              "4 是(&Y)否(&N) 6 open open | 6 7\n"
              "5 重试(&R)取消 4 2 2 | 4 2\n"
              "308 是(&Y)否(&N) 7 open open | 6 7\n");
}

TEST(MessageBox, FollowsItsText) {
    TNativeStage stage;
    std::string sizes;
    for (const std::string& text : {std::string("a"), std::string(80, 'a'), std::string(5000, 'a'),
                                    std::string("1\n2\n3\n4\n5\n6"), std::string(100'000, '\n')}) {
        stage.Play({[&] {
            TRect box;
            stage.Desktop.GetWindowRect(stage.Desktop.GetActiveWindow(), box);
            EXPECT_TRUE(box.Left + box.Right == 1280 && std::abs(box.Top + box.Bottom - 1024) < 2 &&
                        box.Top >= 0);
            sizes += box.Width() < 300 ? "narrow " : box.Width() < 690 ? "middle " : "too wide ";
            sizes += box.Height() < 150 ? "low, " : box.Height() < 260 ? "higher, " : "high, ";
            stage.Key(VK_ESCAPE);
        }});
        RunMessageBox(stage.Desktop, text, "title", 0);
    }
    EXPECT_EQ(sizes, "narrow low, middle low, middle high, narrow higher, narrow high, ");
}

/// The export's jump leads to whoever patched it.
void PatchShowWindow(HCodeSpace& code, const std::function<void()>& heard) {
    const TCodeAddress jump = code.GetProcAddress("user32.dll", "ShowWindow") + 8;
    std::uint32_t real = 0, protection = 0;
    code.ReadMemory(jump, &real, 4);
    code.VirtualProtect(jump, 4, 0x40, protection);
    const TCodeAddress patch = code.MakeFunction(TCallKind::StdCall, 2, [&code, real, heard](auto arguments) {
        heard();
        return code.Call(TCallKind::StdCall, real, arguments);
    });
    code.WriteMemory(jump, &patch, 4);
}

TEST(MessageBox, OfAnotherThread) {
    const std::pair<std::string, unsigned> rows[] = {{"enter", 1}, {"close", 2}, {"quit", 0}, {"late", 0}};
    for (const auto& [way, expected] : rows) {
        TNativeStage stage;
        HDesktop& desktop = stage.Desktop;
        const HWnd owner = stage.Shown(stage.Dialog());
        std::atomic<std::uintptr_t> caller{0}, showing{0};
        PatchShowWindow(stage.Platform.CodeSpace(), [&] { showing = stage.Kernel.GetCurrentThreadId(); });
        unsigned answer = 9;
        std::atomic<bool> done{false};
        if (way == "late") desktop.Quit();
        const auto thread = stage.Kernel.StartThread([&] {
            caller = stage.Kernel.GetCurrentThreadId();
            answer = RunMessageBox(desktop, "text", "title", owner, MB_OKCANCEL);
            done = true;
            desktop.PostMessageA(owner, WM_NULL, 0, 0);
        });
        if (way != "late") {
            stage.PumpUntil([&] { return desktop.GetActiveWindow() != owner; });
            EXPECT_TRUE(desktop.IsWindowEnabled(owner));
            EXPECT_EQ(showing, caller);
        }
        if (way == "enter") stage.Key(VK_RETURN);
        if (way == "close") desktop.PostMessageA(desktop.GetActiveWindow(), WM_CLOSE, 0, 0);
        if (way == "quit") desktop.Quit();
        stage.PumpUntil([&] { return done || desktop.Quitting(); });
        thread->WaitFor(WaitForever);
        EXPECT_EQ(answer, expected) << way;
    }
}

}  // namespace rux::test
