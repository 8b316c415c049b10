// Windows and messages, as every platform has them.
#include "WindowContract.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

/// Notes a window's messages of its class's own, and leaves the others to the procedure before.
class TListener {
 public:
    using TAnswer = std::function<LResult(unsigned number, WParam wParam)>;
    TListener(TWindowService& windows, HWnd window, std::string& notes, TAnswer answer)
        : FWindows(windows), FWindow(window), FPrevious(windows.GetWindowProc(window)) {
        FInstance =
            windows.MakeObjectInstance([this, &notes, answer](HWnd at, unsigned n, WParam w, LParam l) {
                if (n < WM_USER) return FWindows.CallWindowProcA(FPrevious, at, n, w, l);
                notes += std::to_string(n - WM_USER) + ":" + std::to_string(w) + " ";
                return answer(n - WM_USER, w);
            });
        EXPECT_EQ(windows.SetWindowProc(window, FInstance), FPrevious);
        EXPECT_EQ(windows.GetWindowProc(window), FInstance);
    }
    ~TListener() {
        EXPECT_EQ(FWindows.SetWindowProc(FWindow, FPrevious), FInstance);
        FWindows.FreeObjectInstance(FInstance);
    }

 private:
    TWindowService& FWindows;
    const HWnd FWindow;
    const TWndProc FPrevious;
    TWndProc FInstance = 0;
};

constexpr HWnd Nothing[] = {0, 0x7FFFFFFE};

}  // namespace

TEST_P(WindowContract, MessagesAreSentPostedAndTakenBack) {
    const HWnd window = Make({"Plain", ""}), other = Make({"Plain", ""});
    std::string notes;
    const TListener listener(Windows, window, notes, [&](unsigned number, WParam w) {
        if (number == 9) Windows.PostMessageA(window, WM_USER + 8, w, 0);
        return static_cast<LResult>(w + 1);
    });
    for (const WParam w : {1, 2, 3, 4, 5})
        EXPECT_TRUE(Windows.PostMessageA(window, WM_USER + 10 + w % 3, w, 0));
    EXPECT_EQ(Windows.SendMessageA(window, WM_USER + 9, 41, 0), 42);
    EXPECT_EQ(notes, "9:41 ");
    // The first within the range, of that window and those below it.
    TMessage taken;
    EXPECT_TRUE(Windows.PostMessageA(other, WM_USER + 11, 7, 0));
    ASSERT_TRUE(Windows.PeekMessageA(taken, window, WM_USER + 11, WM_USER + 12));
    EXPECT_TRUE(taken.Window == window && taken.Number == WM_USER + 11 && taken.WParameter == 1);
    ASSERT_TRUE(Windows.PeekMessageA(taken, window, WM_USER + 12, WM_USER + 12));
    EXPECT_FALSE(Windows.PeekMessageA(taken, window, WM_USER + 13, WM_USER + 99));
    EXPECT_EQ(taken.WParameter, 2u);
    Stage->Pump();
    EXPECT_EQ(notes, "9:41 10:3 11:4 12:5 8:41 ");
    const HWnd child = Make({"Static", "", Child, window});
    Windows.PostMessageA(child, WM_USER + 20, 0, 0);
    ASSERT_TRUE(Windows.PeekMessageA(taken, window, WM_USER + 20, WM_USER + 20));
    EXPECT_EQ(taken.Window, child);
    Windows.PostMessageA(window, WM_USER + 5, 5, 0);
    for (const HWnd none : Nothing)
        EXPECT_FALSE(Windows.PostMessageA(none, WM_USER, 0, 0) || Windows.SendMessageA(none, WM_USER, 0, 0) ||
                     Windows.PeekMessageA(taken, none, 0, ~0u) || Windows.PeekMessageA(taken, window, 0, 0));
    Stage->Pump();
    EXPECT_EQ(notes.substr(notes.size() - 4), "5:5 ");
    const unsigned registered = Windows.RegisterWindowMessageA("rux.contract");
    EXPECT_GE(registered, static_cast<unsigned>(WM_REGISTERED_FIRST));
    EXPECT_EQ(registered, Windows.RegisterWindowMessageA("RUX.Contract"));
    EXPECT_NE(registered, Windows.RegisterWindowMessageA("rux.contract2"));
}

TEST_P(WindowContract, AnotherThreadsMessageWaitsForTheOwnersLoop) {
    const HWnd window = Make({"Plain", ""});
    const std::thread::id owner = std::this_thread::get_id();
    std::string notes;
    const TListener listener(Windows, window, notes, [&](unsigned, WParam w) {
        return static_cast<LResult>(std::this_thread::get_id() == owner ? w + 1 : 0);
    });
    LResult answers = 0;
    RunBeside([&] {
        for (WParam w = 1; w <= 3; ++w) answers = answers * 10 + Windows.SendMessageA(window, WM_USER, w, 0);
    });
    EXPECT_EQ(answers, 234);
    EXPECT_EQ(notes, "0:1 0:2 0:3 ");
}

