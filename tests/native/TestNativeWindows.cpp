// Windows that are no objects of the toolkit, driven as a script drives them: by messages and keys.
#include <atomic>
#include <cstring>

#include "Engine/Hooks/RUXPatchedExport.h"
#include "NativeStage.h"
#include "platform/headless/native/HMessageBox.h"
#include "platform/headless/native/HNativeCombo.h"
#include "support/EngineFixture.h"

namespace rux::test {

namespace {

using TSteps = std::vector<std::function<void()>>;

class TNativeStage : protected TNotes, public TEngineTest {
 protected:
    TNativeStage() {
        Windows.SetErrorReport(
            [this](const std::exception& error) { Note(std::string("error ") + error.what()); });
    }
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
        return CreateNativeDialog(Windows, "Dialog", {0, 0, 200, 200}, owner, traits);
    }
    HWnd Shown(HWnd window) {
        Windows.ShowWindow(window, SW_SHOWNORMAL);
        Windows.SetActiveWindow(window);
        return window;
    }
    HWnd Add(HWnd dialog, const char* className, unsigned id = 0, std::uint32_t style = 0) {
        return CreateNativeWindow(Windows, className, "", Child | style, dialog, {0, 0, 50, 20}, id);
    }
    LResult Send(HWnd window, unsigned message, WParam w = 0, LParam l = 0) {
        return Windows.SendMessageA(window, message, w, l);
    }
    void Click(HWnd window, TPoint point = {2, 2}) {
        Windows.PostMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam(point));
        Windows.PostMessageA(window, WM_LBUTTONUP, 0, MakePointParam(point));
    }
    void Key(std::uint8_t key) {
        for (const unsigned flags : {0u, 2u}) Windows.keybd_event(key, 0, flags, 0);
    }
    void Pump() {
        for (TMessage message; Windows.PeekAny(message);) Windows.DispatchMessage(message);
    }
    /// Each step when nothing else waits, in whatever loop runs by then.
    void Play(TSteps steps) {
        const auto timer = std::make_shared<unsigned>(0);
        *timer = Windows.SetTimer(0, [this, timer, steps = std::move(steps)]() mutable {
            Windows.KillTimer(*timer);
            const auto step = steps.front();
            steps.erase(steps.begin());
            if (!steps.empty()) Play(steps);
            step();
        });
    }
    std::vector<HWnd> Buttons(HWnd window) {
        std::vector<HWnd> found;
        Windows.EnumChildWindows(window, [&](HWnd child) {
            if (Windows.GetClassNameA(child) == "Button") found.push_back(child);
            return true;
        });
        return found;
    }

    HDesktop& Windows = Desktop.Desktop();
};

/// A tree view of four rows.
class TNativeTree : public TNativeStage {
 protected:
    HTreeItem Insert(const char* text, HTreeItem parent, HTreeItem after = TVI_LAST) {
        return InsertNode(Windows, Tree, parent, text, after);
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
        const auto param = static_cast<LParam>(item);
        if (verb == "select") return Send(Tree, TVM_SELECTITEM, TVGN_CARET, param);
        if (verb == "see") return Send(Tree, TVM_ENSUREVISIBLE, 0, param);
        const WParam how = verb == "expand" ? TVE_EXPAND : verb == "collapse" ? 1 : verb == "toggle" ? 3 : 0;
        if (how) return Send(Tree, TVM_EXPAND, how, param);
        TRect rect;
        if (!RectOf(item, rect)) return 0;
        const TPoint point{rect.Left + (verb == "box" ? -9 : 2), rect.Top + 8};
        if (verb == "dbl") Send(Tree, WM_LBUTTONDBLCLK, 0, MakePointParam(point));
        if (verb != "dbl") Click(Tree, point);
        Pump();
        return 1;
    }

    const HWnd Parent = Shown(Dialog());
    const HWnd Tree = CreateNativeWindow(Windows, "systreeview32", "", Child, Parent, {0, 0, 150, 64}, 9);
};

}  // namespace

