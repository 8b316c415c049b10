// What the adapters of tabs, pages and status bars do to the desktop, step by step.
#include "AdapterTestSupport.h"
#include "platform/headless/toolkit/HPageControl.h"

namespace rux::test {

namespace {

constexpr std::string_view FormText = R"(
object F: TForm Left = 100 Top = 50 Width = 600 Height = 400 BorderStyle = bsNone Visible = True
  object Strip: TTabControl Left = 10 Top = 10 Width = 300 Height = 100 OnChanging = X OnChange = X
    Tabs.Strings = ('one' 'two' 'three') end
  object Stuck: TTabControl Tabs.Strings = ('a' 'b') TabIndex = 1 OnChanging = No OnChange = X end
  object Doomed: TTabControl Tabs.Strings = ('a' 'b') OnChanging = Die OnChange = X end
  object Empty: TTabControl end
  object Pages: TPageControl Left = 10 Top = 120 Width = 300 Height = 100 OnChanging = X OnChange = X
    object P1: TTabSheet Caption = 'first' OnHide = X end
    object P2: TTabSheet Caption = 'none' TabVisible = False end
    object P3: TTabSheet Caption = 'last' OnShow = X end end
  object Shut: TPageControl OnChanging = No object S1: TTabSheet end object S2: TTabSheet OnShow = X end end
  object Bar: TStatusBar SimplePanel = True SimpleText = 's'
    Panels = <item Text = 'a' end item end item Text = 'b' end> end
  object Bare: TStatusBar SimpleText = 's' end
  object Tbx: TTBXStatusBar Panels = <item Caption = 'c' end item Text = 't' end> end
end)";

}  // namespace

class TTabAdapterTest : public TAdapterTest {
 protected:
    TTabAdapterTest() : TAdapterTest({FormText}) {
        Find("F")->DefineMethod("No", [](HObject&, HEventArgs& args) { args.Allow = false; });
    }
};

TEST_F(TTabAdapterTest, ActAsTold) {
    const TRow rows[] = {
        // Asked by name, by the click of the tab and by the tab itself; told by the tab and once more.
        {"Strip.GetCount; Strip.Selected; Strip.Select(THREE); Strip.Selected", "3; one; ; three",
         "event F.Strip OnChanging X; event F.Strip OnChanging X; cursor 194,72; "
         "send F.Strip WM_LBUTTONDOWN 0 84,12; event F.Strip OnChanging X; event F.Strip OnChange X; "
         "send F.Strip WM_LBUTTONUP 0 84,12; event F.Strip OnChange X"},
        // The selected tab does not notice the click.
        {"Strip.SelectByIndex(3)", "",
         "event F.Strip OnChanging X; cursor 194,72; send F.Strip WM_LBUTTONDOWN 0 84,12; "
         "send F.Strip WM_LBUTTONUP 0 84,12; event F.Strip OnChange X"},
        {"Strip.Select(four); Strip.SelectByIndex(0); Strip.SelectByIndex(4)",
         "EAdapterException: PageControl中没有找到：four; EAdapterException: 超出范围，只能选择1到3的项; "
         "EAdapterException: 超出范围，只能选择1到3的项",
         "event F.Strip OnChanging X"},
        {"Stuck.Select(a); Stuck.Select(absent); Stuck.SelectByIndex(1); Stuck.Selected", "; ; ; b",
         "event F.Stuck OnChanging No; event F.Stuck OnChanging No; event F.Stuck OnChanging No"},
        {"Doomed.Select(b)",
         "EAccessViolation: Access violation at address 00000000. Read of address 00000000",
         "event F.Doomed OnChanging Die"},
        {"Empty.Selected; Empty.SelectByIndex(1)",
         "EStringListError: List index out of bounds (-1); EAdapterException: 超出范围，只能选择1到0的项",
         ""},
        // Tabs are the pages that have one.
        {"Pages.GetCount; Pages.Select(none); Pages.SelectByIndex(2); Pages.Selected",
         "2; EAdapterException: PageControl中没有找到：none; ; last",
         "event F.Pages OnChanging X; event F.Pages OnChanging X; cursor 162,182; "
         "send F.Pages WM_LBUTTONDOWN 0 52,12; event F.Pages OnChanging X; event F.P3 OnShow X; "
         "event F.P1 OnHide X; event F.Pages OnChange X; send F.Pages WM_LBUTTONUP 0 52,12; "
         "event F.Pages OnChange X"},
        {"P1.Click; Pages.Selected; P3.Click; P2.Click; Pages.Selected",
         "; first; ; ; EStringListError: List index out of bounds (-1)",
         "event F.Pages OnChanging X; event F.Pages OnChange X; event F.Pages OnChanging X; "
         "event F.P3 OnShow X; event F.P1 OnHide X; event F.Pages OnChange X; event F.Pages OnChanging X; "
         "event F.Pages OnChange X"},
        {"S2.Click; Shut.SelectByIndex(2)", "; ", "event F.Shut OnChanging No; event F.Shut OnChanging No"},
        {"Bar.GetText; Bare.GetText; Tbx.GetText", "a;;b; ; c;t", ""},
    };
    for (const TRow& row : rows) Play(row);
}

TEST_F(TTabAdapterTest, APageThatGoesIsPutNowhereElse) {
    auto& page = dynamic_cast<HTabSheet&>(*Find("P1"));
    auto& shut = dynamic_cast<HPageControl&>(*Find("Shut"));
    // P3 comes up instead.
    Find("F")->DefineMethod("X", [&](HObject&, HEventArgs&) { page.SetParent(&shut); });
    page.Free();
    EXPECT_EQ(shut.PageCount(), 2);
}

}  // namespace rux::test
