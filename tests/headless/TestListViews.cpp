// List views: the bytes of form files, what the user does, and items that go.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/headless/forms/FormParser.h"
#include "platform/headless/toolkit/HListItemBytes.h"
#include "platform/headless/toolkit/HListView.h"
#include "rtl/CodePage.h"
#include "tests/forms/FormCodePage.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

namespace {

std::string Told(const std::vector<HStoredListItem>& items) {
    std::string text;
    for (const HStoredListItem& item : items) {
        text += (item.Checked ? "*" : "") + AnsiToUtf8(item.Caption);
        for (const std::string& subItem : item.SubItems) text += "|" + AnsiToUtf8(subItem);
        text += ";";
    }
    return text;
}

/// Little endian.
std::string Number(std::uint32_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> 8 * i & 0xFF);
    return bytes;
}

/// `a` with the sub-items b and c, checked; then `d`. Version 0 is `Data`.
std::string ItemBytes(int version) {
    const auto text = [&](char letter) {
        return '\1' + (version ? std::string{letter, '\0'} : std::string{letter});
    };
    const auto head = [&](std::uint32_t state, std::uint32_t subItems) {
        return Number(5) + Number(state) + Number(~0u) + Number(subItems) + (version >= 2 ? Number(7) : "") +
               Number(9);
    };
    const std::string behind = version >= 4 ? Number(3) : "";
    return (version ? std::string(1, static_cast<char>(version)) : "") + Number(0) + Number(2) + head(1, 2) +
           text('a') + text('b') + behind + text('c') + behind + head(~0u, 0) + text('d') +
           "\xFF\xFF\xFF\xFF";
}

std::vector<HStoredListItem> Read(int version, std::string_view bytes) {
    return version ? ReadWideListItems(bytes) : ReadAnsiListItems(bytes);
}

}  // namespace

TEST(ListViews, BytesOfEveryVersionWhereverTheyEnd) {
    UseFormCodePage();
    for (const int version : {0, 1, 2, 4}) {
        const std::string bytes = ItemBytes(version);
        EXPECT_EQ(Told(Read(version, bytes)), "*a|b|c;d;") << version;
        std::size_t whole = 0;
        for (std::size_t size = 0; size <= bytes.size(); ++size) {
            const std::string told = Told(Read(version, bytes.substr(0, size)));
            ASSERT_TRUE(std::string_view("*a|b|c;d;").starts_with(told) &&
                        (told.empty() || told.back() == ';'))
                << size;
            whole += told.size() > 7;
        }
        EXPECT_EQ(whole, 5u) << version;  // the last item needs all but what stands behind it
    }
}

TEST(ListViews, ItemsOfARealForm) {
    const std::filesystem::path path =
        std::filesystem::path(RUX_SOURCE_DIR) / "../shared/forms/cnvcl__Unit1.dfm";
    if (!std::filesystem::exists(path)) GTEST_SKIP() << "no real forms here";
    UseFormCodePage();
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::string told;
    for (const TFormObject& object : ParseFormFile(path.string(), bytes).Objects)
        for (const TFormProperty& property : object.Properties)
            if (property.Name == "Items.Data" && object.ClassName == "TListView")
                told += Told(ReadAnsiListItems(property.Value.As<TFormBinary>()->Bytes));
    EXPECT_EQ(told, "第一个;第二个|第二点五个;第三个;;");
}