TEST_F(TNativeTree, NodesRowsAndSelection) {
    // Each in its place, whatever the order in which they are made.
    const HTreeItem a = Insert("A", TVI_ROOT), b = Insert("B", 0), a1 = Insert("A1", a);
    const HTreeItem a3 = Insert("A3", a), a2 = Insert("A2", a, a1), c = Insert("C", 0, a3);
    const HTreeItem a0 = Insert("A0", a, TVI_FIRST), a11 = Insert("A11", a1);
    const std::map<std::string, HTreeItem> names{{"A", a},   {"B", b},   {"C", c},     {"A0", a0},
                                                 {"A1", a1}, {"A2", a2}, {"A11", a11}, {"none", 0}};
    EXPECT_EQ(Next(TVGN_NEXT, Next(TVGN_CHILD, Next(TVGN_ROOT))), a1);
    EXPECT_EQ(Next(HNativeTree::TVGN_PARENT, a2), a);
    // What the parent is told, what the tree answers and what is then in sight.
    std::istringstream steps(
        "see B expand B toggle A see C click A11 toggle A see A11 see A2 click A2 click A2 box A1 dbl A1 "
        "select A11 collapse A collapse A select none select A0");
    for (std::string verb, name; steps >> verb >> name;) {
        const LResult answer = Act(verb, names.at(name));
        Note(std::to_string(answer) + " " + Sight());
    }
    EXPECT_EQ(Notes(),
              "1 A B C; 0 A B C; 1 A A0 A1 A2; 1 A2 A3 B C; 0 A2 A3 B C; 1 A B C; 1 A A0 A1 A11; "
              "1 A0 A1 A11 A2; 9/-402 0>7; 9/-402 7>5; 1 A0 A1 A11 A2*; 1 A0 A1 A11 A2*; 1 A0 A1 A2* A3; "
              "1 A0 A1 A11 A2*; 9/-402 5>8; 1 A0 A1 A11* A2; 9/-402 8>1; 1 A* B C; 1 A* B C; "
              "9/-402 1>0; 1 A B C; 9/-402 0>7; 1 A A0* A1 A11");
    TRect text, line;
    ASSERT_TRUE(RectOf(a11, text) && RectOf(a11, line, false));
    EXPECT_EQ((TPoint{text.Left, text.Top}), (TPoint{57, 48}));
    EXPECT_EQ(line, (TRect{0, 48, 150, 64}));
    // Half a click chooses nothing, and waits for the other half.
    Send(Tree, WM_LBUTTONDOWN, 0, MakePointParam({60, 50}));
    EXPECT_EQ(Next(TVGN_CARET), a0);
    Send(Tree, WM_LBUTTONUP, 0, MakePointParam({60, 50}));
    EXPECT_EQ(Next(TVGN_CARET), a11);
}

TEST_F(TNativeTree, TextsAndNumbersThatAreNone) {
    const HTreeItem only = Insert("only", TVI_ROOT);
    char buffer[] = "xxxxxxx";
    TTVItem item{TVIF_TEXT | HNativeTree::TVIF_CHILDREN, only, 0, 0, buffer, 3, 0, 0, 9, 0};
    const auto param = reinterpret_cast<LParam>(&item);
    EXPECT_EQ(Send(Tree, TVM_GETITEMA, 0, param), 1);
    EXPECT_EQ(std::string(buffer, 7) + std::to_string(item.Children), std::string("on\0xxxx0", 8));
    item.TextMax = 0;
    Send(Tree, TVM_SETITEMA, 0, param);
    item.Text = nullptr;
    EXPECT_EQ(Send(Tree, TVM_GETITEMA, 0, param), 1);
    EXPECT_EQ(TextOf(only), "on");
    const WParam relations[] = {TVGN_NEXT, TVGN_CHILD, HNativeTree::TVGN_PARENT};
    for (const HTreeItem none : {HTreeItem{0}, only + 1, TVI_ROOT, ~HTreeItem{0}, HTreeItem{1} << 40}) {
        for (const char* verb : {"expand", "toggle", "see", "click", "dbl"})
            EXPECT_EQ(Act(verb, none), 0) << verb << none;
        for (const WParam relation : relations) EXPECT_EQ(Next(relation, none), 0u);
        EXPECT_EQ(TextOf(none), "?");
        item.Item = none;
        EXPECT_EQ(Send(Tree, TVM_SETITEMA, 0, param), 0);
        EXPECT_EQ(none != 0 && none != TVI_ROOT && Insert("x", none) != 0, false);
    }
    EXPECT_EQ(Act("select", only + 1), 0);
    for (const unsigned message : {TVM_INSERTITEMA, TVM_GETITEMA, TVM_SETITEMA, TVM_GETITEMRECT})
        EXPECT_EQ(Send(Tree, message), 0);
}

