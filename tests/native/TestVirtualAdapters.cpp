// What each adapter of a native window sends to it, message by message.
#include <cstring>
#include <fstream>

#include "Engine/Adapters/RUXFormAdapters.h"
#include "Engine/Adapters/RUXVirtualAdapters.h"
#include "Engine/Input/RUXInput.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/Virtual/RUXVirtualStdCtrls.h"
#include "Engine/Virtual/RUXVirtualTreeView.h"
#include "platform/headless/native/HNativeDialog.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/headless/native/HNativeTree.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"
#include "support/EngineFixture.h"

namespace rux::test {

namespace {

/// A dialog with one control of each kind, and a journal that names the nodes of the tree by their order.
class TVirtualAdapterTest : public TEngineTest {
 protected:
    TVirtualAdapterTest() {
        Engine.RequestStack.Add(MakeIntf<TTestRequest>(""));
        HDialogTraits traits;
        traits.Proc = [this](HWnd, unsigned message, WParam wParam, LParam) {
            if (message == WM_COMMAND) Note("command " + std::to_string(wParam));
            return false;
        };
        Dialog = CreateNativeDialog(Windows(), "Dialog", {100, 100, 500, 400}, 0, std::move(traits));
        Button = Add("Button", "OK", 10, 7);
        Edit = Add("Edit", "old", 40, 0);
        Label = Add("Static", "label", 70, 0);
        Combo = Add("ComboBox", "chosen", 100, 0);
        Tree = Add("SysTreeView32", "", 130, 0);
        const HTreeItem a = AddNode(TVI_ROOT, "a"), b = AddNode(a, "b");
        AddNode(b, "c");
        AddNode(a, "B");
        AddNode(AddNode(TVI_ROOT, "d"), "c");
        AddNode(TVI_ROOT, "e f");
        Windows().ShowWindow(Dialog, SW_SHOW);
        Windows().Journal().SetSink(HAllEntries, [this](HEntry, std::string_view line) {
            // Those to the tree are noted below: pointers are no text.
            if (!line.starts_with("send SysTreeView32")) Note(AnsiToUtf8(line));
        });
        Override(Tree, [this](unsigned message, WParam wParam, LParam lParam, const TNext& next) {
            const std::string line = Describe(message, wParam, lParam);
            if (!line.empty()) Note(line);
            return next(message, wParam, lParam);
        });
    }
    ~TVirtualAdapterTest() override { Windows().Journal().SetSink(0, nullptr); }

    HDesktop& Windows() { return Desktop.Desktop(); }
    void Note(const std::string& line) { FJournal += (FJournal.empty() ? "" : "; ") + line; }
    std::string Journal() { return std::exchange(FJournal, std::string()); }

    /// `proc` gets the message, and what the window did with it so far.
    using TNext = std::function<LResult(unsigned, WParam, LParam)>;
    using TProc = std::function<LResult(unsigned, WParam, LParam, const TNext& next)>;
    void Override(HWnd window, TProc proc) {
        const TNext next = [this, window, before = Windows().GetWindowProc(window)](auto... message) {
            return Windows().CallWindowProcA(before, window, message...);
        };
        Windows().SetWindowProc(window, Windows().MakeObjectInstance(
                                            [next, proc = std::move(proc)](HWnd, auto... message) -> LResult {
                                                return proc(message..., next);
                                            }));
    }

    template <class Adapter, class Control>
    TIntf<Adapter> AdapterOf(HWnd window) {
        return MakeIntf<Adapter>(&CreateVirtualControl<Control>(window));
    }
    TIntf<TVirtualTreeViewAdapter> TreeAdapter() {
        return AdapterOf<TVirtualTreeViewAdapter, TVirtualTreeView>(Tree);
    }
    /// What the call answers or raises; the line of an assertion is left out.
    template <class Call>
    static std::string Answer(const Call& call) {
        try {
            if constexpr (!std::is_void_v<decltype(call())>) return AnsiToUtf8(call());
            call();
            return {};
        } catch (const Exception& error) {
            const std::string text = std::string(error.ClassName()) + ": " + AnsiToUtf8(error.Message());
            return text.substr(0, text.find(", line "));
        }
    }

    HWnd Dialog, Button, Edit, Label, Combo, Tree;

