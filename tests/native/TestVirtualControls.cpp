// Native windows over HTTP: found, driven, refused, and what each request sends to them.
#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <optional>

#include "Engine/Adapters/RUXFormAdapters.h"
#include "Engine/Adapters/RUXVirtualAdapters.h"
#include "Engine/Request/RUXTestFramework.h"
#include "Engine/Virtual/RUXVirtualStdCtrls.h"
#include "Engine/Virtual/RUXVirtualTreeView.h"
#include "NativeStage.h"
#include "VirtualRows.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"
#include "support/LiveHost.h"

namespace rux::test {

namespace {

/// The panel loses its parent: it can be found only through a window that is taken for it.
constexpr std::string_view MainForm = R"(object Main: TForm Caption = '主窗口' Width = 300 Height = 200
  object edt: TEdit Left = 10 Top = 10 Width = 75 Height = 25 Text = '工具' end
  object pnlFree: TPanel Caption = '无父' Width = 100 Height = 100
    object btnOn: TButton Caption = '面板钮' Width = 75 Height = 25 end end
end)";

/// A dialog with one control of each kind and some that stand for others.
class TVirtualControls : protected TNotes, public testing::Test {
 protected:
    TVirtualControls() {
        Host.Run([this] { Build(); });
    }
    void Build() {
        HDialogTraits traits;
        traits.Proc = [this](HWnd, unsigned message, WParam wParam, LParam) {
            if (message == WM_COMMAND) Note("command " + std::to_string(wParam));
            return false;
        };
        Dialog = CreateNativeDialog(Windows(), Ansi("原生"), {500, 100, 900, 500}, 0, std::move(traits));
        Button = Add("Button", "保 存", 10, 7);
        Windows().EnableWindow(Add("Button", "停用", 40, 8), false);
        Edit = Add("Edit", "", 70);
        Add("Static", "标签", 100);
        Add("ComboBox", "第二", 130);
        Tree = Add("SysTreeView32", "", 160);
        const auto node = [&](HTreeItem parent, const char* text) {
            return InsertNode(Windows(), Tree, parent, Ansi(text));
        };
        const HTreeItem a = node(TVI_ROOT, "a"), b = node(a, "b");
        node(b, "c");
        node(a, "B");
        node(node(TVI_ROOT, "丁"), "c");
        node(TVI_ROOT, "e f");
        const HWnd canvas = Windows().CreateWindowA(  // of a class in no list
            {"Canvas", Ansi("画布"), Child, 0, Dialog, {10, 250, 200, 300}, {}, 0, nullptr, nullptr});
        Add("Button", "深处", 0, 9, canvas);
        // The toolkit takes the window for the panel's.
        auto& panel = dynamic_cast<HWinControl&>(*Host.Form("Main").FindComponent("pnlFree"));
        panel.SetParent(nullptr);
        const std::string mark = "Delphi" + IntToHex8(Windows().Kernel().GetCurrentProcessId());
        Windows().SetPropA(Add("Static", "面板", 340), Windows().GlobalAddAtomA(mark), panel.RefNumber());
        const HWnd untitled = CreateNativeDialog(Windows(), "", {0, 600, 100, 700}, 0);
        Add("Button", "孤儿", 0, 0, untitled);
        for (const HWnd window : {untitled, Dialog}) Windows().ShowWindow(window, SW_SHOW);
    }
    HWnd Add(const char* className, const char* text, int top, unsigned id = 0, HWnd parent = 0) {
        return CreateNativeWindow(Windows(), className, Ansi(text), Child, parent ? parent : Dialog,
                                  {10, top, 200, top + (className[1] == 'y' ? 80 : 20)}, id);
    }
    HDesktop& Windows() { return Host.Desktop(); }
    /// The answer, of its status only the number.
    std::string Ask(std::string_view request) {
        std::string answer = Host.Ask(request);
        return answer.erase(3, answer.find('\n') - 3);
    }

