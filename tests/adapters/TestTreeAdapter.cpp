// The language of node paths, and what scripts do to trees.
#include <algorithm>

#include "AdapterTestSupport.h"
#include "Engine/Adapters/RUXTreeAdapters.h"
#include "Engine/Adapters/RUXTreePaths.h"
#include "Engine/Core/RUXServerUtils.h"
#include "Engine/Locator/RUXTreeFindAdapters.h"
#include "platform/headless/toolkit/HTreeView.h"
#include "platform/posix/SystemNames.h"
#include "rtl/Text.h"
#include "tests/support/PosixGround.h"
#include "tests/support/SmallStack.h"

namespace rux::test {

namespace {

class TTreeTest : public TAdapterTest {
 protected:
    TTreeTest()
        : TAdapterTest({R"(object F: TForm Left = 100 Top = 100 Width = 400 Height = 300 Visible = True
                    object Other: TEdit end
                    object Tree: TTreeView Left = 10 Top = 20 Width = 200 Height = 100 OnEnter = X
                      OnChanging = X OnChange = X OnExpanding = X OnExpanded = X OnEdited = X OnDblClick = X end
                    object Rich: TRichTreeView Checkboxes = True OnNodeChecked = X OnChange = X end
                    object None: TTreeView ReadOnly = True end
                  end)"}) {
        Fill();
    }