 private:
    HWnd Add(const char* className, const char* text, int top, unsigned id) {
        return CreateNativeWindow(Windows(), className, text, WS_CHILD | WS_VISIBLE, Dialog,
                                  {10, top, 210, top + (className[0] == 'S' && id == 0 ? 90 : 20)}, id);
    }
    HTreeItem AddNode(HTreeItem parent, std::string text) {
        TTVInsert insert;
        insert.Parent = parent;
        insert.Item.Mask = TVIF_TEXT;
        insert.Item.Text = text.data();
        return static_cast<HTreeItem>(
            Windows().SendMessageA(Tree, TVM_INSERTITEMA, 0, reinterpret_cast<LParam>(&insert)));
    }
    static std::string Describe(unsigned message, WParam wParam, LParam lParam) {
        const auto node = [](const void* place) {
            HTreeItem item = 0;
            std::memcpy(&item, place, sizeof item);
            return std::to_string(item);
        };
        const auto* item = reinterpret_cast<const TTVItem*>(lParam);
        const std::string number = std::to_string(lParam);
        switch (message) {
            case WM_SETFOCUS:
                return "focus";
            case TVM_GETNEXTITEM:
                return (wParam == TVGN_ROOT    ? "root"
                        : wParam == TVGN_NEXT  ? "next"
                        : wParam == TVGN_CHILD ? "child"
                        : wParam == TVGN_CARET ? "caret"
                                               : "?") +
                       number;
            case TVM_GETITEMA:
                return "text" + std::to_string(item->Item) + (item->TextMax == 255 ? "" : "?");
            case TVM_SETITEMA:
                return "set" + std::to_string(item->Item) + "=" + item->Text;
            case TVM_ENSUREVISIBLE:
                return "show" + number;
            case TVM_GETITEMRECT:
                return "rect" + node(reinterpret_cast<const void*>(lParam)) + (wParam + 1 == 0 ? "" : "?");
            case TVM_SELECTITEM:
                return "select" + number + (wParam == TVGN_CARET ? "" : "?");
            case TVM_EXPAND:
                return "expand" + number + (wParam == TVE_EXPAND ? "" : "?");
            case TVM_GETCOUNT:
                return "count";
            default:
                return {};
        }
    }

