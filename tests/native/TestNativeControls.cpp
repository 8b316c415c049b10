// Native windows over HTTP: found, driven, refused.
#include <gtest/gtest.h>

#include "platform/headless/native/HNativeDialog.h"
#include "platform/headless/native/HNativeFactory.h"
#include "platform/headless/native/HNativeTree.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "support/LiveHost.h"

namespace rux::test {

namespace {

constexpr std::string_view MainForm = R"(object Main: TForm Caption = '主窗口' Width = 300 Height = 200
  object edt: TEdit Left = 10 Top = 10 Width = 75 Height = 25 Text = '工具' end
end)";
/// Never shown: what is on it can be found only through windows that are taken for it.
constexpr std::string_view StoreForm = R"(object Store: TForm Left = 400 Top = 400
  object btnHeld: TButton Caption = '有父' Width = 75 Height = 25 end
end)";

class TNativeControls : public testing::Test {
 protected:
    TNativeControls() {
        Host.Run([this] { Build(); });
    }

    void Build() {
        HDialogTraits traits;
        traits.Proc = [this](HWnd, unsigned message, WParam wParam, LParam) {
            if (message == WM_COMMAND) FCommands += std::to_string(wParam) + " ";
            return false;
        };
        Dialog = CreateNativeDialog(Windows(), Ansi("原生"), {500, 100, 900, 500}, 0, std::move(traits));
        Add("Button", "保 存", 10, 7);
        Windows().EnableWindow(Add("Button", "停用", 40, 8), false);
        Add("Edit", "", 70);
        Add("Static", "标签", 100);
        Add("ComboBox", "第二", 130);
        Tree = Add("SysTreeView32", "", 160);
        const HTreeItem first = AddNode(TVI_ROOT, "甲");
        Deep = AddNode(AddNode(first, "丙"), "乙");
        AddNode(TVI_ROOT, "乙");
        // A class that is in no list.
        HCreateParams canvas;
        canvas.ClassName = "Canvas";
        canvas.Text = Ansi("画布");
        canvas.Style = WS_CHILD | WS_VISIBLE;
        canvas.Parent = Dialog;
        canvas.Rect = {10, 250, 200, 300};
        const HWnd unlisted = Windows().CreateWindowA(canvas);
        CreateNativeWindow(Windows(), "Button", Ansi("深处"), WS_CHILD | WS_VISIBLE, unlisted, {0, 0, 60, 20},
                           9);
        Mark(Add("Static", "替身", 310), *Host.Form("Store").FindComponent("btnHeld"));
        Mark(Add("Static", "面板", 340), AddPanel());
        const HWnd untitled = CreateNativeDialog(Windows(), "", {0, 600, 100, 700}, 0);
        CreateNativeWindow(Windows(), "Button", Ansi("孤儿"), WS_CHILD | WS_VISIBLE, untitled,
                           {0, 0, 60, 20});
        Windows().ShowWindow(untitled, SW_SHOW);
        Windows().ShowWindow(Dialog, SW_SHOW);
    }
    HDesktop& Windows() { return Host.Desktop(); }
    HWnd Add(const char* className, const char* text, int top, unsigned id = 0) {
        return CreateNativeWindow(Windows(), className, Ansi(text), WS_CHILD | WS_VISIBLE, Dialog,
                                  {10, top, 200, top + (className[1] == 'y' ? 80 : 20)}, id);
    }
    HTreeItem AddNode(HTreeItem parent, const char* text) {
        std::string ansi = Ansi(text);
        TTVInsert insert;
        insert.Parent = parent;
        insert.Item.Mask = TVIF_TEXT;
        insert.Item.Text = ansi.data();
        return static_cast<HTreeItem>(
            Windows().SendMessageA(Tree, TVM_INSERTITEMA, 0, reinterpret_cast<LParam>(&insert)));
    }
    /// A panel without a parent, and a button on it.
    HComponent& AddPanel() {
        HComponent& store = Host.Form("Store");
        const auto make = [&](const char* type, const char* caption, HWinControl* parent) -> HWinControl& {
            auto control = Host.Kit().MakeAs<HWinControl>(type);
            control->SetText(Ansi(caption));
            control->SetBounds({5, 5, 100, 100});
            auto& kept = static_cast<HWinControl&>(store.Own(std::move(control)));
            if (parent) kept.SetParent(parent);
            return kept;
        };
        HWinControl& panel = make("TPanel", "无父", nullptr);
        make("TButton", "面板钮", &panel);
        return panel;
    }
    void Mark(HWnd window, HComponent& control) {
        const std::uint32_t process = Windows().Kernel().GetCurrentProcessId();
        Windows().SetPropA(window, Windows().GlobalAddAtomA("Delphi" + IntToHex8(process)),
                           control.RefNumber());
    }
    std::string Commands() {
        std::string all;
        Host.Run([&] { all = std::exchange(FCommands, {}); });
        return all;
    }
    template <class T>
    T On(const std::function<T()>& ask) {
        T answer{};
        Host.Run([&] { answer = ask(); });
        return answer;
    }