TEST(ListViews, SelectionByMouseAndKeys) {
    UseFormCodePage();
    const std::string items =
        "Items.Data = {00000000 03000000"
        "00000000 FFFFFFFF FFFFFFFF 00000000 00000000 0161"
        "00000000 FFFFFFFF FFFFFFFF 00000000 00000000 0162"
        "00000000 FFFFFFFF FFFFFFFF 00000000 00000000 0163} end";
    // Two rows of 16 pixels are shown below a header of 18.
    const std::string report =
        "A:TListView@0,0,100,54 ViewStyle = vsReport Checkboxes = True ~Change ~SelectItem ~Click "
        "~MouseDown ~DblClick Columns = <item Caption = 'x' Width = 60 end> " +
        items;
    const std::string list =
        "A:TListView@0,0,100,54 ViewStyle = vsList MultiSelect = True OnSelectItem = Go " + items;
    const struct {
        std::string Form;
        const char *Method, *Actions, *Journal, *Content;
    } rows[] = {
        // The item that was selected loses first.
        {report, "", "click A 20,20; click A 20,36; get A.Items.Count",
         "A.Change; A.SelectItem; A.MouseDown; A.Click; A.Change; A.SelectItem; A.Change; A.SelectItem; "
         "A.MouseDown; A.Click; A.Items.Count=3",
         "x a b[selected] c"},
        {report, "", "click A 70,20; click A 20,20; rclick A 20,20; dbl A 20,20",
         "A.MouseDown; A.Click; A.Change; A.SelectItem; A.MouseDown; A.Click; A.MouseDown; A.DblClick; "
         "A.MouseDown",
         "x a[selected] b c"},
        {report, "", "down A 5,20; down A 5,36; down A 5,20",
         "A.Change; A.MouseDown; A.Change; A.MouseDown; A.Change; A.MouseDown", "x a b[checked] c"},
        // The view scrolls by one row for the last item.
        {report, "", "focus A; key 35; down A 20,20; key 38; key 38; key 40",
         "A.Change; A.SelectItem; A.Change; A.SelectItem; A.Change; A.SelectItem; A.MouseDown; A.Change; "
         "A.SelectItem; A.Change; A.SelectItem; A.Change; A.SelectItem; A.Change; A.SelectItem",
         "x a b[selected] c"},
        {list, "Go: say go", "keydown 17; down A 3,5; down A 3,20; down A 3,40; down A 3,5; keyup 17",
         "A.SelectItem; go; A.SelectItem; go; A.SelectItem; go; A.SelectItem; go",
         "a b[selected] c[selected]"},
        {list, "Go: say go",
         "keydown 17; down A 3,5; down A 3,20; keyup 17; say alone; down A 3,40; down A 90,40",
         "A.SelectItem; go; A.SelectItem; go; alone; A.SelectItem; go; A.SelectItem; go; A.SelectItem; go; "
         "A.SelectItem; go",
         "a b c"},
        {list, "Go: free A", "down A 3,5; where", "A.SelectItem; focus F", ""},
    };
    for (const auto& row : rows) {
        TStage stage(row.Form, row.Method);
        EXPECT_EQ(stage.Play(row.Actions), row.Journal) << row.Actions;
        std::string content;
        HComponent* view = stage.Find("A");
        for (const HContentLine& line : view ? view->Content() : std::vector<HContentLine>{})
            content += (content.empty() ? "" : " ") + line.Texts[0] +
                       (line.State.empty() ? "" : "[" + line.State + "]");
        EXPECT_EQ(content, row.Content) << row.Actions;
    }
}

TEST(ListViews, ItemsThatGo) {
    TStage stage("A:TListView@0,0,100,54 MultiSelect = True ~SelectItem end");
    auto& view = dynamic_cast<HCustomListView&>(*stage.Find("A"));
    constexpr int count = 50000;
    for (int i = 0; i < count; ++i) view.AddItem(std::to_string(i));
    HListItem& last = view.ItemAt(count - 1);
    const HRef<HListItem> first(&view.ItemAt(0));
    first->SetSelected(true);
    last.SetSelected(true);
    EXPECT_EQ(view.FirstSelected()->Index(), 0);
    first->Delete();
    EXPECT_TRUE(!first && view.FirstSelected() == &last && last.Index() == count - 2);
    EXPECT_EQ(last.DisplayRect(TDisplayCode::Icon).Top, (count - 2) * 75 + 2);
    last.MakeVisible(false);
    EXPECT_EQ(last.DisplayRect(TDisplayCode::Icon).Top, 2);
    // Whatever the style, a view that shows less than it did is not scrolled beyond its end.
    view.SetProp(InternName("ViewStyle"),
                 HEnumValue(*view.Def().Props->Find(InternName("ViewStyle"))->Enum, 2));
    EXPECT_TRUE(view.RectVisible(last.DisplayRect(TDisplayCode::Label)));
    for (int i = 0; i < count - 2; ++i) view.Delete(0);
    EXPECT_TRUE(view.Count() == 1 && last.Index() == 0);
    const HRef<HListItem> rest(&last);
    view.Free();
    EXPECT_FALSE(rest);
}

}  // namespace rux::test