    std::string FJournal;
};

constexpr const char* NoNode = "ERUXException: 没有找到要选择的节点：";

}  // namespace

TEST_F(TVirtualAdapterTest, MessagesOfEachOperation) {
    const auto button = AdapterOf<TVirtualButtonAdapter, TVirtualButton>(Button);
    const auto edit = AdapterOf<TVirtualEditAdapter, TVirtualEdit>(Edit);
    const auto label = AdapterOf<TVirtualStaticAdapter, TVirtualStatic>(Label);
    const auto combo = AdapterOf<TVirtualComboboxAdapter, TVirtualCombobox>(Combo);
    const auto window = AdapterOf<TVirtualWindowAdapter, TVirtualWindow>(Dialog);
    const auto tree = TreeAdapter();
    // Through the levels to 3 behind 2, and over to 5 and 6.
    const std::string toC = "focus; root0; text1; text1; child1; text2; child2; text3";
    const std::string all =
        "text1; child1; text2; child2; text3; child3; next3; next2; text4; child4; next4; "
        "next1; text5; child5; text6; child6; next6; next5; text7; child7; next7";
    const TVirtualTreeView native(Tree);
    const TPoint middle = CenterOf(native.PlaceOfNode("c"));
    const TPoint cursor = Windows().ClientToScreen(Tree, middle);
    const auto pair = [](TPoint p) { return std::to_string(p.X) + "," + std::to_string(p.Y); };
    const std::string click = "cursor " + pair(cursor) + "; post SysTreeView32 WM_LBUTTONDOWN 0 " +
                              pair(middle) + "; post SysTreeView32 WM_LBUTTONUP 0 " + pair(middle);
    Engine.Logger.Clear();
    Journal();
    struct TRow {
        std::function<std::string()> Call;
        std::string Answer, Journal;
    };
    const auto call = [](auto method) { return [=]() -> std::string { return method(), ""; }; };
    const TRow rows[] = {
        {call([=] { button->Click(); }), "",
         "send Button WM_LBUTTONDOWN 1 0,0; send Button WM_LBUTTONUP 0 0,0; command 7"},
        {[=] { return edit->GetText(); }, "old", "send Edit 14 0 0; send Edit WM_GETTEXT 4 buffer"},
        {call([=] { edit->SetText(Ansi("新")); }), "", "send Edit WM_SETTEXT 0 新; command 50331648"},
        {[=] { return edit->GetText(); }, "新", "send Edit 14 0 0; send Edit WM_GETTEXT 3 buffer"},
        {[=] { return label->GetText(); }, "label", "send Static 14 0 0; send Static WM_GETTEXT 6 buffer"},
        {[=] { return combo->GetText(); }, "chosen",
         "send ComboBox 14 0 0; send ComboBox WM_GETTEXT 7 buffer"},
        {[=] { return window->GetInfo(); }, "Dialog\r\nother:OK\r\nother:新\r\nother:label\r\nother:chosen",
         ""},
        {[=] { return std::to_string(tree->GetCount()); }, "7", "count"},
        {[=] { return tree->Selected(); }, "", "focus; caret0"},
        {call([=] { tree->Select("A/c"); }), "", toC + "; show3; select3"},
        {[=] { return tree->Selected(); }, "c", "focus; caret0; text3"},
        {[=] { return tree->GetText(); }, "c", "focus; caret0; text3"},
        // Of two that are equal the first; a blank separates, and quotes keep it.
        {call([=] { tree->Select("B"); }), "", "focus; root0; text1; child1; text2; show2; select2"},
        {call([=] { tree->Select("e f"); }), NoNode + std::string("e f"), "focus; root0; " + all + "; show0"},
        {call([=] { tree->Select("\"e f\""); }), "",
         "focus; root0; " + all.substr(0, all.find("; child7")) + "; show7; select7"},
        // The search of an element begins at the node before it, and goes beside it as well as below.
        {call([=] { tree->Select("d/e/"); }), NoNode + std::string("d/e/"),
         "focus; root0; " + all.substr(0, all.find("; child5")) +
             "; text5; child5; text6; child6; next6; next5; text7; child7; next7; show0"},
        {call([=] { tree->Select("b/B/b"); }), "",
         "focus; root0; text1; child1; text2; text2; text2; show2; select2"},
        {call([=] { tree->Select(""); }), "", "focus; root0; show1; select1"},
        {call([=] { tree->SetExpand("d"); }), "",
         "focus; root0; " + all.substr(0, all.find("; child5")) + "; show5; expand5"},
        {call([=] { tree->Click("c"); }), "",
         "focus; root0; text1; child1; text2; child2; text3; show3; rect3; " + click},
        {call([=] { tree->SetText("c", "new"); }), "",
         "focus; root0; text1; child1; text2; child2; text3; show3; set3=new"},
        {[=] { return tree->Selected(); }, "new", "focus; caret0; text3"},
        {call([=] { tree->Click("x"); }), NoNode + std::string("x"),
         "focus; root0; " + all + "; show0; rect0"},
        {call([=] { window->Active(); }), "", ""},
        {call([=] { window->Close(); }), "", "send #32770 WM_CLOSE 0 0; close #32770 Dialog"},
    };
    int number = 0;
    for (const TRow& row : rows) {
        Windows().SetFocus(Button);
        EXPECT_EQ(Answer(row.Call), row.Answer) << number;
        EXPECT_EQ(Journal(), row.Journal) << number;
        ++number;
    }
    EXPECT_FALSE(Windows().IsWindow(Dialog));
    EXPECT_TRUE(Log().starts_with("info - a\r\ninfo - a\r\ninfo - b\r\ninfo - c\r\ninfo - c\r\n")) << Log();
}

// Every method of every interface is called; what is not available fails as an assertion.
TEST_F(TVirtualAdapterTest, Refusals) {
    std::string refused;
    const auto ask = [&](const TIntf<IRUXAdapter>& adapter) {
        refused += std::string(adapter->AdapterName()) + ":";
        ForEachMethod(adapter->InterfaceInfo(), [&](const TIntfMethEntry& method) {
            const auto context = method.MakeContext();
            const std::string answer = Answer([&] { method.Invoke(*adapter, *context); });
            constexpr std::string_view file = " (Engine/Adapters/RUXVirtualAdapters.cpp";
            if (!answer.starts_with("EAssertionFailed: ") || !answer.ends_with(file)) return;
            refused += " " + std::string(method.Name) + std::to_string(method.ParamCount) + "=" +
                       answer.substr(18, answer.size() - 18 - file.size());
        });
        refused += "\n";
    };
    ask(AdapterOf<TVirtualEditAdapter, TVirtualEdit>(Edit));
    ask(AdapterOf<TVirtualStaticAdapter, TVirtualStatic>(Label));
    ask(AdapterOf<TVirtualComboboxAdapter, TVirtualCombobox>(Combo));
    const std::size_t tree = refused.size();
    ask(TreeAdapter());
    EXPECT_EQ(refused.substr(0, tree),
              "TVirtualEditAdapter:\nTVirtualStaticAdapter: Click0=方法没实现\n"
              "TVirtualComboboxAdapter: Select1=没有实现 SelectByIndex1=没有实现 Selected0=没有实现 "
              "GetCount0=没有实现 SetText1=没有实现 ReadOnly0=没有实现\n");
    EXPECT_EQ(ReplaceAll(refused.substr(tree), "=Assertion failure", ""),
              "TVirtualTreeViewAdapter: SetText1 DblClick1 SaveTreeData1 SelectNodes1 SetChecked2 GetLevel1 "
              "GetExpanded1 FindTreeNode1 GetTextByIndex1 SelectbyIndex1 SetCheckedbyIndex2 IsLeaf1\n");
}

// A window may go at any time, claim any length and answer as if its tree had no end.
TEST_F(TVirtualAdapterTest, WindowsThatAreGoneOrLie) {
    std::ofstream(Folder() / "RUX_1") << "no folder, so that a million records are not written";
    const auto edit = AdapterOf<TVirtualEditAdapter, TVirtualEdit>(Edit);
    const auto tree = TreeAdapter();
    LResult claimed = 0;
    Override(Edit, [&](unsigned message, WParam wParam, LParam lParam, const TNext& next) -> LResult {
        if (message == WM_GETTEXTLENGTH) return claimed;
        if (message == WM_GETTEXT) Note("room " + std::to_string(wParam));
        return next(message, wParam, lParam);
    });
    for (const LResult length : {LResult{-1}, LResult{0}, LResult{2}, LResult{9}, LResult{1} << 62}) {
        claimed = length;
        Note(edit->GetText() + ".");
    }
    std::string journal = Journal();
    for (const char* line : {"send Edit 14 0 0; ", "send Edit WM_GETTEXT "})
        for (std::size_t at; (at = journal.find(line)) != journal.npos;)
            journal.erase(at, line[10] == '1' ? std::strlen(line) : journal.find("; ", at) + 2 - at);
    EXPECT_EQ(journal, "room 1; .; room 1; .; room 3; ol.; room 10; old.; room 67108865; old.");

    Windows().Journal().SetSink(0, nullptr);
    HTreeItem nodes = 100000;
    Override(Tree, [&](unsigned message, WParam wParam, LParam lParam, const TNext&) -> LResult {
        if (message == TVM_GETITEMA) {
            auto& item = *reinterpret_cast<TTVItem*>(lParam);
            if (item.Item == nodes) std::strcpy(item.Text, "last");
        }
        if (message == TVM_SELECTITEM) Note("select" + std::to_string(lParam));
        if (message != TVM_GETNEXTITEM) return 0;
        const auto below = static_cast<HTreeItem>(lParam) + 1;
        return wParam == TVGN_NEXT || below > nodes ? 0 : static_cast<LResult>(below);
    });
    tree->Select("last");
    EXPECT_EQ(Journal(), "select100000");
    nodes = ~HTreeItem{};
    EXPECT_EQ(Answer([&] { tree->Select("last"); }), NoNode + std::string("last"));

    const auto button = AdapterOf<TVirtualButtonAdapter, TVirtualButton>(Button);
    const auto window = AdapterOf<TVirtualWindowAdapter, TVirtualWindow>(Dialog);
    Windows().DestroyWindow(Dialog);
    Journal();
    button->Click();
    edit->SetText("x");
    window->Active();
    window->Close();
    EXPECT_EQ(edit->GetText() + window->GetInfo() + tree->Selected() + std::to_string(tree->GetCount()), "0");
    EXPECT_EQ(Answer([&] { tree->Click("a"); }), NoNode + std::string("a"));
    EXPECT_EQ(Answer([&] { edit->Active(); }), "EAdapterException: 当前控件不支持Active方法.");
    EXPECT_EQ(edit->Enabled(), false);
}

}  // namespace rux::test