TEST_F(TNativeTree, DeepAndFull) {
    HTreeItem root = Insert("r", TVI_ROOT), deepest = root;
    for (int i = 0; i < 100'000; ++i) deepest = Insert("n", deepest);
    TRect rect;
    EXPECT_FALSE(RectOf(deepest, rect));
    // Its text comes into the client area, far as it may be indented.
    EXPECT_EQ(Act("select", deepest) + Act("click", deepest), 2);
    EXPECT_EQ(Next(TVGN_CARET), deepest);
    EXPECT_EQ(Act("collapse", root), 1);
    EXPECT_EQ(Sight(), "r*");
    while (Insert("", root) != 0) {
    }
    EXPECT_EQ(Send(Tree, TVM_GETCOUNT), static_cast<LResult>(HTreeNodes::Limit));
}

TEST_F(TNativeStage, ComboItemsTextAndChoice) {
    using C = HNativeCombo;
    const HWnd parent = Shown(Dialog());
    constexpr const char* no = nullptr;
    char buffer[] = "xxxxxx";
    const std::tuple<unsigned, WParam, const char*> rows[] = {
        {C::CB_ADDSTRING, 0, "one"}, {C::CB_ADDSTRING, 0, "two"},  {C::CB_GETCOUNT, 0, no},
        {C::CB_GETLBTEXTLEN, 1, no}, {C::CB_GETLBTEXTLEN, 2, no},  {C::CB_SETCURSEL, 1, no},
        {WM_SETTEXT, 0, "set"},      {WM_CHAR, 'a', no},           {C::CB_SETCURSEL, 1, no},
        {WM_KEYDOWN, VK_DOWN, no},   {WM_KEYDOWN, 38, no},         {C::CB_SETCURSEL, 2, no},
        {C::CB_SETCURSEL, 0, no},    {C::CB_GETLBTEXT, 2, buffer}, {C::CB_GETLBTEXT, 0, buffer},
        {C::CB_RESETCONTENT, 0, no}};
    // Each message's answer, the text and the choice then, and at last what the parent heard.
    const auto play = [&](std::uint32_t style) {
        const HWnd combo = Add(parent, "ComboBox", 5, style);
        std::string line;
        for (const auto& [message, w, text] : rows) {
            line += std::to_string(Send(combo, message, w, reinterpret_cast<LParam>(text))) + " ";
            line += Windows.GetWindowTextA(combo) + "/";
            line += std::to_string(Send(combo, C::CB_GETCURSEL)) + ", ";
        }
        return line + Notes();
    };
    EXPECT_EQ(play(2),
              "0 /-1, 1 /-1, 2 /-1, 3 /-1, -1 /-1, 1 two/1, 1 set/1, 0 seta/-1, 1 two/1, 0 two/1, 0 one/0, "
              "-1 /-1, 0 one/0, -1 one/0, 3 one/0, 0 /-1, 5/5; 5/1");
    EXPECT_EQ(play(C::CBS_DROPDOWNLIST),
              "0 /-1, 1 /-1, 2 /-1, 3 /-1, -1 /-1, 1 two/1, -1 two/1, 0 two/1, 1 two/1, 0 two/1, 0 one/0, "
              "-1 /-1, 0 one/0, -1 one/0, 3 one/0, 0 /-1, 5/1");
    EXPECT_EQ(std::string(buffer, 6), std::string("one\0xx", 6));
}

TEST_F(TNativeStage, DialogTypingAndClickingInAModalDialog) {
    const HWnd owner = Shown(Dialog());
    const auto react = [&](HWnd dialog, unsigned message, WParam w, LParam) {
        if (message == WM_CLOSE) Note("close");
        if (message != WM_COMMAND) return false;
        if (w == 13) throw Exception("no");
        if (w == 14) EndNativeDialog(Windows, dialog, 77);
        return w == 12;
    };
    // A dialog with an edit and five buttons, played; then what it answered.
    const auto play = [&](const TSteps& steps) {
        const HWnd dialog = Dialog(react, owner);
        Add(dialog, "Static", 9);
        Add(dialog, "Edit", 10);
        for (unsigned id = 11; id <= 15; ++id) Add(dialog, "Button", id, id == 11 ? 1 : id == 15 ? 3 : 0);
        Play(steps);
        const unsigned result = RunNativeDialog(Windows, dialog);
        Note(Windows.IsWindowEnabled(owner) && !Windows.IsWindow(dialog) ? "=" : "left=");
        return Notes() + std::to_string(result);
    };
    const auto press = [&](std::size_t i) {
        return [&, i] { Click(Buttons(Windows.GetActiveWindow())[i]); };
    };
    const auto key = [&](std::uint8_t k) { return [&, k] { Key(k); }; };
    const auto text = [&] { Note(Windows.GetWindowTextA(Windows.GetFocus())); };
    // The edit has the focus first; handled, failed and checking buttons do not end it, Enter presses the
    // default one.
    EXPECT_EQ(play({key('A'), key('B'), key(8), text, key(VK_RETURN)}),
              "10/768; 10/768; 10/768; a; 11/0; =11");
    EXPECT_EQ(play({press(1), press(2), press(4), press(3)}), "12/0; 13/0; error no; 15/0; 14/0; =77");
    EXPECT_EQ(play({press(1), key(VK_RETURN), press(0)}), "12/0; 12/0; 11/0; =11");
    EXPECT_EQ(play({key(VK_ESCAPE)}), "close; =2");
    EXPECT_EQ(play({[&] { Windows.DestroyWindow(Windows.GetActiveWindow()); }}), "=2");
    // One above the other: the inner one's owner is disabled, and enabled again.
    const auto ask = [&] {
        const HWnd outer = Windows.GetActiveWindow();
        Note("answer " + std::to_string(RunMessageBox(Windows, "text", "title", outer, MB_YESNOCANCEL)));
    };
    EXPECT_EQ(play({ask, key(VK_ESCAPE), key(VK_ESCAPE)}), "answer 2; close; =2");
    EXPECT_EQ(play({[&] { Windows.Quit(); }}), "=0");
}

TEST_F(TNativeStage, DialogWithoutALoop) {
    const auto react = [&](HWnd dialog, auto, auto w, auto) {
        return w == 4 && EndNativeDialog(Windows, dialog, 1);
    };
    for (const unsigned id : {3u, 4u}) {
        const HWnd dialog = Shown(Dialog(react));
        Click(Add(dialog, "Button", id));
        Pump();
        EXPECT_EQ(Windows.IsWindow(dialog), id == 3);
        Send(dialog, WM_CLOSE);
        EXPECT_FALSE(Windows.IsWindow(dialog) || EndNativeDialog(Windows, dialog, 1));
        EXPECT_EQ(RunNativeDialog(Windows, dialog), 0u);
        EXPECT_EQ(Add(dialog, "Edit"), 0u);
    }
    EXPECT_EQ(CreateNativeWindow(Windows, "Unknown", "", 0, 0, {}), 0u);
}

TEST_F(TNativeStage, MessageBoxButtonsAndWaysToCloseIt) {
    const HWnd owner = Shown(Dialog());
    std::string all;
    const auto ask = [&](unsigned flags, const std::function<void(HWnd)>& way) {
        HWnd box = 0;
        const auto act = [&] {
            box = Windows.GetActiveWindow();
            if (Windows.IsWindowEnabled(owner)) all += " owner enabled";
            way(box);
        };
        Play({act, [&] { EndNativeDialog(Windows, box, 99); }});
        const unsigned answer = RunMessageBox(Windows, "text", "title", owner, flags);
        Pump();
        if (!Windows.IsWindowEnabled(owner) || Windows.IsWindow(box)) all += " owner disabled";
        all += " " + (answer == 99 ? "open" : std::to_string(answer));
    };
    for (const unsigned flags : {0u, 1u, 2u, 3u, 4u, 5u, MB_YESNO | MB_DEFBUTTON2 | 0x30u}) {
        std::size_t count = 0;
        all += std::to_string(flags) + " ";
        ask(flags, [&](HWnd box) {
            for (const HWnd button : Buttons(box)) all += Windows.GetWindowTextA(button);
            count = Buttons(box).size();
            Key(VK_RETURN);
        });
        ask(flags, [&](HWnd) { Key(VK_ESCAPE); });
        ask(flags, [&](HWnd box) { Windows.PostMessageA(box, WM_CLOSE, 0, 0); });
        all += " |";
        for (std::size_t i = 0; i < count; ++i) ask(flags, [&](HWnd box) { Click(Buttons(box)[i]); });
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

TEST_F(TNativeStage, MessageBoxFollowsItsText) {
    const auto look = [&] {
        TRect box;
        Windows.GetWindowRect(Windows.GetActiveWindow(), box);
        EXPECT_TRUE(box.Left + box.Right == 1280 && std::abs(box.Top + box.Bottom - 1024) < 2 &&
                    box.Top >= 0);
        Note(box.Width() < 300 ? "narrow" : box.Width() < 690 ? "middle" : "too wide");
        Note(box.Height() < 150 ? "low" : box.Height() < 260 ? "higher" : "high", " ");
        Key(VK_ESCAPE);
    };
    for (const std::string& text : {std::string("a"), std::string(80, 'a'), std::string(5000, 'a'),
                                    std::string("1\n2\n3\n4\n5\n6"), std::string(100'000, '\n')}) {
        Play({look});
        RunMessageBox(Windows, text, "title", 0);
    }
    EXPECT_EQ(Notes(), "narrow low; middle low; middle high; narrow higher; narrow high");
}

TEST_F(TNativeStage, MessageBoxOfAnotherThread) {
    const HWnd owner = Shown(Dialog());
    std::atomic<std::uintptr_t> caller{0}, showing{0};
    TPatchedExport patch(Desktop.CodeSpace(), TCallKind::StdCall);
    ASSERT_TRUE(patch.Install("user32.dll", "ShowWindow", 2, [&](auto arguments) {
        showing = Kernel.GetCurrentThreadId();
        return patch.CallOriginal(arguments);
    }));
    // Nothing is shown any more once the application has ended.
    const std::pair<std::string, unsigned> rows[] = {{"enter", 1}, {"close", 2}, {"quit", 0}, {"late", 0}};
    for (const auto& [way, expected] : rows) {
        unsigned answer = 9;
        std::atomic<bool> done{false};
        Windows.SetActiveWindow(owner);
        const auto thread = Kernel.StartThread([&] {
            caller = Kernel.GetCurrentThreadId();
            answer = RunMessageBox(Windows, "text", "title", owner, MB_OKCANCEL);
            done = true;
            Windows.PostMessageA(owner, WM_NULL, 0, 0);
        });
        if (way != "late") {
            for (; Windows.GetActiveWindow() == owner; Pump()) Windows.WaitMessage();
            EXPECT_TRUE(Windows.IsWindowEnabled(owner) && showing == caller);
        }
        if (way == "enter") Key(VK_RETURN);
        if (way == "close") Windows.PostMessageA(Windows.GetActiveWindow(), WM_CLOSE, 0, 0);
        if (way == "quit") Windows.Quit();
        for (; !done && !Windows.Quitting(); Pump()) Windows.WaitMessage();
        thread->WaitFor(WaitForever);
        EXPECT_EQ(answer, expected) << way;
    }
}

}  // namespace rux::test