TEST_P(WindowContract, ProceduresStackUpAndErrorsStopAtThem) {
    const HWnd window = Make({"Edit", "before"});
    std::string notes;
    const TWndProc original = Windows.GetWindowProc(window);
    {
        const TListener listener(Windows, window, notes, [](unsigned, WParam w) { return LResult(2 * w); });
        {
            const TListener inner(Windows, window, notes, [](unsigned number, WParam) -> LResult {
                if (number == 1) throw EAbort("stop");
                if (number == 2) throw 3;
                return -1;
            });
            for (const unsigned number : {1u, 2u, 3u})
                EXPECT_EQ(Windows.SendMessageA(window, WM_USER + number, 1, 0), number == 3 ? -1 : 0);
            Windows.SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LParam>("after"));
        }
        EXPECT_EQ(Windows.SendMessageA(window, WM_USER, 21, 0), 42);
    }
    EXPECT_EQ(Windows.GetWindowProc(window), original);
    EXPECT_EQ(Windows.GetWindowTextA(window) + " " + notes, "after 1:1 2:1 3:1 0:21 ");
    ASSERT_EQ(Stage->Errors.size(), 2u);
    EXPECT_EQ(Stage->Errors.front(), "stop");
    for (const HWnd none : Nothing)
        EXPECT_EQ(Windows.GetWindowProc(none) + Windows.SetWindowProc(none, original), 0u);
    // One may free itself while it runs.
    TWndProc self = 0;
    self = Windows.MakeObjectInstance([&](HWnd at, unsigned number, WParam w, LParam l) {
        Windows.SetWindowProc(at, original);
        Windows.FreeObjectInstance(self);
        return Windows.CallWindowProcA(original, at, number, w, l);
    });
    Windows.SetWindowProc(window, self);
    EXPECT_EQ(Windows.SendMessageA(window, WM_GETTEXTLENGTH, 0, 0), 5);
    EXPECT_EQ(Windows.GetWindowProc(window), original);
}

TEST_P(WindowContract, MessageBoxes) {
    const struct {
        unsigned Flags;
        std::size_t Buttons;
        /// What closing it answers; 0 where it stays.
        unsigned Closed;
    } rows[] = {{0, 1, 1}, {1, 2, 2}, {2, 3, 0}, {3, 3, 2}, {4, 2, 0}, {5, 2, 2}};
    const HWnd owner = Make({"Plain", ""});
    Stage->Show(owner, SW_SHOWNORMAL);
    std::string notes;
    const TListener listener(Windows, owner, notes, [](unsigned, WParam) { return 0; });
    for (const auto& row : rows) {
        std::vector<HWnd> buttons;
        HWnd box = 0;
        bool text = false, ownerDisabled = false, stayed = false, ended = false;
        // Timers and messages are served in the box's own loop.
        const auto press = [&] {
            ended = true;
            stayed = Windows.IsWindow(box);
            Windows.PostMessageA(buttons.front(), WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam({3, 3}));
            Windows.PostMessageA(buttons.front(), WM_LBUTTONUP, 0, MakePointParam({3, 3}));
        };
        Stage->Later([&] {
            box = DialogOf("Contract");
            for (const HWnd child : ChildrenOf(box)) {
                if (Windows.GetClassNameA(child) == "Button") buttons.push_back(child);
                if (Windows.GetClassNameA(child) == "Static")
                    text = text || Windows.GetWindowTextA(child) == "What to do?";
            }
            ownerDisabled = !Windows.IsWindowEnabled(owner);
            Windows.PostMessageA(owner, WM_USER, row.Flags, 0);
            Windows.PostMessageA(box, WM_CLOSE, 0, 0);
            Stage->Later(press);
        });
        const unsigned answer = Stage->RunMessageBox("What to do?", "Contract", owner, row.Flags);
        EXPECT_EQ(std::exchange(notes, ""), "0:" + std::to_string(row.Flags) + " ");
        while (!ended) Stage->Pump();
        EXPECT_EQ(buttons.size(), row.Buttons) << row.Flags;
        EXPECT_EQ(stayed ? 0 : answer, Stage->EveryBoxCanBeClosed ? 2 : row.Closed) << row.Flags;
        EXPECT_TRUE(text && ownerDisabled && Windows.IsWindowEnabled(owner)) << row.Flags;
    }
}

