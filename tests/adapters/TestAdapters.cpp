// What each adapter method does to the desktop, step by step.
#include "AdapterTestSupport.h"
#include "Engine/Adapters/RUXButtonAdapters.h"
#include "Engine/Input/RUXInput.h"

namespace rux::test {

namespace {

constexpr TRow CommonRows[] = {
    {"Edit1.Active", "", "event F.Edit1 OnEnter X"},
    {"Off.Active", "EInvalidOperation: Cannot focus a disabled or invisible window", ""},
    {"Edit1.RightClick", "",
     "event F.Edit1 OnEnter X; cursor 964,155; post F.Edit1 WM_RBUTTONDOWN 0 48,10; "
     "post F.Edit1 WM_RBUTTONUP 0 48,10; event F.Edit1 OnMouseDown X; event F.Edit1 OnContextPopup X; "
     "event F.Edit1 OnMouseUp X"},
    {"Edit1.DbClick", "",
     "event F.Edit1 OnEnter X; cursor 964,155; send F.Edit1 WM_LBUTTONDBLCLK 0 48,10; "
     "event F.Edit1 OnDblClick X; event F.Edit1 OnMouseDown X"},
    {"Label1.Active; Label1.DbClick; Label1.RightClick",
     "EAdapterException: 当前控件不支持Active方法.; EAdapterException: 当前控件不支持鼠标双击方法.; "
     "EAdapterException: 当前控件不支持鼠标右键方法.",
     ""},
    {"Edit1.Enabled; Off.Enabled; Label1.Enabled; Off.Find", "True; False; True; True", ""},
    {"Edit1.ReadOnly; Fixed.ReadOnly; Off.ReadOnly; Date1.ReadOnly",
     "False; True; True; ERUXException: 服务器没有处理控件TDateTimePicker类型的ReadOnly调用", ""},
    // Keys: nothing but RETURN reaches a window.
    {"Edit1.SendKey(return,)", "", "key down 13; sleep 20; key up 13"},
    {"Edit1.SendKey(f2,)", "", "send nothing WM_SYSKEYDOWN 113 0; send nothing WM_SYSKEYUP 113 0"},
    {"Edit1.SendKey(Down,aA)", "",
     "send nothing WM_SYSKEYDOWN 17 0; send nothing WM_SYSKEYDOWN 40 0; send nothing WM_SYSKEYUP 40 0; send "
     "nothing WM_SYSKEYUP 17 0"},
    {"Edit1.SendKey(,Ca)", "",
     "send nothing WM_SYSKEYDOWN 17 0; send nothing WM_SYSKEYDOWN 18 0; send nothing WM_SYSKEYUP 17 0; send "
     "nothing WM_SYSKEYUP 18 0"},
    {"Edit1.SendKey(Enter,)", "", ""},
    // The control may be gone after any step.
    {"Doomed.Click; Doomed.Click",
     "EAccessViolation: Access violation at address 00000000. Read of address 00000000; no adapter",
     "event F.Doomed OnEnter Die"},
};

constexpr TRow FamilyRows[] = {
    {"Edit1.SetText(new); Edit1.GetText", "; new", "event F.Edit1 OnEnter X; event F.Edit1 OnChange X"},
    {"Edit1.SetText(old); Edit1.GetText", "; old", "event F.Edit1 OnEnter X"},
    {"Fixed.SetText(new); Fixed.GetText", "EAdapterException: Edit不能编辑; stays",
     "event F.Fixed OnEnter X"},
    {"Off.SetText(new); Off.GetText", "EInvalidOperation: Cannot focus a disabled or invisible window; off",
     ""},
    {"Memo.SetText(line); Memo.GetText", "; line", "event F.Memo OnChange X"},
    {"Date1.SetText(2008-2-29); Date1.GetText; Date1.SetText(7-9); Date1.GetText", "; 2008-2-29; ; 2008-7-9",
     ""},
    {"Date1.SetText(2008-2-29); Date1.SetText(soon); Date1.GetText",
     "; EAdapterException: 'soon' is not a valid date; 2008-2-29", ""},
    {"Button1.Click", "", "event F.Button1 OnEnter X; event F.Button1 OnClick X"},
    {"Speed.Click", "", "event F.Speed OnClick X"},
    {"Label1.Click; Label1.GetText", "; A label", "event F.Label1 OnClick X"},
    {"Bare.Click", "EAccessViolation: Access violation at address 00000000. Read of address 00000000", ""},
    {"Static1.GetText", "Standing", ""},
    {"Check1.Click; Check1.Checked", "; True",
     "event F.Check1 OnEnter X; send F.Check1 CN_COMMAND 0 0; event F.Check1 OnClick X"},
    {"Check1.Click; Check1.Click; Check1.Checked", "; ; False",
     "event F.Check1 OnEnter X; send F.Check1 CN_COMMAND 0 0; event F.Check1 OnClick X; "
     "send F.Check1 CN_COMMAND 0 0; event F.Check1 OnClick X"},
    {"Tick.SetChecked(True); Tick.Checked", "; True", "event F.Tick OnEnter X"},
    {"Tick.SetChecked(False); Tick.Checked", "; False", "event F.Tick OnClick X; event F.Tick OnEnter X"},
    {"Check1.MouseDown; Check1.Checked", "; False",
     "event F.Check1 OnEnter X; send F.Check1 WM_LBUTTONDOWN 1 0,0"},
    // The cursor stops at the edge of the screen, and the click lands where it stands.
    {"Near.Checked; Far.Checked; Far.Click; Far.Checked; Near.Checked", "True; False; ; True; False",
     "event F.Far OnEnter X; cursor 1279,211; send F.Far WM_LBUTTONDOWN 0 75,8; "
     "send F.Far WM_LBUTTONUP 0 75,8; event F.Far OnClick X"},
    {"Child.Active", "", "event Child OnActivate X"},
    {"Spare.Active", "", "event Spare OnActivate X"},
    {"F.Close; F.Active; pump", "; ; ",
     "post F WM_CLOSE 0 0; event F OnClose X; close TForm One form; event Spare OnActivate X"},
};

class TRowTest : public TAdapterTest, public testing::WithParamInterface<TRow> {};

TEST_P(TRowTest, ActsAsTold) {
    Play(GetParam());
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Common, TRowTest, testing::ValuesIn(CommonRows));
INSTANTIATE_TEST_SUITE_P(Family, TRowTest, testing::ValuesIn(FamilyRows));

namespace {

TEST_F(TAdapterTest, FocusedButtonIsClickedThoughDisabled) {
    auto* button = static_cast<HControl*>(Find("Spare")->FindComponent("Kept"));
    MakeIntf<TSolviButtonAdapter>(button)->Click();
    EXPECT_EQ(Journal(), "event Spare.Kept OnClick X");
}

TEST_F(TAdapterTest, FormTellsWhatStandsOnIt) {
    HCreateParams params;
    params.ClassName = "Static";
    params.Text = "native";
    params.Style = WS_CHILD;
    params.Parent = static_cast<HWinControl*>(Find("Box"))->Handle();
    Desktop.Desktop().CreateWindowA(params);
    for (const char* name : {"Edit1", "Fixed", "Off", "Memo", "Check1"}) Find(name)->Free();
    EXPECT_EQ(
        Run("F.Close; F.GetInfo"),
        "; One form\r\nTStaticText:Standing\r\nTPanel:Box\r\nTButton:&Do it\r\nother:native\r\nTEdit:first");
}

TEST_F(TAdapterTest, KeysReachTheWindowThatIsNamed) {
    const HWnd window = static_cast<HWinControl*>(Find("Edit1"))->Handle();
    SendKey(window, "F2", "c");
    EXPECT_EQ(Journal(),
              "send F.Edit1 WM_SYSKEYDOWN 18 0; send F.Edit1 WM_SYSKEYDOWN 113 0; send F.Edit1 WM_SYSKEYUP "
              "113 0; send F.Edit1 WM_SYSKEYUP 18 0");
    Kernel.OnSleep = [](std::uint32_t) { throw EOSError("interrupted"); };
    EXPECT_EQ(ErrorOf([&] { SendKey(window, "RETURN", "a"); }), "EOSError: interrupted");
    EXPECT_EQ(Journal(), "send F.Edit1 WM_SYSKEYDOWN 17 0; key down 13; send F.Edit1 WM_SYSKEYUP 17 0");
}

TEST_F(TAdapterTest, PostedClickIsPumped) {
    const HWnd window = static_cast<HWinControl*>(Find("Check1"))->Handle();
    PostClickRect(window, OffsetRectBy({3, 4, 3, 4}, {2, 1}));
    EXPECT_EQ(Journal(),
              "cursor 919,188; post F.Check1 WM_LBUTTONDOWN 0 5,5; post F.Check1 WM_LBUTTONUP 0 5,5; "
              "event F.Check1 OnEnter X; event F.Check1 OnClick X");
    const TPoint low = CenterOf({-3, -8, 0, 3}), high = CenterOf({2147483645, 0, 2147483647, 0});
    EXPECT_TRUE(low == (TPoint{-1, -2}) && high == (TPoint{2147483646, 0}));
}

TEST_F(TAdapterTest, NeedsAControl) {
    const std::string error = ErrorOf([] { MakeIntf<TSolviLabelAdapter>(nullptr); });
    EXPECT_EQ(error.substr(0, error.rfind(' ')),
              "EAssertionFailed: 适配的控件必须存在！ (Engine/Adapters/RUXTestAdapter.cpp, line");
}

TEST_F(TAdapterTest, StaticTextRunsOutOfStackAndNothingElse) {
    const TIntf<IRUXAdapter> adapter = AdapterOf("Static1");
    auto& label = dynamic_cast<IButton&>(*adapter);
    std::string first, second;
    const auto thread = Kernel.StartThread([&] {
        first = ErrorOf([&] { label.Click(); });
        second = ErrorOf([&] { label.Click(); });
    });
    ASSERT_EQ(thread->WaitFor(WaitForever), TWaitResult::Signalled);
    EXPECT_EQ(first, "EStackOverflow: Stack overflow");
    EXPECT_EQ(second, "EStackOverflow: Stack overflow");
    EXPECT_EQ(Run("Static1.GetText"), "Standing");
}

}  // namespace

}  // namespace rux::test
