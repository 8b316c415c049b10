// Trees: the bytes of form files, what the user does, and nodes that go.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/headless/HLimits.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/toolkit/HNodeBytes.h"
#include "platform/headless/toolkit/HTreeView.h"
#include "rtl/CodePage.h"
#include "tests/forms/FormCodePage.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

namespace {

namespace fs = std::filesystem;

/// A dot for each level in front of a text.
std::string Outline(const std::vector<HNodeLine>& lines) {
    std::string text;
    for (const HNodeLine& line : lines)
        text += (text.empty() ? "" : " ") + std::string(line.Depth, '.') + AnsiToUtf8(line.Text);
    return text;
}

/// The first tree of a real form file.
std::string OutlineInFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    std::vector<HNodeLine> lines;
    for (const TFormObject& object : ParseFormFile(path.string(), bytes).Objects)
        for (const TFormProperty& property : object.Properties)
            if (property.Name.starts_with("Items.") && object.ClassName == "TTreeView" && lines.empty())
                DecodeTreeNodes(property.Name.substr(6), property.Value.As<TFormBinary>()->Bytes, lines);
    return Outline(lines);
}

std::string Number(std::uint32_t value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

/// One node with a text of one letter; version 0 is `Data`.
std::string NodeBytes(int version, char letter, std::uint32_t children) {
    std::string bytes = Number(0) + std::string(20, '\xFF') + (version == 3 ? Number(7) : "");
    bytes += Number(children) + (version == 3 ? "\1" : "") + '\1' + letter;
    return version ? bytes + '\0' : bytes;
}

/// A with B, which has C, and D; then E.
std::string TreeBytes(int version) {
    std::string bytes = (version ? std::string(1, static_cast<char>(version)) : "") + Number(2);
    for (const auto& [letter, children] : {std::pair('A', 2u), {'B', 1u}, {'C', 0u}, {'D', 0u}, {'E', 0u}})
        bytes += NodeBytes(version, letter, children);
    return bytes;
}

std::string FormOf(std::string_view className) {
    std::string form = "T:" + std::string(className) +
                       "@0,0,200,84 ~Changing ~Change ~Expanding ~Expanded "
                       "~Collapsing ~Collapsed ~DblClick ~NodeChecked Items.NodeData = {";
    for (const char c : TreeBytes(1)) {
        constexpr const char* digits = "0123456789ABCDEF";
        form += {digits[static_cast<unsigned char>(c) >> 4], digits[c & 15]};
    }
    return form + "} " + (className == "TRichTreeView" ? "Checkboxes = True end" : "end");
}

std::string ContentOf(HComponent* tree) {
    std::string text;
    for (const HContentLine& line : tree ? tree->Content() : std::vector<HContentLine>{})
        text += (text.empty() ? "" : " ") + std::string(line.Depth, '.') + line.Texts[0] +
                (line.State.empty() ? "" : "[" + line.State + "]");
    return text;
}

struct TRow {
    const char *Method, *Actions, *Journal, *Content, *Class = "TTreeView";
};

// Texts begin at 19 for each level, from 19 on; rows are 16 high.
constexpr TRow Rows[] = {
    {"", "click T 10,8", "T.Expanding; T.Expanded", "A[expanded] .B ..C .D E"},
    {"", "click T 22,8; click T 22,8; click T 22,99", "T.Changing; T.Change", "A[selected] .B ..C .D E"},
    {"", "click T 10,8; click T 25,24; click T 60,40; say in; click T 10,8",
     "T.Expanding; T.Expanded; T.Expanding; T.Expanded; T.Changing; T.Change; in; T.Collapsing; T.Changing; "
     "T.Change; T.Collapsed",
     "A[selected] .B[expanded] ..C .D E"},
    {"", "dbl T 22,8; say; dbl T 22,8; say; click T 10,24",
     "T.Expanding; T.Expanded; T.DblClick; ; T.Collapsing; T.Collapsed; T.DblClick; ", "A .B ..C .D E"},
    {"", "focus T; key 36; key 39; key 39; key 40; key 37; key 37",
     "T.Changing; T.Change; T.Expanding; T.Expanded; T.Changing; T.Change; T.Changing; T.Change; "
     "T.Changing; T.Change; T.Collapsing; T.Collapsed",
     "A[selected] .B ..C .D E"},
    {"X: refuse", "click T 22,8; click T 10,8", "T.Changing; T.Expanding", "A .B ..C .D E"},
    {"X: free T", "click T 22,8", "T.Changing", ""},
    {"", "click T 25,8; click T 40,8", "T.NodeChecked; T.Changing; T.Change",
     "A[checked, selected] .B ..C .D E", "TRichTreeView"},
};

}  // namespace