TEST_P(WindowContract, OrderOfTheWindows) {
    const HWnd a = Make({"Plain", "a"}), b = Make({"Plain", "b"}), c = Make({"Plain", "c"});
    const HWnd owned = Make({"Plain", "o", Popup, a}), top = Make({"Plain", "t", Popup, 0, {}, TopMost});
    const auto order = [&] {
        std::string names;
        Windows.EnumWindows([&](HWnd window) {
            if (Windows.GetClassNameA(window) == "Plain") names += Windows.GetWindowTextA(window);
            return true;
        });
        return names;
    };
    const auto reshow = [&](HWnd window, TShowCommand command) {
        Stage->Show(window, SW_HIDE);
        Stage->Show(window, command);
        return order();
    };
    EXPECT_EQ(order(), "tocba");
    for (const HWnd one : {c, b, a, owned, top}) Stage->Show(one, SW_SHOWNOACTIVATE);
    EXPECT_EQ(order(), "tocba");
    Stage->BringToTop(b);
    EXPECT_EQ(order(), "tboca");
    Stage->BringToTop(a);  // and what it owns
    EXPECT_EQ(order(), "toabc");
    EXPECT_EQ(reshow(c, SW_SHOWNORMAL), "tcoab");
    EXPECT_EQ(reshow(b, SW_SHOW), "tbcoa");
    EXPECT_EQ(Windows.SetActiveWindow(c), b);
    EXPECT_EQ(Windows.SetActiveWindow(Make({"Static", "", Child, b})), c);
    Stage->Show(b, SW_HIDE);  // no hindrance
    EXPECT_EQ(Windows.SetActiveWindow(b), c);
    EXPECT_EQ(Windows.SetActiveWindow(b), b);
    // An exception ends the enumeration, and comes out of it.
    int seen = 0;
    const auto stop = [&](HWnd) -> bool { return ++seen < 2 ? true : throw EAbort("enough"); };
    EXPECT_THROW(Windows.EnumWindows(stop), EAbort);
    EXPECT_EQ(seen, 2);
    Stage->Destroy(a);
    EXPECT_EQ(order().size(), 3u);  // what it owned went with it
}

TEST_P(WindowContract, StatesAndChildren) {
    const HWnd window = Make({"#32770", "dialog", Popup});
    const HWnd edit = Make({"Edit", "", Child | Disabled, window, {10, 20, 90, 40}});
    const HWnd box = Make({"Static", "", WS_CHILD, window, {10, 50, 190, 140}});
    const HWnd inner = Make({"Static", "", Child, box, {5, 6, 100, 60}});
    const HWnd button = Make({"Button", "", Child, inner, {7, 8, 50, 30}});
    const HWnd tree = Make({"SysTreeView32", "", Child, window, {0, 0, 10, 10}});
    const HWnd combo = Make({"ComboBox", "", Child | 3, window, {100, 0, 180, 100}});
    EXPECT_EQ(ChildrenOf(window), (std::vector<HWnd>{edit, box, inner, button, tree, combo}));
    EXPECT_EQ(ChildrenOf(inner), std::vector<HWnd>{button});
    std::string classes;
    Windows.EnumChildWindows(window,
                             [&](HWnd w) { return (classes += Windows.GetClassNameA(w)) != "EditStatic"; });
    EXPECT_EQ(classes, "EditStatic");
    EXPECT_THROW(Windows.EnumChildWindows(window, [](HWnd) -> bool { throw EAbort(""); }), EAbort);

    // The whole chain makes a window visible, its own state enabled.
    const auto states = [&] {
        std::string text;
        for (const HWnd one : {window, box, inner, button, edit})
            text += std::string(Windows.IsWindowVisible(one) ? "v" : "-") +
                    (Windows.IsWindowEnabled(one) ? "e " : "- ");
        return text;
    };
    EXPECT_EQ(states(), "-e -e -e -e -- ");
    Stage->Show(window, SW_SHOWNORMAL);
    EXPECT_EQ(states(), "ve -e -e -e v- ");
    Stage->Show(box, SW_SHOW);
    Stage->Enable(box, false);
    EXPECT_EQ(states(), "ve v- ve ve v- ");
    TWindowInfo info;
    ASSERT_TRUE(Windows.GetWindowInfo(edit, info));
    EXPECT_EQ(info.Style & (Popup | WS_CHILD | Visible | Disabled), Child | Disabled);
    EXPECT_FALSE(Windows.SetFocus(button) || Windows.SetFocus(edit));
    EXPECT_TRUE(Windows.SetFocus(tree) && Windows.SetFocus(tree));
    Stage->Enable(box, true);
    EXPECT_TRUE(Windows.SetFocus(button));
    Stage->Enable(window, false);
    EXPECT_FALSE(Windows.SetFocus(tree));

    TRect whole, part;
    ASSERT_TRUE(Windows.GetWindowRect(window, whole) && Windows.GetWindowRect(inner, part));
    EXPECT_EQ(whole, (TRect{100, 100, 300, 250}));
    const TPoint origin = Windows.ClientToScreen(box, {5, 6});
    EXPECT_EQ(part, (TRect{origin.X, origin.Y, origin.X + 95, origin.Y + 54}));
    EXPECT_EQ(Windows.ScreenToClient(box, {origin.X - 105, origin.Y + 94}), (TPoint{-100, 100}));

    Stage->Destroy(box);
    EXPECT_EQ(ChildrenOf(window), (std::vector<HWnd>{edit, tree, combo}));
    for (const HWnd none : {HWnd{0}, button}) {
        EXPECT_FALSE(Windows.IsWindow(none) || Windows.IsWindowVisible(none) ||
                     Windows.IsWindowEnabled(none) || Windows.GetWindowRect(none, whole) ||
                     Windows.GetWindowInfo(none, info) || (none && Windows.SetFocus(none)));
        EXPECT_EQ(Windows.GetClassNameA(none) + Windows.GetWindowTextA(none), "");
        EXPECT_EQ(Windows.GetWindowProcessId(none) + Windows.SetActiveWindow(none), 0u);
        EXPECT_EQ(Windows.ClientToScreen(none, {3, 4}), (TPoint{3, 4}));
        EXPECT_TRUE(ChildrenOf(none).empty());
    }
    EXPECT_NE(Windows.GetWindowProcessId(window), 0u);
}

