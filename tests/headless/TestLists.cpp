// List boxes and combo boxes by mouse and keyboard.
#include <gtest/gtest.h>

#include "platform/headless/toolkit/HListBoxes.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

namespace {

struct TRow {
    const char* Form;
    const char* Actions;
    const char* Journal;
    /// The control L as a dump shows it: items with [state].
    const char* Content;
};

constexpr TRow Rows[] = {
    // 35 is End, 36 Home, 38 Up, 40 Down, 32 Space.
    {"L:TListBox@0,0,104,44 ItemHeight = 13 Items.Strings = ('a' 'b' 'c' 'd' 'e') ~Click end",
     "focus L; key 40; key 40; key 65; key 38; key 38; key 35; key 40; click L 9,15",
     "L.Click; L.Click; L.Click; L.Click; L.Click; L.Click; L.Click", "a[] b[] c[] d[selected] e[]"},
    {"L:TListBox@0,0,104,44 MultiSelect = True ExtendedSelect = False Items.Strings = ('a' 'b' 'c') ~Click "
     "end",
     "focus L; key 36; key 32; key 40; key 40; key 32", "L.Click; L.Click; L.Click; L.Click; L.Click",
     "a[selected] b[] c[selected]"},
    {"L:TListBox@0,0,104,44 MultiSelect = True Items.Strings = ('a' 'b') ~Click end",
     "click L 9,9; focus L; key 40", "L.Click; L.Click", "a[] b[selected]"},
    // Two columns of two; a button that comes down on no item, or whose capture was taken, is no click.
    {"L:TListBox@0,0,104,36 Columns = 2 Items.Strings = ('a' 'b' 'c' 'd' 'e') ~Click end E:TEdit end",
     "click L 60,20; click L 60,40; down L 60,4; set L.Enabled False; up L; set L.Enabled True; focus L; key "
     "35; "
     "click L 5,5",
     "L.Click; L.Click; L.Click", "a[] b[] c[selected] d[] e[]"},
    {"L:TListBox@0,0,104,44 Sorted = True Items.Strings = ('b' 'C' 'a') ~Click ~DblClick ~MouseDown end",
     "click L 9,9; dbl L 9,9; up L", "L.MouseDown; L.Click; L.DblClick; L.MouseDown", "a[selected] b[] C[]"},
    {"L:TCheckListBox@0,0,104,44 AllowGrayed = True Items.Strings = ('a' 'b') ~Click ~ClickCheck ~KeyPress "
     "end",
     "click L 9,9; click L 9,9; click L 90,20; key 32; click L 9,40",
     "L.ClickCheck; L.Click; L.ClickCheck; L.Click; L.Click; L.KeyPress; L.ClickCheck",
     "a[checked] b[selected, grayed]"},
    {"L:TListBox@0,0,104,44 Items.Strings = ('a' 'b') ~Click OnMouseDown = Die end", "click L 9,9",
     "L.MouseDown", ""},
    {"L:TListBox@0,0,104,44 Items.Strings = ('a' 'b') ~Click OnEnter = Die end", "click L 9,9",
     "L.Enter; no L", ""},
    {"ActiveControl = E E:TEdit end L:TComboBox@0,0,100,21 ItemIndex = 1 Items.Strings = ('a' 'b' 'c') "
     "~Change "
     "~DropDown ~CloseUp ~Enter end B:TButton Default = True ~Click end",
     "get L.Text; click L 9,9; click L 90,9; key 40; key 13; click L 90,9; focus E; focus L; key 38; key 38; "
     "key 38; "
     "key 13; set L.Text B; get L.ItemIndex; set L.ItemIndex 7; get L.ItemIndex; get L.Text",
     "L.Text=b; L.Enter; L.DropDown; L.Change; L.CloseUp; L.DropDown; L.CloseUp; L.Enter; L.Change; "
     "L.Change; B.Click; L.ItemIndex=0; L.ItemIndex=-1; L.Text=",
     "a[] b[] c[]"},
    {"L:TComboBox@0,0,100,21 Style = csDropDownList Sorted = True Items.Strings = ('b' 'a') ~Click ~Select "
     "~Change end",
     "click L 9,9; key 40; get L.Text; set L.Text B; get L.ItemIndex; set L.Text x; get L.ItemIndex",
     "L.Click; L.Select; L.Text=a; L.ItemIndex=1; L.ItemIndex=1", "a[] b[selected]"},
    {"L:TComboBox@0,0,100,121 Style = csSimple Items.Strings = ('a') ~DropDown end", "click L 90,9", "",
     "a[]"},
    {"L:TComboBox@0,0,100,21 Items.Strings = ('a') ~Select OnClick = Die end", "focus L; key 40", "L.Click",
     ""},
    {"L:TComboBoxEx@0,0,100,21 ItemIndex = 1 ItemsEx = < item Caption = 'p' end item Caption = 'q' end > end",
     "get L.Text", "L.Text=q", "p[] q[selected]"},
};

TEST(Lists, ActAsTheWindowSystemHasThem) {
    for (const TRow& row : Rows) {
        TStage stage(row.Form, "Die: free L");
        EXPECT_EQ(stage.Play(row.Actions), row.Journal) << row.Form;
        HComponent* list = stage.Find("L");
        std::string content;
        for (const HContentLine& line : list ? list->Content() : std::vector<HContentLine>())
            content += (content.empty() ? "" : " ") + line.Texts[0] + "[" + line.State + "]";
        EXPECT_EQ(content, row.Content) << row.Form;
    }
}

TEST(Lists, ItemsHavePlacesAndNewItemsNoState) {
    TStage stage("L:TCheckListBox@0,0,104,30 ItemHeight = 13 Items.Strings = ('a' 'b' 'c') end");
    auto& list = dynamic_cast<HCheckListBox&>(*stage.Find("L"));
    const auto top = [&](int index) { return list.ItemRect(index).Top; };
    list.SetItemIndex(2);
    EXPECT_TRUE(top(0) == -13 && top(2) == 13 && top(3) == 26 && list.ItemRect(4) == TRect{} && top(-1) == 0);
    EXPECT_TRUE(list.ItemAt({5, -1}) == 0 && list.ItemAt({5, 30}) == -1 && list.ItemAt({5, -14}) == -1);
    list.SetChecked(1, true);
    EXPECT_THROW(list.Checked(3), EStringListError);
    EXPECT_THROW(list.Selected(-1), EStringListError);
    list.Items().SetLines({"x", "y", "z"});
    EXPECT_TRUE(!list.Checked(1) && list.ItemIndex() == -1 && top(0) == 0);
}

}  // namespace

}  // namespace rux::test
