// The scripts beside the sample: they play, and the one over the order center leaves no method out.
#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "Engine/Adapters/RUXInterface.h"
#include "host/Program.h"
#include "rtl/Text.h"

namespace rux::test {

namespace {

std::string ReadText(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(name, std::ios::binary).rdbuf();
    return text.str();
}

/// The methods called below each heading, by the interfaces that the heading names.
std::map<std::string, std::set<std::string>> CalledMethods(const std::string& script) {
    std::map<std::string, std::set<std::string>> called;
    std::vector<std::string> headings;
    bool comment = false;
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream words(line);
        if (line.starts_with("# I") && !comment) headings.clear();
        comment = line.starts_with("#");
        for (std::string word; comment && words >> word;)
            if (word.size() > 2 && word[0] == 'I' && std::isupper(word[1]))
                headings.push_back(ReplaceAll(ReplaceAll(word, ":", ""), ",", ""));
        const std::size_t dollar = line.find('$');
        if (comment || dollar == line.npos) continue;
        const std::string method = line.substr(dollar + 1, line.find_first_of("( ?", dollar) - dollar - 1);
        for (const std::string& heading : headings) called[heading].insert(method);
    }
    return called;
}

}  // namespace

TEST(SampleScripts, PlayAndShowEveryMethod) {
    const TTempFolder folder;
    const std::string port = folder.Path("port"), nodes = ReplaceAll(folder.Path("nodes.txt"), "/", R"(\\)");
    const TStartedHost host(folder, {"--sample", "orders", "--port-file", port});
    const auto play = [&](const std::string& name) {
        return OutcomeOf({"ruxcall", "--port-file", port, "-f", name});
    };
    std::string center = ReadText(RUX_SOURCE_DIR "/examples/center.rux");
    // Files have names that only a run knows.
    const std::size_t lists = center.find("\n# IListView");
    ASSERT_NE(lists, center.npos);
    center.insert(lists, "\n总公司?TreeView$SaveTreeData(" + nodes +
                             ") => 212\n总公司?TreeView$SelectNodes(" + nodes +
                             ") => 212\n总公司?TreeView$GetText => 211 仓储部\n");
    const std::string played = play(folder.File("center.rux", center));
    EXPECT_TRUE(played.ends_with("\nFalse\n= 0")) << played;
    EXPECT_EQ(ReadText(folder.Path("nodes.txt")).substr(0, 8), "\xD7\xDC\xB9\xAB\xCB\xBE\r\n");
    const std::string orders = play(RUX_SOURCE_DIR "/examples/orders.rux");
    EXPECT_TRUE(orders.ends_with("\n> ClearServer\n212 \nTrue\n= 0")) << orders;

    const auto called = CalledMethods(center);
    for (const TInterfaceInfo* offered :
         {&ITreeView::Info, &IListBox::Info, &ICheckListBox::Info, &IListView::Info, &IComboBox::Info,
          &IPageControl::Info, &IStatusBar::Info, &IPopupMenu::Info, &ICheckBox::Info, &IRadioButton::Info})
        for (const TInterfaceInfo* info = offered; info; info = info->Parent) {
            const auto section = called.find(info->Parent ? std::string(offered->Name) : "IStatusBar");
            ASSERT_NE(section, called.end()) << offered->Name;
            for (const TIntfMethEntry& method : info->Methods)
                EXPECT_TRUE(section->second.contains(std::string(method.Name)) || method.Name == "Find")
                    << offered->Name << '.' << method.Name;
        }
}

}  // namespace rux::test
