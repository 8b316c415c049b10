// List views, and the list and the combo box over folders, under their adapters.
#include <filesystem>

#include "AdapterTestSupport.h"
#include "Engine/Core/RUXTextMatcher.h"
#include "Engine/Locator/RUXListFindAdapters.h"
#include "platform/headless/toolkit/HListView.h"
#include "platform/headless/toolkit/HShellCtrls.h"
#include "platform/posix/SystemNames.h"
#include "rtl/Text.h"

namespace rux::test {

namespace {

constexpr std::string_view ViewForm =
    R"(object F: TForm Left = 100 Top = 100 Width = 600 Height = 400 Visible = True ActiveControl = Other
         object Other: TEdit end
         object Rows: TListView Left = 0 Top = 0 Width = 304 Height = 70 ViewStyle = vsReport
           Checkboxes = True OnEnter = X OnClick = X OnDblClick = X OnChange = X OnSelectItem = X
           OnMouseDown = X Columns = < item Caption = '名称' Width = 100 end item Caption = '金额' Width = 80
           end item Caption = '金 额' Width = 80 end > end
         object Many: TListView Left = 0 Top = 80 Width = 304 Height = 70 ViewStyle = vsList
           MultiSelect = True OnSelectItem = X end
         object Hidden: TListView Left = 0 Top = 160 Width = 304 Height = 70 ViewStyle = vsReport
           OnSelectItem = X end
         object Dies: TListView Left = 0 Top = 240 Width = 304 Height = 70 OnEnter = Drop OnSelectItem = X
           OnClick = X end
       end)";

class TListViewTest : public TAdapterTest, public testing::WithParamInterface<TRow> {
 protected:
    TListViewTest() : TAdapterTest({ViewForm}) {
        Add("Rows", {"甲", "12", "7"});
        Add("Rows", {"乙 一", "3"});
        Add("Rows", {"a\\b|c", "|\\"});
        Add("Rows", {"甲", "9"});
        Add("Rows", {"誠|", "0"});
        for (const char* view : {"Many", "Hidden", "Dies"})
            for (const char* text : {"甲", "乙", "丙|1"}) Add(view, {text});
        auto* drop = static_cast<HCustomListView*>(Find("Dies"));
        Find("F")->DefineMethod("Drop", [drop](HObject&, HEventArgs&) { drop->Delete(0); });
    }
    void Add(std::string_view view, std::initializer_list<const char*> texts) {
        std::vector<std::string> columns;
        for (const char* text : texts) columns.push_back(Ansi(text));
        const std::string caption = columns.front();
        columns.erase(columns.begin());
        static_cast<HCustomListView*>(Find(view))->AddItem(caption, columns);
    }
};

constexpr TRow ViewRows[] = {
    {"Rows.GetCount; Rows.Selected; Rows.Select(乙一); Rows.Selected", "5; ; ; 乙 一|3",
     "event F.Rows OnEnter X; cursor 164,167; event F.Rows OnChange X; event F.Rows OnSelectItem X; event "
     "F.Rows OnClick X"},
    // The row is below those that are shown: the view scrolls by so much that it is seen.
    {"Rows.SelectByIndex(5); Rows.Selected; Rows.SelectByIndex(1); Rows.Selected", "; 誠\\||0; ; 甲|12|7",
     "event F.Rows OnEnter X; cursor 164,183; event F.Rows OnChange X; event F.Rows OnSelectItem X; event "
     "F.Rows OnClick X; cursor 164,151; event F.Rows OnChange X; event F.Rows OnSelectItem X; event F.Rows "
     "OnChange X; event F.Rows OnSelectItem X; event F.Rows OnClick X"},
    {"Rows.DblClick(A\\\\B|c); Rows.Selected", "; a\\\\b\\|c|\\|\\\\",
     "event F.Rows OnEnter X; cursor 164,183; event F.Rows OnChange X; event F.Rows OnSelectItem X; event "
     "F.Rows OnDblClick X"},
    {"Rows.SelectByIndex(0); Rows.SelectByIndex(6); Rows.Select(none)",
     "EAdapterException: 超出范围，只能选择1到5的项; EAdapterException: 超出范围，只能选择1到5的项; "
     "EAdapterException: 没有找到对应的项:[none]",
     ""},
    // In reports the first sub-items count too, and what stands in any of the columns with the caption.
    {"Rows.Select(甲|9); Rows.Selected", "; 甲|9",
     "event F.Rows OnEnter X; cursor 164,183; event F.Rows OnChange X; event F.Rows OnSelectItem X; event "
     "F.Rows OnClick X"},
    {"Rows.Select(金额=7); Rows.Selected; Rows.Select(名称=乙一); Rows.Selected", "; 甲|12|7; ; 乙 一|3",
     "event F.Rows OnEnter X; cursor 164,151; event F.Rows OnChange X; event F.Rows OnSelectItem X; event "
     "F.Rows OnClick X; cursor 164,167; event F.Rows OnChange X; event F.Rows OnSelectItem X; event F.Rows "
     "OnChange X; event F.Rows OnSelectItem X; event F.Rows OnClick X"},
    {"Rows.Select(甲|12|7|); Rows.Select(金额=1=2); Rows.Select(名称=); Many.Select(丙); Many.Select(|)",
     "EAdapterException: 没有找到对应的项:[甲|12|7|]; EAdapterException: 没有找到对应的项:[金额=1=2]; "
     "EAdapterException: 没有找到对应的项:[名称=]; EAdapterException: 没有找到对应的项:[丙]; "
     "EAdapterException: 没有找到对应的项:[|]",
     ""},
    // The names before one that is not there keep their change.
    {"Rows.SetChecked(甲|A\\\\B|誠,True); Rows.Checked; Rows.SetChecked(\"誠|\"|甲,True); Rows.Checked; "
     "Rows.SetChecked(甲,False); Rows.Checked",
     "ERUX_NotFoundError: 节点A\\B没有找到; |甲|甲; ; |甲|甲|誠|; ; |誠|",
     "event F.Rows OnChange X; event F.Rows OnChange X; event F.Rows OnChange X; event F.Rows OnChange X; "
     "event F.Rows OnChange X"},
    // Where several items may be selected, the first of them is asked for.
    {"Many.Select(丙|1); Many.SelectByIndex(2); Many.Selected", "; ; 乙",
     "cursor 118,245; event F.Many OnSelectItem X; cursor 114,229; event F.Many OnSelectItem X"},
    // Without columns no label is seen, and the cursor stays.
    {"Hidden.SelectByIndex(2); Hidden.Selected", "; 乙", "event F.Hidden OnSelectItem X"},
    // The item goes while the view takes the focus.
    {"Dies.Select(甲); Dies.GetCount; Dies.Selected",
     "EAccessViolation: Access violation at address 00000000. Read of address 00000000; 2; ",
     "event F.Dies OnEnter Drop"},
};

TEST_P(TListViewTest, ActsAsTold) {
    EXPECT_EQ(Run(Ansi(GetParam().Script)), GetParam().Answers);
    EXPECT_EQ(Journal(), GetParam().Journal);
}

constexpr std::string_view ShellForm =
    R"(object F: TForm Left = 100 Top = 100 Width = 600 Height = 400 Visible = True ActiveControl = Other
         object Other: TEdit end
         object List: TShellListView Left = 0 Top = 0 Width = 304 Height = 104 ViewStyle = vsReport
           OnClick = X OnDblClick = X OnMouseDown = X OnSelectItem = X end
         object Combo: TShellComboBox Left = 0 Top = 120 Width = 200 Height = 21 OnClick = X OnChange = X end
       end)";

