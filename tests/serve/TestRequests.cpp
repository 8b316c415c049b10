// Requests over HTTP against a live application: nesting, failures, the end of a request.
#include <gtest/gtest.h>

#include "rtl/Numbers.h"
#include "support/LiveHost.h"

namespace rux::test {

namespace {

constexpr std::string_view MainForm = R"(object Main: TForm Caption = '主窗口' Width = 600 Height = 400
  object btnModal: TButton Left = 10 Top = 10 Width = 75 Height = 25 Caption = '打开' OnClick = OpenModal end
  object btnFail: TButton Left = 10 Top = 40 Width = 75 Height = 25 Caption = '失败' OnClick = Fail end
  object chkFail: TCheckBox Left = 10 Top = 70 Width = 75 Height = 25 Caption = '会报错' OnClick = Fail end
  object btnOff: TButton Left = 10 Top = 100 Width = 75 Height = 25 Caption = '停用' Enabled = False OnClick = Count end
  object edt: TEdit Left = 100 Top = 10 Width = 75 Height = 25 Text = '中文' end
  object lbl: TLabel Left = 100 Top = 40 Width = 75 Height = 25 Caption = '无代码' end
  object txt: TStaticText Left = 100 Top = 70 Width = 75 Height = 25 Caption = '静态' end
end)";
constexpr std::string_view DialogForm = R"(object Dialog: TDialog Caption = '对话框' Width = 200 Height = 100
  object btnOk: TButton Left = 10 Top = 10 Width = 75 Height = 25 Caption = '确定' ModalResult = 1 end
end)";

class TServe : public testing::Test {
 protected:
    TServe() {
        Host.Define("Main", "OpenModal",
                    [this](HComponent&) { dynamic_cast<HCustomForm&>(Host.Form("Dialog")).ShowModal(); });
        Host.Define("Main", "Fail", [](HComponent&) { StrToInt("abc"); });
    }
    TLiveHost Host{{MainForm, DialogForm}};
};

}  // namespace

TEST_F(TServe, AnswersOfEveryKind) {
    const struct {
        const char *Request, *Answer;
    } rows[] = {
        {"edt$Find", "211 成功返回\nFalse"},
        {"中文$Find", "211 成功返回\nTrue"},
        {"?TEdit$Find(1,2,3)", "211 成功返回\nTrue"},
        {"?TButton$Find",
         "516 结果不唯一\n?TButton找到了3个符合条件的控件，它们分别是："
         "\r\n类名: TButton 标题：停用 内容：\r\n类名: TButton 标题：失败 内容："
         "\r\n类名: TButton 标题：打开 内容："},
        {"没有$Click", "515 查找失败\n没有找到没有对应的控件"},
        {"?TEdit$GetText", "211 成功返回\n中文"},
        {"?TEdit$SetText(S:新\\,的\\:)", "212 成功"},
        {"?TEdit$GetText()", "211 成功返回\n新,的:"},
        {"?TEdit$SetText(X:新)", "212 成功"},  // a name that is not the parameter's gives an empty text
        {"?TEdit$GetText", "211 成功返回"},
        {"?TEdit$SetText", "212 成功"},  // one parameter and no argument: filled in
        {"?TEdit$SetText(1,2)", "517 其他错误\n参数个数不匹配，需要1个，实传2个。"},
        {"?TEdit$Click", "517 其他错误\n适配器TSolviEditAdapter没有方法Click"},
        {"?TEdit$ReadOnly", "211 成功返回\nFalse"},
        {"停用?Button$Click", "517 其他错误\n控件[Button]方法[Click]不可用"},
        {"停用?tbutton$enabled", "211 成功返回\nFalse"},
        {"?ToolKit$GetVersion", "517 其他错误\nTRUXToolKit没有找到适配器"},
        {"a$b(1", "514 解析错误\n方法调用参数字符串没有找找到闭合的字符“)”"},
    };
    for (const auto& row : rows) EXPECT_EQ(Host.Ask(row.Request), row.Answer) << row.Request;
}