    HWnd Dialog = 0, Tree = 0;
    HTreeItem Deep = 0;

 private:
    std::string FCommands;

 protected:
    TLiveHost Host{{MainForm, StoreForm}};
};

struct TRow {
    const char *Request, *Answer;
};

}  // namespace

TEST_F(TNativeControls, AnswersOfEveryKind) {
    constexpr TRow rows[] = {
        // By caption, by class word, by virtual class, by group.
        {"保存$Click", "212 成功"},
        {"?TVirtualButton#1$Click", "212 成功"},
        {"Edit$GetText", "211 成功返回"},
        {"Edit$SetText(S:新文)", "212 成功"},
        {"新文?Edit$GetText", "211 成功返回\n新文"},
        {"?TVirtualEdit$GetText", "211 成功返回\n新文"},
        {"标签?Label$GetText", "211 成功返回\n标签"},
        {"Combobox$GetText", "211 成功返回\n第二"},
        {"?ComboBox$GetText", "211 成功返回\n第二"},
        {"?TVirtualCombobox$Find", "211 成功返回\nTrue"},
        {"原生/保存>?TVirtualButton$Find", "211 成功返回\nFalse"},
        {"保存_?TVirtualEdit$GetText", "211 成功返回\n新文"},
        {"Button$Find",
         "516 结果不唯一\nButton找到了3个符合条件的控件，它们分别是：\r\n类名: TVirtualButton 标题：深处 "
         "内容："
         "\r\n类名: TVirtualButton 标题：保 存 内容：\r\n类名: TVirtualButton 标题：停用 内容："},
        // What is searched, and what is not.
        {"孤儿$Find", "211 成功返回\nFalse"},
        {"画布$Find", "211 成功返回\nFalse"},
        {"深处$Click", "212 成功"},
        {"有父$Find", "211 成功返回\nFalse"},
        {"替身$Find", "211 成功返回\nFalse"},
        {"无父$Find", "517 其他错误\nTPanel没有找到适配器"},  // found
        {"原生/无父/面板钮$Find", "211 成功返回\nTrue"},
        {"?TVirtualWindow$Find",
         "516 结果不唯一\n?TVirtualWindow找到了2个符合条件的控件，它们分别是：\r\n类名: TVirtualWindow "
         "标题：原生"
         " 内容：\r\n类名: TVirtualWindow 标题：App 内容："},
        // Refusals.
        {"停用?Button$Click", "517 其他错误\n控件[Button]方法[Click]不可用"},
        {"停用$Enabled", "211 成功返回\nFalse"},
        {"保存$RightClick", "517 其他错误\n当前控件不支持鼠标右键方法."},
        {"原生$DbClick", "517 其他错误\n当前控件不支持鼠标双击方法."},
        {"新文$ReadOnly", "517 其他错误\n服务器没有处理控件TVirtualEdit类型的ReadOnly调用"},
        {"保存$GetText", "517 其他错误\n适配器TVirtualButtonAdapter没有方法GetText"},
    };
    for (const TRow& row : rows) EXPECT_EQ(Host.Ask(row.Request), row.Answer) << row.Request;
    EXPECT_EQ(Commands(), "7 7 50331648 ");
}