class TShellTest : public TAdapterTest, public testing::WithParamInterface<TRow> {
 protected:
    TShellTest() : TAdapterTest({ShellForm}) {
        for (const char* name : {"b/x/y", "誠", ".hidden"})
            std::filesystem::create_directories(FFolder / name);
        for (const char* name : {"A.txt", "b/in"}) Files.WriteFile(Name(name), "x");
        static_cast<HShellListView*>(Find("List"))->SetRoot(Name(""));
        static_cast<HShellComboBox*>(Find("Combo"))->SetRoot(Name(""));
    }
    ~TShellTest() override { std::filesystem::remove_all(FFolder); }
    std::string Name(const char* below) const { return NameFromSystem((FFolder / below).string()); }
    /// The folder's name, which is made up anew each time, is `~`.
    std::string Told(std::string text) const {
        const std::string name = AnsiToUtf8(Name(""));
        for (std::size_t at = text.find(name); at != text.npos; at = text.find(name))
            text.replace(at, name.size(), "~\\");
        return text;
    }
    const std::filesystem::path FFolder =
        mkdtemp((std::filesystem::temp_directory_path() / "rux-shell-XXXXXX").string().data());
};

constexpr TRow ShellRows[] = {
    {"List.GetCount; List.Selected; List.Select(a.TXT); List.Selected", "3; ; ; A.txt",
     "event F.List OnSelectItem X; event F.List OnClick X"},
    {"List.SelectByIndex(2); List.Selected; List.SelectByIndex(4); List.Select(.hidden)",
     "; 誠; EAdapterException: 超出范围，只能选择1到3的项; EAdapterException: 没有找到对应的项:[.hidden]",
     "event F.List OnSelectItem X; cursor 114,167; post F.List WM_LBUTTONDOWN 0 8,42; post F.List "
     "WM_LBUTTONUP 0 8,42; event F.List OnMouseDown X; event F.List OnClick X"},
    // A folder is entered.
    {"List.DblClick(B); List.GetCount; List.DblClick(in); List.Selected", "; 2; ; in",
     "event F.List OnSelectItem X; cursor 114,151; send F.List WM_LBUTTONDBLCLK 0 8,26; event F.List "
     "OnDblClick X; event F.List OnMouseDown X; event F.List OnSelectItem X; cursor 114,167; send F.List "
     "WM_LBUTTONDBLCLK 0 8,42; event F.List OnDblClick X; event F.List OnMouseDown X"},
    {"List.Checked; List.SetChecked(b,True); List.Checked", "; ; ", ""},
    {"Combo.GetCount; Combo.Selected; Combo.SetText(B); Combo.Selected; Combo.GetText; Combo.SetText(A.txt)",
     "3; ~\\; ; ~\\b; b; EAdapterException: 找不到文件：A.txt",
     "event F.Combo OnClick X; event F.Combo OnChange X"},
    // A path that is not there leaves the choice, and the control is told all the same.
    {"Combo.Select(~b\\\\x); Combo.Selected; Combo.GetText; Combo.GetCount; Combo.Select(~none); "
     "Combo.Selected",
     "; ~\\b\\x; x; 4; ; ~\\b\\x",
     "event F.Combo OnClick X; event F.Combo OnChange X; event F.Combo OnClick X; event F.Combo OnChange X"},
};