// What is not the engine's own failure reaches the application's report. Who asked not to hear of windows
// hears of it when the hour is over.
TEST_F(TServe, ForeignFailuresEndInTheApplicationsReport) {
    const struct {
        const char *Request, *Box, *Text;
        bool Leaves;  // the request, not a control's own procedure, lets it through
    } rows[] = {
        {"失败$Click", "'abc' is not a valid integer value.", "'abc' is not a valid integer value", true},
        {"无代码$Click", "Access violation at address 00000000. Read of address 00000000.",
         "Access violation at address 00000000. Read of address 00000000", true},
        {"静态$Click", "Stack overflow.", "Stack overflow", true},
        {"?TEdit#x$Find", "'x' is not a valid integer value.", "'x' is not a valid integer value", true},
        {"?TEdit#0$Find", nullptr, "Assertion failure (", true},
        {"会报错$Click", "'abc' is not a valid integer value.", nullptr, false},
    };
    std::uint64_t hours = 0;
    for (const auto& row : rows) {
        TPendingCall call(Host, std::string(row.Request) + "?IgnorePopupWindow");
        Host.WaitFor("show #32770");
        const std::string boxes = Host.Boxes();
        const std::string box =
            row.Box ? row.Box : "Assertion failure (Engine/Locator/RUXCommonLocator.cpp, line ";
        EXPECT_TRUE(boxes.starts_with("[App|确定|" + box)) << row.Request << boxes;
        // The host serves inside the box's loop; nothing of the application can be found under it.
        EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nFalse");
        Host.CloseBoxes();
        Host.WaitFor("close #32770");
        if (!row.Leaves) {
            EXPECT_EQ(call.Answer(), "212 成功");
            continue;
        }
        EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nTrue");
        // Nothing ends the request but the hour.
        Host.Clock().WaitUntilWaiters(1, ++hours * 3600000);
        Host.Clock().Advance(3600000);
        const std::string answer = call.Answer();
        EXPECT_TRUE(answer.starts_with("517 其他错误\n" + std::string(row.Text))) << row.Request << answer;
    }
    EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nTrue");
}

TEST_F(TServe, TheLogOfARequest) {
    Host.Ask("中文$Find");
    EXPECT_EQ(Host.Log(),
              "info - Request :/%E4%B8%AD%E6%96%87$Find\r\n"
              "info - Execute Test:中文$Find\r\n"
              "info - StactCount:0 Pop:中文$Find\r\n"
              "error - WaitForSingleObject Error:0\r\n"  // kept: the regular end of a wait is an error line
              "info - Finished_中文$Find\r\n");
    EXPECT_EQ(Host.Ask("ClearServer"), "212 \nTrue");
    EXPECT_EQ(Host.Log(), "");
    Host.Ask("没有$Click");
    EXPECT_EQ(
        Host.Log(),
        "info - Request :/%E6%B2%A1%E6%9C%89$Click\r\n"
        "info - Execute Test:没有$Click\r\n"
        "info - {--------------------------------------------------------------------------\r\n"
        "error - 没有,没有找到控件:\r\nTForm:主窗口\r\nTStaticText:静态\r\nTEdit:中文\r\nTButton:停用"
        "\r\nTCheckBox:会报错\r\nTButton:失败\r\nTButton:打开\r\nTLabel:无代码\r\nTVirtualWindow:App\r\n"
        "info - --------------------------------------------------------------------------}\r\n"
        "info - StactCount:0 Pop:没有$Click\r\n"
        "error - WaitForSingleObject Error:0\r\n"
        "error - 没有$Click\r\n"
        "info - Finished_没有$Click\r\n");
}

// Clearing in the middle harms nobody; what is posted later for a cleared request is ignored.
TEST_F(TServe, ClearingWhileARequestIsOpen) {
    TPendingCall opener(Host, "打开$Click?IgnorePopupWindow");
    Host.WaitFor("show TDialog 对话框");
    EXPECT_EQ(Host.Ask("ClearServer"), "212 \nTrue");
    EXPECT_EQ(Host.Ask("确定$Click"), "212 成功");
    Host.WaitFor("close TDialog 对话框");
    EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(Host.Engine().RequestStack.Count(), 0u);
    Host.Clock().WaitUntilWaiters(1, 3600000);
    Host.Clock().Advance(3600000);
    EXPECT_EQ(opener.Answer(), "212 成功");  // what the request held when the hour was over
    EXPECT_EQ(Host.Log().find("WaitForSingleObject Error:0\r\ninfo - Finished_打开"), std::string::npos);
}

}  // namespace rux::test