TEST(Trees, RealFilesGiveTheirNodes) {
    UseFormCodePage();
    const char* folder = std::getenv("RUX_FORMS");
    const fs::path forms = folder ? fs::path(folder) : fs::path(RUX_SOURCE_DIR) / "../shared/forms";
    if (!fs::exists(forms / "COUNTS.tsv")) GTEST_SKIP() << "no form files in " << forms;
    EXPECT_EQ(OutlineInFile(forms / "cnvcl__Unit1.dfm"),
              "第一个 第二个 .第二点五个 ..第二点二五个 第三个 .第三点五个");
    EXPECT_EQ(OutlineInFile(forms / "jvcl__JvControlActionMain.dfm"), "a .b .v vv .asdasd v23 .asdasd");
}

TEST(Trees, DamagedBytesGiveTheNodesBeforeTheDamage) {
    const std::string whole = "A .B ..C .D E";
    std::vector<HNodeLine> lines;
    for (const int version : {0, 1, 3}) {
        const std::string bytes = TreeBytes(version);
        const char* property = version ? "NodeData" : "Data";
        std::size_t before = 0;
        for (std::size_t length = 0; length <= bytes.size(); ++length) {
            lines.clear();
            // A copy of that length, so that sanitizers see a step beyond it.
            DecodeTreeNodes(property, std::string(bytes, 0, length), lines);
            EXPECT_TRUE(whole.starts_with(Outline(lines)) && lines.size() >= before) << version << length;
            before = lines.size();
        }
        EXPECT_EQ(Outline(lines), whole);
    }
    lines.clear();
    EXPECT_FALSE(DecodeTreeNodes("NodeData", "\7" + TreeBytes(1), lines));
    std::string chain = Number(0x7FFFFFFF);
    for (std::size_t i = 0; i < HTreeDepthLimit * 2; ++i) chain += NodeBytes(0, 'x', 0x7FFFFFFF);
    DecodeTreeNodes("Data", chain, lines);
    EXPECT_EQ(lines.size(), HTreeDepthLimit);
}

TEST(Trees, DoAsTheUserDoes) {
    for (const TRow& row : Rows) {
        TStage stage(FormOf(row.Class), row.Method);
        stage.Control("F").SetVisible(true);
        stage.Control("F").Realize();
        EXPECT_EQ(stage.Play(row.Actions), row.Journal) << row.Actions;
        EXPECT_EQ(ContentOf(stage.Find("T")), row.Content) << row.Actions;
    }
}

TEST(Trees, NodesComeAndGo) {
    TStage stage(FormOf("TTreeView"));
    auto& tree = dynamic_cast<HCustomTreeView&>(stage.Control("T"));
    const auto node = [&](int index) -> HTreeNode& { return dynamic_cast<HTreeNode&>(*tree.Item(index)); };
    HTreeNode &a = node(0), &c = node(2), &d = node(3);
    EXPECT_EQ(a.DisplayRect(true).Left, 19);
    EXPECT_EQ(c.DisplayRect(true), TRect{});
    for (int i = 0; i < 100; ++i) tree.AddNode(nullptr, "more");
    node(104).MakeVisible();
    c.SetSelected(true);
    EXPECT_EQ(c.DisplayRect(false), (TRect{0, 0, 196, 16})) << "scrolled no farther than it must";
    EXPECT_EQ(stage.Journal(), "T.Changing; T.Expanding; T.Expanded; T.Expanding; T.Expanded; T.Change");
    tree.DeleteNode(node(1));
    EXPECT_EQ(tree.Selected(), &d);
    EXPECT_EQ(stage.Journal(), "T.Change");
    EXPECT_THROW(Cast<TTreeNode>(&c), EAccessViolation);
    EXPECT_EQ(node(1).Text(), "D");
    EXPECT_EQ(stage.Read("T.Items.Count"), "103");
    EXPECT_THROW(tree.Item(103), ETreeViewError);
    stage.Find("T")->Free();
    EXPECT_THROW(Cast<TTreeNode>(&d), EAccessViolation);
    EXPECT_EQ(stage.Journal(), "");
}

}  // namespace rux::test