TEST_P(TShellTest, ActsAsTold) {
    // Scripts have each backslash twice.
    const std::string folder = ReplaceAll(Name(""), "\\", "\\\\");
    EXPECT_EQ(Told(Run(ReplaceAll(Ansi(GetParam().Script), "~", folder))), GetParam().Answers);
    EXPECT_EQ(Journal(), GetParam().Journal);
}

TEST_F(TShellTest, ComboHasNoChoiceByIndex) {
    EXPECT_EQ(Run("Combo.SelectByIndex(4)"), "EAdapterException: 超出范围，只能选择1到3的项");
    const std::string refusal = Run("Combo.SelectByIndex(1)");
    EXPECT_TRUE(
        refusal.starts_with("EAssertionFailed: Assertion failure (Engine/Adapters/RUXShellAdapters.cpp"));
    TShellComboBoxFindAdapter finder(Find("Combo"));
    EXPECT_EQ(Told(AnsiToUtf8(finder.GetContent() + finder.GetCaption())),
              "~\\" + FFolder.filename().string());
}

TEST_F(TListViewTest, IsFoundByItsItems) {
    TListViewFindAdapter finder(Find("Many"));
    EXPECT_EQ(AnsiToUtf8(finder.GetContent()), "甲|乙|丙|1");
    const std::pair<const char*, bool> rows[] = {
        {"甲|丙", true}, {"乙|甲", true}, {"甲|丁", false}, {"甲丙", false}};
    for (const auto& [text, expected] : rows)
        EXPECT_EQ(finder.IsMatch(TTextMatcher(Ansi(text), false)), expected) << text;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Views, TListViewTest, testing::ValuesIn(ViewRows));
INSTANTIATE_TEST_SUITE_P(Shell, TShellTest, testing::ValuesIn(ShellRows));

}  // namespace rux::test