    /// `proc` comes before what the window did so far, and instead of it if it answers.
    void Override(HWnd window, std::function<std::optional<LResult>(unsigned, WParam, LParam)> proc) {
        const TWndProc before = Windows().GetWindowProc(window);
        Windows().SetWindowProc(window, Windows().MakeObjectInstance([=, this](HWnd, auto... message) {
            const auto answer = proc(message...);
            return answer ? *answer : Windows().CallWindowProcA(before, window, message...);
        }));
    }
    static std::string Describe(unsigned message, WParam wParam, LParam lParam) {
        constexpr unsigned numbers[] = {TVM_GETITEMA,   TVM_ENSUREVISIBLE, TVM_GETITEMRECT,
                                        TVM_SELECTITEM, TVM_EXPAND,        TVM_GETCOUNT};
        constexpr WParam parameters[] = {0, 0, ~WParam{0}, TVGN_CARET, TVE_EXPAND, 0};
        constexpr const char* words[] = {"t", "show", "rect", "select", "expand", "count"};
        const auto* item = reinterpret_cast<const TTVItem*>(lParam);
        auto node = static_cast<HTreeItem>(lParam);
        if (message == WM_SETFOCUS) return "focus";
        if (message == TVM_GETNEXTITEM) return "rn??c????^"[wParam % 10] + std::to_string(node);
        if (message == TVM_GETITEMRECT) std::memcpy(&node, item, sizeof node);
        if (message == TVM_GETITEMA) node = item->TextMax == 255 ? item->Item : 0;
        if (message == TVM_SETITEMA) return "set" + std::to_string(item->Item) + "=" + item->Text;
        for (std::size_t i = 0; i < std::size(numbers); ++i)
            if (message == numbers[i] && wParam == parameters[i]) return words[i] + std::to_string(node);
        return {};
    }

    template <class Adapter, class Control>
    TIntf<Adapter> AdapterOf(HWnd window) {
        return MakeIntf<Adapter>(&CreateVirtualControl<Control>(window));
    }
    /// What the call raises; the line of an assertion is left out.
    static std::string Failure(const std::function<void()>& call) {
        try {
            call();
            return {};
        } catch (const Exception& error) {
            const std::string text = std::string(error.ClassName()) + ": " + AnsiToUtf8(error.Message());
            return text.substr(0, text.find(", line "));
        }
    }
    /// Code of the user-interface thread, as if a request were served.
    void Serve(const std::function<void()>& code) {
        Host.Run([&] {
            Host.Engine().RequestStack.Add(MakeIntf<TTestRequest>(""));
            code();
            Host.Engine().RequestStack.Clear();
        });
    }

    HWnd Dialog, Button, Edit, Tree;
    TLiveHost Host{{MainForm}};
};

}  // namespace

TEST_F(TVirtualControls, AnswersAndMessages) {
    // What native windows are told; what the tree is, with the nodes by their order: pointers are no text.
    Host.Run([&] {
        Windows().Journal().SetSink(HAllEntries, [this](HEntry, std::string_view line) {
            const std::string_view rest = line.substr(line.find(' ') + 1);
            const std::string_view name = rest.substr(0, rest.find(' '));
            // Each request parks the cursor.
            if (line.starts_with("send SysTreeView32") || line == "cursor 0,0") return;
            for (const char* heard : {"Button", "Edit", "Static", "ComboBox", "#32770", "SysTreeView32"})
                if (name == heard) return Note(AnsiToUtf8(line));
            if (line.starts_with("cursor ")) Note(std::string(line));
        });
        Override(Tree, [this](unsigned message, WParam wParam, LParam lParam) {
            const std::string line = Describe(message, wParam, lParam);
            if (!line.empty()) Note(line, " ");
            return std::optional<LResult>();
        });
    });
    for (const TVirtualRow& row : VirtualRows()) {
        Host.Run([&] {
            Windows().SetActiveWindow(dynamic_cast<HWinControl&>(Host.Form("Main")).Handle());
            Notes();
        });
        EXPECT_EQ(Ask(row.Request), row.Answer) << row.Request;
        Host.Settle();
        std::string journal;
        Host.Run([&] { journal = Notes(); });
        EXPECT_EQ(journal, row.Journal) << row.Request;
    }
    const char* looked = "$Select(A/c)\r\ninfo - a\r\ninfo - a\r\ninfo - b\r\ninfo - c\r\ninfo - Stact";
    EXPECT_NE(Host.Log().find(looked), std::string::npos);
}

// An assertion is no failure of the engine's own: the application reports it in a box, and a request can
// press the button of that.
TEST_F(TVirtualControls, AMethodThatIsNotThere) {
    TPendingCall call(Host, "标签$Click");
    Host.WaitFor("show #32770 App");
    const std::string answer = call.Answer();
    EXPECT_EQ(Ask("确定?Button$Click"), "212");
    EXPECT_EQ(
        answer.substr(0, answer.find(", line ")),
        "519 非预期窗体\nApp\r\nother:确定\r\nother:方法没实现 (Engine/Adapters/RUXVirtualAdapters.cpp");
}

