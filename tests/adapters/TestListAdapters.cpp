// List boxes, check list boxes and combo boxes under their adapters.
#include "AdapterTestSupport.h"
#include "Engine/Adapters/RUXListAdapters.h"
#include "platform/headless/toolkit/HListBoxes.h"

namespace rux::test {

namespace {

constexpr std::string_view Form =
    R"(object F: TForm Left = 100 Top = 100 Width = 600 Height = 400 Visible = True ActiveControl = Other
         object Other: TEdit end
         object One: TListBox Left = 0 Top = 0 Width = 104 Height = 44 ItemHeight = 13 OnEnter = X
           OnClick = X OnDblClick = X OnMouseDown = X OnMouseUp = X Items.Strings = ('a' 'B' 'b' 'c d' '') end
         object Any: TListBox Left = 110 Top = 0 Width = 104 Height = 44 MultiSelect = True
           ExtendedSelect = False Items.Strings = ('a' 'b' 'c') OnClick = X end
         object Bunch: TListBox Left = 220 Top = 0 Width = 104 Height = 44 MultiSelect = True
           Items.Strings = ('a' 'c d') end
         object None: TListBox Left = 330 Top = 0 Width = 104 Height = 44 OnClick = X end
         object Ticks: TCheckListBox Left = 0 Top = 50 Width = 24 Height = 84 OnClick = X OnClickCheck = X
           OnMouseDown = X OnMouseUp = X Items.Strings = ('a' 'b' 'c') end
         object Doomed: TListBox Left = 440 Top = 0 Width = 104 Height = 44 Items.Strings = ('a' 'b')
           OnClick = Die end
         object Drop: TComboBox Left = 0 Top = 150 Width = 100 Height = 21 Text = 'typed' OnEnter = X
           OnDropDown = X OnCloseUp = X OnClick = X OnChange = X Items.Strings = ('One' 'two' 'TWO') end
         object Fixed: TComboBox Left = 0 Top = 180 Width = 100 Height = 21 Style = csDropDownList
           ItemIndex = 1 OnClick = X OnSelect = X OnChange = X Items.Strings = ('One' 'Two') end
         object Fields: TDBComboBox ReadOnly = True end
         object Pictures: TComboBoxEx Left = 0 Top = 210 Width = 100 Height = 22 Style = csExDropDownList
           OnChange = X ItemsEx = < item Caption = 'first' end item Caption = 'second' end > end
       end)";

class TListTest : public TAdapterTest {
 protected:
    TListTest() : TAdapterTest({Form}) {}
};

constexpr TRow Rows[] = {
    {"One.SelectByIndex(2); One.Selected; One.GetCount", "; B; 5",
     "cursor 156,144; send F.One WM_LBUTTONDOWN 0 50,19; event F.One OnEnter X; event F.One OnMouseDown X; "
     "send F.One WM_LBUTTONUP 0 50,19; event F.One OnClick X; event F.One OnMouseUp X"},
    // A name with a blank is two names, unless it is quoted.
    {"Bunch.Select(c d); Bunch.Selected; Bunch.Select(a|\"c d\"); Bunch.Selected", "; a; ; c d",
     "cursor 376,133; send F.Bunch WM_LBUTTONDOWN 0 50,8; send F.Bunch WM_LBUTTONUP 0 50,8; cursor 376,133; "
     "send F.Bunch WM_LBUTTONDOWN 0 50,8; send F.Bunch WM_LBUTTONUP 0 50,8; cursor 376,133; send F.Bunch "
     "WM_LBUTTONDOWN 0 50,8; send F.Bunch WM_LBUTTONUP 0 50,8; cursor 376,149; send F.Bunch WM_LBUTTONDOWN 0 "
     "50,24; send F.Bunch WM_LBUTTONUP 0 50,24"},
    // A name that is not there is the one before it, else the first item.
    {"Any.Select(c|nothing|b); Any.Selected; Any.Select(nothing); Any.Selected", "; b; ; a|b",
     "cursor 266,165; send F.Any WM_LBUTTONDOWN 0 50,40; send F.Any WM_LBUTTONUP 0 50,40; event F.Any "
     "OnClick X; cursor 266,149; send F.Any WM_LBUTTONDOWN 0 50,24; send F.Any WM_LBUTTONUP 0 50,24; event "
     "F.Any OnClick X; cursor 266,133; send F.Any WM_LBUTTONDOWN 0 50,8; send F.Any WM_LBUTTONUP 0 50,8; "
     "event F.Any OnClick X; cursor 266,117; send F.Any WM_LBUTTONDOWN 0 50,-8; send F.Any WM_LBUTTONUP 0 "
     "50,-8; event F.Any OnClick X"},
    {"Any.Select(c|a); Any.Selected", "; a|c",
     "cursor 266,165; send F.Any WM_LBUTTONDOWN 0 50,40; send F.Any WM_LBUTTONUP 0 50,40; event F.Any "
     "OnClick X; cursor 266,117; send F.Any WM_LBUTTONDOWN 0 50,-8; send F.Any WM_LBUTTONUP 0 50,-8; event "
     "F.Any OnClick X"},
    {"None.Select(a); None.Selected; None.GetCount", "; ; 0",
     "cursor 486,133; send F.None WM_LBUTTONDOWN 0 50,8; send F.None WM_LBUTTONUP 0 50,8"},
    {"One.SelectByIndex(0); One.SelectByIndex(6); None.SelectByIndex(1); Drop.SelectByIndex(4)",
     "EAdapterException: 超出范围，只能选择1到5的项; EAdapterException: 超出范围，只能选择1到5的项; "
     "EAdapterException: 超出范围，只能选择1到0的项; EAdapterException: 超出范围，只能选择1到3的项",
     ""},
    {"One.DblClick(C D); One.Selected; One.DblClick(nothing); One.Selected; Any.DblClick(b); Any.Selected",
     "; c d; ; ; ; ",
     "cursor 156,157; event F.One OnDblClick X; cursor 106,125; event F.One OnDblClick X; cursor 266,149"},
    {"One.DbClick", "",
     "event F.One OnEnter X; cursor 156,145; send F.One WM_LBUTTONDBLCLK 0 50,20; event F.One OnDblClick X; "
     "event F.One OnMouseDown X"},
    {"Doomed.Select(a|b)", "EAccessViolation: Access violation at address 00000000. Read of address 00000000",
     "cursor 596,133; send F.Doomed WM_LBUTTONDOWN 0 50,8; send F.Doomed WM_LBUTTONUP 0 50,8; event F.Doomed "
     "OnClick Die"},
    // The middle of a narrow list is its check square.
    {"Ticks.Select(b); Ticks.Selected", "; b",
     "cursor 116,199; send F.Ticks WM_LBUTTONDOWN 0 10,24; event F.Ticks OnMouseDown X; event F.Ticks "
     "OnClickCheck X; send F.Ticks WM_LBUTTONUP 0 10,24; event F.Ticks OnClick X; event F.Ticks OnMouseUp X"},
    {"Ticks.SetChecked(c|B|nothing,True); Ticks.SelectByIndex(3); Ticks.GetCount; Ticks.Click(a)",
     "; ; 3; no method",
     "cursor 116,215; send F.Ticks WM_LBUTTONDOWN 0 10,40; event F.Ticks OnMouseDown X; event F.Ticks "
     "OnClickCheck X; send F.Ticks WM_LBUTTONUP 0 10,40; event F.Ticks OnClick X; event F.Ticks OnMouseUp X"},
    {"Drop.Select(Two); Drop.Selected; Drop.GetText; Drop.GetCount", "; two; two; 3",
     "cursor 196,283; send F.Drop WM_LBUTTONDOWN 0 92,10; event F.Drop OnEnter X; event F.Drop OnDropDown X; "
     "send F.Drop WM_LBUTTONUP 0 92,10; cursor 196,283; send F.Drop WM_LBUTTONDOWN 0 92,10; event F.Drop "
     "OnCloseUp X; send F.Drop WM_LBUTTONUP 0 92,10; event F.Drop OnClick X; event F.Drop OnChange X"},
    {"Fixed.Select(three); Fixed.GetText", "EAdapterException: ComboBox中不存在项：three; Two",
     "cursor 196,313; send F.Fixed WM_LBUTTONDOWN 0 92,10; send F.Fixed WM_LBUTTONUP 0 92,10; cursor "
     "196,313; send F.Fixed WM_LBUTTONDOWN 0 92,10; send F.Fixed WM_LBUTTONUP 0 92,10"},
    {"Drop.SelectByIndex(3); Drop.Selected; Drop.SetText(new); Drop.GetText", "; TWO; ; new",
     "event F.Drop OnClick X; event F.Drop OnChange X"},
    {"Fixed.GetText; Fixed.SetText(ONE); Fixed.GetText; Fixed.SetText(three); Fixed.GetText",
     "Two; ; One; ; One", ""},
    {"Fixed.SelectByIndex(2)", "", "event F.Fixed OnClick X; event F.Fixed OnSelect X"},
    {"Drop.ReadOnly; Fields.ReadOnly", "ERUXException: 服务器没有处理控件TComboBox类型的ReadOnly调用; True",
     ""},
    {"Pictures.Select(SECOND); Pictures.Selected; Pictures.GetCount", "; second; 2",
     "cursor 196,344; send F.Pictures WM_LBUTTONDOWN 0 92,11; send F.Pictures WM_LBUTTONUP 0 92,11; cursor "
     "196,344; send F.Pictures WM_LBUTTONDOWN 0 92,11; send F.Pictures WM_LBUTTONUP 0 92,11; event "
     "F.Pictures OnChange X"},
};

class TListRowTest : public TListTest, public testing::WithParamInterface<TRow> {};

TEST_P(TListRowTest, ActsAsTold) {
    Play(GetParam());
}

INSTANTIATE_TEST_SUITE_P(Lists, TListRowTest, testing::ValuesIn(Rows));

TEST_F(TListTest, DumpTellsWhatIsChecked) {
    Run("Ticks.SetChecked(a|c,True); Ticks.SelectByIndex(3)");
    std::string states;
    for (const HContentLine& line : Find("Ticks")->Content())
        states += std::string(line.Kind) + " " + line.Texts.at(0) + " " + line.State + "; ";
    EXPECT_EQ(states, "item a checked; item b ; item c selected; ");
}

TEST_F(TListTest, ManyNamesAreFoundAsFewAre) {
    auto& items = dynamic_cast<HItemsControl&>(*Find("One")).Items();
    EXPECT_EQ(ParseListNames(items, "x|B|C"), (std::vector<std::int32_t>{0, 1, 1}));
    EXPECT_EQ(ParseListNames(items, "x|B|b|x|\"C D\"|a"), (std::vector<std::int32_t>{0, 1, 1, 1, 3, 0}));
}

}  // namespace

}  // namespace rux::test