TEST_F(TNativeControls, AnEditWithoutATitleIsCalledByItsClass) {
    Host.Run([&] { Add("Edit", "", 370); });
    EXPECT_EQ(
        Host.Ask("Edit$GetText"),
        "516 结果不唯一\nEdit找到了2个符合条件的控件，它们分别是：\r\n类名: TVirtualEdit 标题：Edit 内容："
        "\r\n类名: TVirtualEdit 标题：Edit 内容：");
}

TEST_F(TNativeControls, PathsInATree) {
    const auto selected = [&] {
        return On<LResult>([&] { return Windows().SendMessageA(Tree, TVM_GETNEXTITEM, TVGN_CARET, 0); });
    };
    EXPECT_EQ(Host.Ask("SysTreeView32$Select(甲/乙)"), "212 成功");
    EXPECT_EQ(selected(), static_cast<LResult>(Deep));  // two levels below
    constexpr TRow rows[] = {
        {"?TreeView$Selected", "211 成功返回\n乙"},
        {"?TVirtualTreeView$GetCount", "211 成功返回\n4"},
        {"?TreeView$Click(丙)", "212 成功"},
        {"?TreeView$GetText", "211 成功返回\n丙"},
        {"?TreeView$Select(甲/丁)", "517 其他错误\n没有找到要选择的节点：甲/丁"},
        {"?TreeView$Click(丁)", "517 其他错误\n没有找到要选择的节点：丁"},
        {"?TreeView$Select(乙)", "212 成功"},
    };
    for (const TRow& row : rows) EXPECT_EQ(Host.Ask(row.Request), row.Answer) << row.Request;
    EXPECT_EQ(selected(), static_cast<LResult>(Deep));  // of equal captions the first, depth before breadth
}

TEST_F(TNativeControls, AWindowItself) {
    EXPECT_EQ(Host.Ask("原生$GetInfo"),
              "211 成功返回\n原生\r\nother:画布\r\nother:深处\r\nother:保 存\r\nother:停用\r\nother:标签\r\n"
              "other:第二\r\nTButton:替身\r\nTPanel:面板");
    Host.Run([&] { Windows().SetActiveWindow(dynamic_cast<HWinControl&>(Host.Form("Main")).Handle()); });
    EXPECT_EQ(Host.Ask("原生$Active"), "212 成功");
    EXPECT_EQ(On<HWnd>([&] { return Windows().GetActiveWindow(); }), Dialog);
    EXPECT_EQ(Host.Ask("原生$Close"), "212 成功");
    EXPECT_EQ(Host.Ask("原生$Find"), "211 成功返回\nFalse");
    EXPECT_FALSE(On<bool>([&] { return Windows().IsWindow(Dialog); }));
}

// An assertion is no failure of the engine's own: the application reports it in a box, and a request can
// press the button of that.
TEST_F(TNativeControls, AMethodThatIsNotThere) {
    TPendingCall call(Host, "标签$Click");
    Host.WaitFor("show #32770 App");
    EXPECT_EQ(Host.Ask("确定?Button$Click"), "212 成功");
    Host.WaitFor("close #32770 App");
    const std::string answer = call.Answer();
    EXPECT_TRUE(
        answer.starts_with("519 非预期窗体\nApp\r\nother:确定\r\nother:方法没实现 (Engine/Adapters/"
                           "RUXVirtualAdapters.cpp, line "))
        << answer;
}

}  // namespace rux::test
