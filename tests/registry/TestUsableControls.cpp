#include <set>
#include <thread>

#include "Engine/Registry/RUXGroupClassFile.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "Engine/Registry/RUXUsableControls.h"
#include "RegistryTestSupport.h"

namespace rux::test {

namespace {

// Only the tables count; nobody calls these.
struct IRoot {
    bool Enabled() { return false; }
    std::int32_t find(std::string) { return 0; }
};
struct IProbe {
    void SetText(std::string) {}
};
struct IProbeEx {
    void SetText(std::int32_t, std::string) {}
    std::vector<std::int32_t> Select(double) { return {}; }
};

constexpr TIntfMethEntry RootMethods[] = {Row<&IRoot::Enabled>("Enabled"), Row<&IRoot::find>("find", "What")};
constexpr TInterfaceInfo RootInfo{"IRoot", nullptr, RootMethods};
constexpr TIntfMethEntry ProbeMethods[] = {Row<&IProbe::SetText>("SetText", "AText")};
constexpr TInterfaceInfo ProbeInfo{"IProbe", &RootInfo, ProbeMethods};
constexpr TIntfMethEntry ProbeExMethods[] = {Row<&IProbeEx::SetText>("SetText", "Row", "AText"),
                                             Row<&IProbeEx::Select>("Select", "X")};
constexpr TInterfaceInfo ProbeExInfo{"IProbeEx", &ProbeInfo, ProbeExMethods};

/// What the compiled groups add to a report when none of them has a definition.
constexpr std::string_view BareGroups =
    "button: \r\nlabel: \r\ncheckbox: \r\nchecklistbox: \r\ncombobox: \r\ndatetimepicker: \r\nedit: \r\n"
    "form: \r\ngrid: \r\nlistbox: \r\nlistview: \r\nmenu: \r\noutlookbar: \r\npagecontrol: \r\n"
    "popupmenu: \r\nradiobutton: \r\ntoolbar: \r\ntreeview: \r\ntoolkit: \r\nrubyscript: \r\n"
    "pascalscript: \r\nstatusbar: \r\n";

class UsableControls : public TRegistryTest {
 protected:
    UsableControls() {
        for (const TInterfaceInfo* info : {&ProbeInfo, &ProbeExInfo, &ProbeInfo})
            State.IntfDefines->AddInterface(*info);
    }
};

}  // namespace

TEST_F(UsableControls, DefinitionsAreSortedByCodeAndKeepOverloadsAndRepeats) {
    const TRUXIntfDefineList& list = *State.IntfDefines;
    EXPECT_EQ(list.Count(), 3u);
    EXPECT_EQ(list.FindDefine("iPROBE"), &list.Items()[0]);
    EXPECT_EQ(list.FindDefine("IRoot"), nullptr);
    const TRUXIntfDefine* define = list.FindDefine("IProbeEx");
    ASSERT_NE(define, nullptr);
    std::string dump;
    for (const TRUXMethodDefine& method : define->Items()) {
        dump += method.Name + "(";
        for (const TRUXParamDefine& param : method.Items()) dump += param.Name + ":" + param.Kind + ";";
        dump += ")" + method.ReturnType + " ";
    }
    EXPECT_EQ(dump,
              "Enabled()Boolean Select(X:Double;)TIntegerDynArray SetText(AText:string;) "
              "SetText(Row:Integer;AText:string;) find(What:string;)Integer ");
}

TEST_F(UsableControls, ReportsInBothForms) {
    Files.Put(ClassFile, "[ProbeEX]\r\nTProbe=\r\n[Alone]\r\nTAlone=\r\n", 1);
    EXPECT_EQ(GetUsableControlsText(false),
              "---\r\n"
              "probeex: \r\n- enabled\r\n- select\r\n- settext\r\n- settext\r\n- find\r\n"
              "alone: \r\n" +
                  std::string(BareGroups));
    EXPECT_EQ(GetUsableControlsText(true),
              "---\r\n"
              "probeex: \r\n"
              "  enabled: \r\n  - Boolean\r\n"
              "  select: \r\n  - - X\r\n    - Double\r\n  - TIntegerDynArray\r\n"
              "  settext: \r\n  - - AText\r\n    - string\r\n  - \r\n"
              "  settext: \r\n  - - Row\r\n    - Integer\r\n  - - AText\r\n    - string\r\n  - \r\n"
              "  find: \r\n  - - What\r\n    - string\r\n  - Integer\r\n"
              "alone: \r\n" +
                  std::string(BareGroups));
}

TEST_F(UsableControls, WorkersReportWhileTheFileChanges) {
    std::vector<std::thread> workers;
    std::mutex lock;
    std::set<std::string> seen;
    for (int i = 0; i < 3; ++i)
        workers.emplace_back([&] {
            for (int n = 0; n < 40; ++n) {
                const std::string text = GetUsableControlsText(false);
                const std::lock_guard held(lock);
                seen.insert(text);
            }
        });
    for (int n = 0; n < 40; ++n) {
        Files.Put(ClassFile, n % 2 ? "[Extra]\r\nTExtra=\r\n" : "", 1 + n);
        EXPECT_EQ(IniClassGroup().IsInGroup("Extra", "TExtra", nullptr), n % 2 != 0);
        EXPECT_TRUE(IniClassGroup().IsInGroup("StatusBar", "TStatusBar", nullptr));
    }
    for (std::thread& worker : workers) worker.join();
    // Never a table that is half loaded.
    for (const std::string& text : seen)
        EXPECT_TRUE(text == "---\r\n" + std::string(BareGroups) ||
                    text == "---\r\nextra: \r\n" + std::string(BareGroups))
            << text;
}

}  // namespace rux::test