    void Fill() {
        Tree().Clear();
        Tree("Rich").Clear();
        Grow("Tree", {"one", ".a", "..b", "...c", ".two", "..x", "two", ".a(b)", "..leaf", "vx5", "v.5",
                      "Long name"});
        Grow("Rich", {"r", ".s"});
    }
    HCustomTreeView& Tree(std::string_view name = "Tree") {
        return dynamic_cast<HCustomTreeView&>(*Find(name));
    }
    /// A dot for each level.
    void Grow(std::string_view name, const std::vector<std::string>& outline) {
        std::vector<HTreeNode*> last;
        for (const std::string& line : outline) {
            last.resize(std::min(line.find_first_not_of('.'), last.size()));
            last.push_back(
                &Tree(name).AddNode(last.empty() ? nullptr : last.back(), line.substr(last.size())));
        }
    }
    void OnEvent(const char* event, HHandler code) { Tree().SetHandler(event, std::move(code)); }
};

/// What a script writes, and the path of what it selects.
constexpr std::pair<const char*, const char*> PathRows[] = {
    {"b", "one/a/b"},
    {"a/b", "one/a/b"},
    {"one//x", "one/two/x"},
    {"ONE/A", "one/a"},
    {"two", "one/two"},
    {"two/a(b)", "two/a(b)"},
    {"a(b) / leaf", "two/a(b)/leaf"},
    {"v.5", "vx5"},
    {"e//x|a(b)", "two/a(b)"},
    {"o.e/a|v.5", "one/a"},
    {"Long n", "Long name"},
    {"one/a/", "one/a/b"},
    // Case counts in a part of a path, and a part begins where a text begins.
    {"A/b", "ERUXException: 找不到节点:A/b"},
    {"e/a", "ERUXException: 找不到节点:e/a"},
    // The beginning of a text is looked for without the gap.
    {"one//lea", "ERUXException: 找不到节点:one/.*/lea"},
    {"a**", "ERUXException: 找不到节点:a**"},
    {"", "one"},
};

TEST_F(TTreeTest, PathsNameNodes) {
    for (const auto& [path, found] : PathRows) {
        Tree().Select(nullptr);
        const std::string answers = Run("Tree.Select(" + std::string(path) + "); Tree.Selected");
        const bool raises = answers.starts_with("ERUX");
        EXPECT_EQ(answers, raises ? std::string(found) + "; " : "; " + std::string(found));
    }
    // Brackets are operators for the one method; a text that equals it is found all the same.
    EXPECT_EQ(Run("Tree.FindTreeNode(a(b)); Tree.FindTreeNode(a(b)/leaf); Tree.FindTreeNode([); "
                  "Tree.FindTreeNode(b/c); None.FindTreeNode(a)"),
              "True; False; False; True; False");
    // What a trail byte looks like does not count; a search may begin below.
    HTreeNode& wide = Tree().AddNode(nullptr, Ansi("億"));
    HTreeNode& low = Tree().AddNode(&wide, Ansi("誠"));
    EXPECT_EQ(SearchNode(Tree().GetFirstNode(), Ansi("億/誠")), &low);
    EXPECT_EQ(SearchNode(&low, Ansi("億/誠")), &low);
    EXPECT_EQ(GetNodePath(&low), Ansi("億/誠"));
    // A finder sees the spine of first children.
    EXPECT_EQ(MakeIntf<TTreeViewFindAdapter>(&Tree())->GetContent(), "one|a|b|c");
}

constexpr TRow Rows[] = {
    {"Tree.Select(a); Tree.GetText; Tree.GetLevel(); Tree.GetExpanded(); Tree.SetExpand( ); "
     "Tree.GetExpanded(one/a)",
     "; a; 2; False; ; True",
     "event F.Tree OnEnter X; event F.Tree OnChanging X; event F.Tree OnExpanding X; event F.Tree OnExpanded "
     "X; event F.Tree OnChange X; event F.Tree OnExpanding X; event F.Tree OnExpanded X"},
    {"Tree.Click(vx5); Tree.Selected", "; vx5",
     "event F.Tree OnEnter X; cursor 146,185; send F.Tree WM_LBUTTONDOWN 0 30,40; event F.Tree OnChanging X; "
     "event F.Tree OnChange X; send F.Tree WM_LBUTTONUP 0 30,40"},
    {"Tree.DblClick(one); Tree.GetExpanded(one); Tree.Selected", "; True; ",
     "cursor 146,153; send F.Tree WM_LBUTTONDBLCLK 0 30,8; event F.Tree OnExpanding X; event F.Tree "
     "OnExpanded X; event F.Tree OnDblClick X"},
    {"Tree.SelectbyIndex(12); Tree.Selected; Tree.GetTextByIndex(1); Tree.SetText(uno); Tree.GetText",
     "; Long name; one; ; uno",
     "event F.Tree OnEnter X; event F.Tree OnChanging X; event F.Tree OnChange X; event F.Tree OnEdited X"},
    // The text has a place for a string and gets a number: the failure of that is what scripts see.
    {"Tree.SelectbyIndex(0); Tree.GetTextByIndex(13)",
     "EConvertError: Format '%s' invalid or incompatible with argument; "
     "EConvertError: Format '%s' invalid or incompatible with argument",
     "event F.Tree OnEnter X"},
    {"Tree.SetText(b,new); Tree.IsLeaf(new); Tree.IsLeaf(c); Tree.GetLevel(c); Tree.GetCount; None.GetCount; "
     "None.ReadOnly; Tree.ReadOnly",
     "; False; True; 4; 12; 0; True; False", "event F.Tree OnEdited X"},
    {"Tree.SetText(uno); Tree.GetText; Tree.GetLevel(); None.DblClick(x)",
     "ERUXException: 当前没有选中节点; EAccessViolation: Access violation at address 00000000. Read of "
     "address 00000000; EAccessViolation: "
     "Access violation at address 00000000. Read of address 00000000; ERUXException: 找不到节点:x",
     ""},
    {"Rich.SetChecked(s,True); Rich.SetCheckedbyIndex(2,True); Rich.SetCheckedbyIndex(2,False); "
     "Tree.SetChecked(b,True)",
     "; ; ; EAccessViolation: Access violation at address 00000000. Read of address 00000000",
     "event F.Rich OnNodeChecked X; event F.Rich OnNodeChecked X"},
};

TEST_F(TTreeTest, MethodsActAsTold) {
    for (const TRow& row : Rows) {
        Fill();
        dynamic_cast<HWinControl*>(Find("Other"))->SetFocus();
        Journal();
        Play(row);
    }
}

TEST_F(TTreeTest, CodeOfTheApplicationHasItsSay) {
    OnEvent("OnEdited", [](HObject&, HEventArgs& args) { args.Text += "!"; });
    EXPECT_EQ(Run("Tree.SetText(v.5,w); Tree.GetTextByIndex(10)"), "; w!");
    OnEvent("OnExpanding", [](HObject&, HEventArgs& args) { args.Allow = false; });
    EXPECT_EQ(Run("Tree.Click(b); Tree.Selected"),
              "ERUXException: Tree中的节点[b]不可显示，DblClick方法失败！; one/a/b");
    Tree().Select(nullptr);
    OnEvent("OnChanging", [](HObject&, HEventArgs& args) { args.Allow = false; });
    EXPECT_EQ(Run("Tree.Select(b)"), "EAdapterException: TreeView中没有找到:b");
    OnEvent("OnChanging", [this](HObject&, HEventArgs&) { Tree().Free(); });
    EXPECT_TRUE(Run("Tree.Select(b)").starts_with("EAccessViolation"));
}

TEST_F(TTreeTest, FilesGoOutAndIn) {
    const TTemporaryFolder folder;
    const std::string name = NameFromSystem(folder.Path + "/t.txt");
    const auto save = [&](const char* tree, const std::string& file) {
        return ErrorOf([&] { MakeIntf<TSolviTreeAdapter>(Find(tree))->SaveTreeData(file); });
    };
    const auto select = [&](const char* tree, const std::string& file) {
        return ErrorOf([&] { MakeIntf<TSolviTreeAdapter>(Find(tree))->SelectNodes(file); });
    };
    EXPECT_EQ(save("Tree", name), "nothing");
    EXPECT_EQ(
        Files.ReadFile(name),
        "one\r\n\ta\r\n\t\tb\r\n\t\t\tc\r\n\ttwo\r\n\t\tx\r\ntwo\r\n\ta(b)\r\n\t\tleaf\r\nvx5\r\nv.5\r\n"
        "Long name\r\n");
    // A name with a blank comes back in quotes and is not found; levels that a line left out are empty.
    EXPECT_EQ(select("Tree", name), "ERUXException: 找不到节点:\"Long name\"");
    EXPECT_EQ(Run("Tree.Selected"), "vx5");
    Files.WriteFile(name, "one\n  b\n a\n");
    EXPECT_EQ(select("Tree", name), "nothing");
    EXPECT_EQ(Run("Tree.Selected"), "one/a");
    // Blanks without end are no levels without end.
    Files.WriteFile(name, std::string(1 << 20, '\t') + "x\n");
    EXPECT_LT(select("Tree", name).size(), 200'000u);
    EXPECT_EQ(select("Tree", "C:\\no\\t"),
              "EFOpenError: Cannot open file \"C:\\no\\t\". The system cannot find the file specified");
    EXPECT_EQ(save("Tree", "C:\\no\\t"),
              "EFCreateError: Cannot create file \"C:\\no\\t\". The system cannot find the path specified");
    std::vector<std::string> outline;
    for (int i = 0; i < 5000; ++i) {
        const char* dots = i % 100 == 0 ? "" : i % 10 == 0 || i % 100 < 10 ? "." : "..";
        outline.push_back(dots + ("n" + std::to_string(i)));
    }
    Grow("None", outline);
    int changes = 0;
    Tree("None").SetHandler("OnChange", [&](HObject&, HEventArgs&) { ++changes; });
    EXPECT_EQ(save("None", name), "nothing");
    EXPECT_EQ(select("None", name), "nothing");
    EXPECT_EQ(Run("None.Selected"), "n4900/n4990/n4999");
    EXPECT_EQ(changes, 5000);
}

TEST_F(TTreeTest, LongTextsAndDeepTreesNeedLittleStackAndTime) {
    const std::string longText(1'000'000, 'a');
    for (const std::size_t size : {longText.size(), std::size_t{1000}})
        Tree("None").AddNode(nullptr, longText.substr(0, size));
    HTreeNode* node = nullptr;
    for (int i = 0; i < 100'000; ++i) node = &Tree("Rich").AddNode(node, "d");
    node->SetText("bottom");
    const TTemporaryFolder folder;
    Kernel.ModuleName = NameFromSystem(folder.Path + "/t");
    Engine.ServerPort = 1;
    OnSmallStack(1 << 20, [&] {
        TObject* first = Tree("None").GetFirstNode();
        for (const char* pattern : {"(a|b)*c", "a.*a.*a.*b", "["})
            EXPECT_FALSE(SearchNode(first, pattern)) << pattern;
        // Told once for each search, not for each node.
        const std::string log = Files.ReadFile(GetLogFileName()).value_or("");
        EXPECT_EQ(std::ranges::count(log, '\n'), 2);
        EXPECT_GT(AnsiPos("Tree path a.*a.*a.*b: too many steps", log), 0);
        EXPECT_EQ(SearchNode(first, longText), first);
        EXPECT_FALSE(SearchNode(first, longText + "b"));
        EXPECT_FALSE(SearchNode(first, longText + "+b"));
        EXPECT_EQ(SearchNode(Tree("Rich").GetFirstNode(), "bottom"), node);
        EXPECT_EQ(SearchNode(Tree("Rich").GetFirstNode(), "d/bott.*"), node);
        EXPECT_EQ(GetNodePath(node).size(), 200'004u);
    });
    EXPECT_EQ(Run("Rich.Select(bottom); Rich.GetText"), "; bottom");
}

}  // namespace

}  // namespace rux::test
