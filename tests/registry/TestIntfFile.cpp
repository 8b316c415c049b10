// Definitions from the file beside the library, and the report held against what calls accept.
#include <map>
#include <set>
#include <sstream>

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
    EXPECT_NE(brief.find("\r\nbutton: \r\n- active\r\n- click\r\n- dbclick\r\n- enabled\r\n- find\r\n"
                         "- rightclick\r\n- sendkey\r\nlabel: "),
              brief.npos);
}

TEST_F(IntfFile, AFaultyFileKeepsTheEngineFromStarting) {
    const std::pair<std::string, const char*> rows[] = {
        {"", nullptr},
        {"<?xml version='1.0'?>", nullptr},
        {"<a/>", nullptr},
        {"<a><b Name='X'/></a>", "RUX.idf:1:4: element b has no attribute DefaultMethod"},
        {"<a><b DefaultMethod=''/></a>", "RUX.idf:1:4: element b has no attribute Name"},
        {"<a>\n<b Name='X' DefaultMethod=''><c name=''/></b></a>",
         "RUX.idf:2:30: element c has no attribute Name"},
        {"<a><b Name='X' DefaultMethod=''><c Name='Y'><d Name='Z'/></c></b></a>",
         "RUX.idf:1:45: element d has no attribute Kind"},
        {"<a><b Name='X' DefaultMethod=''/>", "RUX.idf:1:34: element a does not end"},
    };
    std::int64_t stamp = 0;
    for (const auto& [bytes, error] : rows) {
        Files.Put(DefineFile, bytes, ++stamp);
        std::string told = "nothing";
        try {
            // As the host makes it: what goes wrong there is what loading fails with.
            const TRUXApplication application(Desktop.Platform());
        } catch (const EXMLError& failure) {
            told = failure.Message();
        }
        EXPECT_EQ(told, error ? "C:\\App\\" + std::string(error) : "nothing");
    }
    EXPECT_FALSE(EngineStands());
    TEngineState state{Desktop.Platform()};
    EXPECT_THROW(state.IntfDefines->LoadFromFile(DefineFile), EXMLError);
    EXPECT_EQ(state.IntfDefines->Count(), 0u);
}

TEST_F(IntfFile, TheReportIsWhatCallsAccept) {
    const TInterfaceInfo* const infos[] = {
        &IButton::Info,  &ILabel::Info,    &ICheckBox::Info,    &ICheckListBox::Info, &IComboBox::Info,
        &IEdit::Info,    &IForm::Info,     &IGrid::Info,        &IListBox::Info,      &IListView::Info,
        &IMenu::Info,    &IToolKit::Info,  &IOutlookBar::Info,  &IPageControl::Info,  &IPopupMenu::Info,
        &IToolBar::Info, &ITreeView::Info, &IRadioButton::Info, &IStatusBar::Info,
    };
    TEngineState state{Desktop.Platform()};
    RegisterEverything(state);
    // Group -> "method/arguments" in the report's order, from its own text.
    std::map<std::string, std::multiset<std::string>> reported;
    std::istringstream lines(GetUsableControlsText(true));
    std::string group, method, line;
    std::size_t params = 0;
    const auto flush = [&] {
        if (!method.empty()) reported[group].insert(std::exchange(method, "") + "/" + std::to_string(params));
        params = 0;
    };
    while (std::getline(lines, line)) {
        if (line.starts_with("  - - ")) {
            ++params;
        } else if (line.starts_with("  ") && line[2] != '-' && line[2] != ' ') {
            flush();
            method = line.substr(2, line.find(':') - 2);
        } else if (line[0] != ' ' && line[0] != '-') {
            flush();
            group = line.substr(0, line.find(':'));
            reported[group];
        }
    }
    flush();
    std::size_t bare = 0;
    for (const auto& [name, methods] : reported) bare += methods.empty();
    EXPECT_EQ(bare, 3u) << "DateTimePicker, RubyScript and PascalScript have no interface";
    EXPECT_EQ(reported.size(), std::size(infos) + bare);
    for (const TInterfaceInfo* info : infos) {
        const auto methods = GetIntfMetaData(*info);
        std::multiset<std::string> accepted;
        for (const TIntfMethEntry* entry : methods) {
            accepted.insert(LowerCase(entry->Name) + "/" + std::to_string(entry->ParamCount));
            EXPECT_EQ(FindMethod(methods, LowerCase(entry->Name), entry->ParamCount), entry)
                << info->Name << '.' << entry->Name;
        }
        EXPECT_EQ(reported[LowerCase(info->Name.substr(1))], accepted) << info->Name;
    }
}

}  // namespace rux::test