// Every method of every interface is called; what is not available fails as an assertion.
TEST_F(TVirtualControls, Refusals) {
    std::string refused;
    Serve([&] {
        for (const TIntf<IRUXAdapter>& adapter :
             {TIntf<IRUXAdapter>(AdapterOf<TVirtualEditAdapter, TVirtualEdit>(0)),
              TIntf<IRUXAdapter>(AdapterOf<TVirtualStaticAdapter, TVirtualStatic>(0)),
              TIntf<IRUXAdapter>(AdapterOf<TVirtualComboboxAdapter, TVirtualCombobox>(0)),
              TIntf<IRUXAdapter>(AdapterOf<TVirtualTreeViewAdapter, TVirtualTreeView>(0))}) {
            refused += std::string(adapter->AdapterName()) + ":";
            ForEachMethod(adapter->InterfaceInfo(), [&](const TIntfMethEntry& method) {
                const auto context = method.MakeContext();
                std::string answer = Failure([&] { method.Invoke(*adapter, *context); });
                if (!answer.starts_with("EAssertionFailed: ")) return;
                answer = answer.substr(17, answer.find(" (Engine/Adapters/RUXVirtualAdapters.cpp") - 17);
                refused += " " + std::string(method.Name) + std::to_string(method.ParamCount) + answer;
            });
            refused += "\n";
        }
    });
    EXPECT_EQ(ReplaceAll(refused, " Assertion failure", "!"),
              "TVirtualEditAdapter:\nTVirtualStaticAdapter: Click0 方法没实现\nTVirtualComboboxAdapter: "
              "Select1 没有实现 SelectByIndex1 没有实现 Selected0 没有实现 GetCount0 没有实现 "
              "SetText1 没有实现 ReadOnly0 没有实现\nTVirtualTreeViewAdapter: SetText1! DblClick1! "
              "SaveTreeData1! SelectNodes1! SetChecked2! GetLevel1! GetExpanded1! FindTreeNode1! "
              "GetTextByIndex1! SelectbyIndex1! SetCheckedbyIndex2! IsLeaf1!\n");
}

// A window may go at any time, claim any length and answer as if its tree had no end.
TEST_F(TVirtualControls, WindowsThatAreGoneOrLie) {
    const auto folder = Host.Folder() / ("RUX_" + std::to_string(Host.Port()));
    std::filesystem::remove_all(folder);
    std::ofstream(folder) << "no folder, so that a million records are not written";
    Serve([&] {
        Windows().Journal().SetSink(0, nullptr);
        const auto edit = AdapterOf<TVirtualEditAdapter, TVirtualEdit>(Edit);
        const auto tree = AdapterOf<TVirtualTreeViewAdapter, TVirtualTreeView>(Tree);
        const auto window = AdapterOf<TVirtualWindowAdapter, TVirtualWindow>(Dialog);
        edit->SetText("old");
        Notes();
        LResult claimed = 0;
        Override(Edit, [&](unsigned message, WParam wParam, LParam) {
            if (message == WM_GETTEXTLENGTH) return std::optional(claimed);
            if (message == WM_GETTEXT) Note("room " + std::to_string(wParam));
            return std::optional<LResult>();
        });
        for (const LResult length : {LResult{-1}, LResult{0}, LResult{2}, LResult{9}, LResult{1} << 62}) {
            claimed = length;
            Note(edit->GetText() + ".");
        }
        EXPECT_EQ(Notes(), "room 1; .; room 1; .; room 3; ol.; room 10; old.; room 67108865; old.");

        HTreeItem nodes = 100000;
        Override(Tree, [&](unsigned message, WParam wParam, LParam lParam) -> std::optional<LResult> {
            auto* item = reinterpret_cast<TTVItem*>(lParam);
            if (message == TVM_GETITEMA && item->Item == nodes) std::strcpy(item->Text, "last");
            if (message == TVM_SELECTITEM) Note("select" + std::to_string(lParam));
            if (message != TVM_GETNEXTITEM) return 0;
            const auto below = static_cast<HTreeItem>(lParam) + 1;
            return wParam == TVGN_NEXT || below > nodes ? 0 : static_cast<LResult>(below);
        });
        tree->Select("last");
        EXPECT_EQ(Notes(), "select100000");
        nodes = ~HTreeItem{};
        const std::string noNode = "ERUXException: 没有找到要选择的节点：";
        EXPECT_EQ(Failure([&] { tree->Select("last"); }), noNode + "last");

        Windows().DestroyWindow(Dialog);
        AdapterOf<TVirtualButtonAdapter, TVirtualButton>(Button)->Click();
        edit->SetText("x");
        window->Active();
        window->Close();
        EXPECT_EQ(edit->GetText() + window->GetInfo() + tree->Selected() + std::to_string(tree->GetCount()),
                  "0");
        EXPECT_EQ(Failure([&] { tree->Click("a"); }), noNode + "a");
        EXPECT_EQ(Failure([&] { edit->Active(); }), "EAdapterException: 当前控件不支持Active方法.");
        EXPECT_EQ(edit->Enabled(), false);
    });
}

}  // namespace rux::test
