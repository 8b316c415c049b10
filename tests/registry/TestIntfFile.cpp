// Definitions from the file beside the library, and the report held against what calls accept.
#include <map>
#include <regex>
#include <set>

#include "Engine/Adapters/RUXInterface.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "Engine/Registry/RUXUsableControls.h"
#include "Engine/Registry/RUXXmlReader.h"
#include "Engine/Request/RUXInvoker.h"
#include "Engine/Start/RUXApplication.h"
#include "Engine/Start/RUXRegistration.h"
#include "RegistryTestSupport.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux::test {

namespace {

constexpr const char* DefineFile = "C:\\App\\RUX.idf";
constexpr std::string_view Definitions =
    R"(<Any><X Name="RubyScript" DefaultMethod="Run"><M Name="Run"><P Kind="string" Name="ACode"><Deep/></P>
       <P Name="N" Kind="Integer"/></M><M Name="Abort"/></X><X Name="button" DefaultMethod=""/></Any>)";

using IntfFile = THostTest;

}  // namespace

TEST_F(IntfFile, DefinesBehindTheCompiledOnesAndIsReported) {
    Files.Put(DefineFile, Definitions, 1);
    TEngineState state{Desktop.Platform()};
    RegisterEverything(state);
    const TRUXIntfDefineList& list = *state.IntfDefines;
    ASSERT_EQ(list.Count(), 24u);
    EXPECT_EQ(list.Items()[22].Name + " " + list.Items()[22].DefaultMethod, "IRubyScript Run");
    // A definition of a name that is compiled in is kept and never found.
    EXPECT_EQ(list.Items()[23].Name, "Ibutton");
    EXPECT_EQ(list.FindDefine("IButton")->Count(), 7u);
    const std::string brief = GetUsableControlsText(false), detail = GetUsableControlsText(true);
    EXPECT_NE(
        brief.find("\r\nrubyscript: \r\n- run\r\n- abort\r\npascalscript: \r\nstatusbar: \r\n- active\r\n"),
        brief.npos);
    EXPECT_NE(detail.find("\r\nrubyscript: \r\n  run: \r\n  - - ACode\r\n    - string\r\n  - - N\r\n"
                          "    - Integer\r\n  - \r\n  abort: \r\n  - \r\npascalscript: \r\n"),
              detail.npos);
}

TEST_F(IntfFile, AFaultyFileKeepsTheEngineFromStarting) {
    const std::pair<const char*, const char*> rows[] = {
        {"", ""},
        {"<?xml version='1.0'?><a/>", ""},
        {"<a><b Name='X'/></a>", "1:4: element b has no attribute DefaultMethod"},
        {"<a><b DefaultMethod=''/></a>", "1:4: element b has no attribute Name"},
        {"<a>\n<b Name='X' DefaultMethod=''><c name=''/></b></a>", "2:30: element c has no attribute Name"},
        {"<a><b Name='X' DefaultMethod=''><c Name='Y'><d Name='Z'/></c></b></a>",
         "1:45: element d has no attribute Kind"},
        {"<a><b Name='X' DefaultMethod=''/>", "1:34: element a does not end"},
    };
    for (std::int64_t stamp = 0; const auto& [bytes, fault] : rows) {
        Files.Put(DefineFile, bytes, ++stamp);
        std::string told;
        try {
            // As the host makes it: what goes wrong there is what loading fails with.
            const TRUXApplication application(Desktop.Platform());
        } catch (const EXMLError& failure) {
            told = failure.Message().substr(std::string_view(DefineFile).size() + 1);
        }
        EXPECT_EQ(told, fault);
    }
    EXPECT_FALSE(EngineStands());
    TEngineState state{Desktop.Platform()};
    EXPECT_THROW(state.IntfDefines->LoadFromFile(DefineFile), EXMLError);
    EXPECT_EQ(state.IntfDefines->Count(), 0u);
}

TEST_F(IntfFile, TheReportIsWhatCallsAccept) {
    TEngineState state{Desktop.Platform()};
    RegisterEverything(state);
    // Group -> its methods with the number of their arguments, from the report's own text.
    std::map<std::string, std::vector<std::pair<std::string, std::size_t>>> reported;
    std::string group;
    const std::string report = GetUsableControlsText(true);
    const std::regex mark("\n(\\w+): |\n  (\\w+): |\n  - - ");
    for (std::sregex_iterator at(report.begin(), report.end(), mark), end; at != end; ++at) {
        if ((*at)[1].matched)
            reported[group = (*at)[1]];
        else if ((*at)[2].matched)
            reported[group].emplace_back((*at)[2], 0);
        else
            ++reported[group].back().second;
    }
    const TInterfaceInfo* const infos[] = {
        &IButton::Info,  &ILabel::Info,    &ICheckBox::Info,    &ICheckListBox::Info, &IComboBox::Info,
        &IEdit::Info,    &IForm::Info,     &IGrid::Info,        &IListBox::Info,      &IListView::Info,
        &IMenu::Info,    &IToolKit::Info,  &IOutlookBar::Info,  &IPageControl::Info,  &IPopupMenu::Info,
        &IToolBar::Info, &ITreeView::Info, &IRadioButton::Info, &IStatusBar::Info,
    };
    for (const char* bare : {"datetimepicker", "rubyscript", "pascalscript"})
        EXPECT_TRUE(reported.count(bare) && reported[bare].empty()) << bare;
    EXPECT_EQ(reported.size(), std::size(infos) + 3);
    for (const TInterfaceInfo* info : infos) {
        const std::string word = LowerCase(info->Name.substr(1));
        const auto entries = GetIntfMetaData(*info);
        std::set<const TIntfMethEntry*> called;
        for (const auto& [method, count] : reported[word]) called.insert(FindMethod(entries, method, count));
        EXPECT_EQ(called, std::set<const TIntfMethEntry*>(entries.begin(), entries.end())) << word;
    }
}

}  // namespace rux::test