TEST_P(WindowContract, TextsAndMarks) {
    std::string wide, odd = "x";
    for (int i = 0; i < 150; ++i) wide += "\xD6\xD0", odd += "\xCE\xC4";
    for (const std::string name : {"Plain", "Edit", "Button", "#32770"}) {
        const HWnd window = Make({name.c_str(), "made"});
        EXPECT_EQ(Windows.GetWindowTextA(window), "made") << name;
        for (const std::string& text :
             {std::string(), std::string("\xB1\xEA\xCC\xE2 a"), std::string(300, 'z'), wide, odd}) {
            // No character is cut in two; Wine's edits do it.
            if (text == odd && (name == "Edit" || AnsiCodePage() != 936)) continue;
            Windows.SendMessageA(window, WM_SETTEXT, 0, reinterpret_cast<LParam>(text.c_str()));
            EXPECT_EQ(Windows.GetWindowTextA(window), text.substr(0, text == odd ? 253 : 254)) << name;
        }
    }
    const HWnd window = Make({"Plain", ""}), other = Make({"Plain", ""});
    EXPECT_EQ(Windows.GlobalFindAtomA("RuxContractMark"), 0u);
    Stage->Mark(window, "RuxContractMark", 77);
    Stage->Mark(window, "RuxContractMark2", 78);
    const TAtom atom = Windows.GlobalFindAtomA("ruxcontractMARK");
    EXPECT_GE(atom, 0xC000);
    std::uintptr_t beside = 0;
    RunBeside([&] { beside = Windows.GetPropA(window, atom); });
    EXPECT_EQ(beside, 77u);
    EXPECT_EQ(Windows.GetPropA(window, Windows.GlobalFindAtomA("RuxContractMark2")), 78u);
    EXPECT_EQ(Windows.GetPropA(other, atom) + Windows.GetPropA(window, 0) + Windows.GetPropA(0, atom), 0u);
}

TEST_P(WindowContract, KeysGoToWhoeverHasTheFocus) {
    const HWnd window = Make({"Plain", ""}), child = Make({"Plain", "", Child, window});
    Stage->Show(window, SW_SHOWNORMAL);
    Windows.SetActiveWindow(window);
    ASSERT_TRUE(Windows.SetFocus(child));
    std::string notes;
    const TWndProc before = Windows.GetWindowProc(child);
    const TWndProc instance = Windows.MakeObjectInstance([&](HWnd at, unsigned n, WParam w, LParam l) {
        if (n == WM_KEYDOWN || n == WM_KEYUP) notes += std::to_string(n) + ":" + std::to_string(w) + " ";
        return Windows.CallWindowProcA(before, at, n, w, l);
    });
    Windows.SetWindowProc(child, instance);
    for (const std::uint8_t key : {VK_F2, VK_DOWN})
        for (const std::uint32_t flags : {0u, 2u}) Windows.keybd_event(key, 0, flags, 0);
    const std::string expected = "256:113 257:113 256:40 257:40 ";
    // Real keys take their way through the system.
    for (int i = 0; i < 500 && notes.size() < expected.size(); ++i) {
        Stage->Pump();
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    EXPECT_EQ(notes, expected);
    Windows.SetWindowProc(child, before);
    Windows.FreeObjectInstance(instance);
}

}  // namespace rux::test
