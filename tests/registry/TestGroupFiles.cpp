#include <cstdint>

#include "Engine/Registry/RUXGroupClassFile.h"
#include "RegistryTestSupport.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

std::uint64_t Fnv1a(std::string_view bytes) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash;
}

using GroupFiles = TRegistryTest;

}  // namespace

TEST_F(GroupFiles, ANewFileHoldsTheCompiledRowsAndIsWrittenOnce) {
    IniClassGroup();
    CheckEnabledMethodGroup();
    EXPECT_EQ(Fnv1a(Files.Content(ClassFile)), 0xF72D08CC381A42F1u);
    EXPECT_EQ(Fnv1a(Files.Content(MethodFile)), 0xC54905EED83874A8u);
    const std::string begin = "[Button]\r\nClick=\r\n\r\n[CheckBox]\r\nClick=\r\nMouseDown=\r\n\r\n";
    EXPECT_EQ(Files.Content(MethodFile).substr(0, begin.size()), begin);
    EXPECT_EQ(Files.Writes, 2);

    IniClassGroup().SaveFile();
    EXPECT_FALSE(IniClassGroup().IsInGroup("Button", "TLabel", nullptr));
    EXPECT_EQ(Files.Writes, 2);
    IniClassGroup().AddClass("ComBobox", "TAppBox");
    IniClassGroup().SaveFile();
    EXPECT_TRUE(IniClassGroup().IsInGroup("combobox", "tappbox", nullptr));
    EXPECT_EQ(Files.Writes, 3);
    EXPECT_EQ(Log(), "");
}

TEST_F(GroupFiles, RowsOfATesterSurvive) {
    Files.Put(ClassFile, "; mine\r\n[Mine]\r\nTMine = 1\r\n[button]\r\nTMyButton=\r\ntbutton=5\r\n", 7);
    IniClassGroup();
    const std::string begin =
        "[Mine]\r\nTMine=1\r\n\r\n[button]\r\nTMyButton=\r\nTButton=\r\nTBitBtn=\r\nTFlatTabSheet=\r\n";
    EXPECT_EQ(Files.Content(ClassFile).substr(0, begin.size()), begin);
    EXPECT_TRUE(IniClassGroup().IsInGroup("MINE", "tmine", nullptr));

    // A save keeps what was added since, and is not taken for an edit by somebody else.
    IniClassGroup().AddClass("Grid", "TAppGrid");
    IniClassGroup().SaveFile();
    IniClassGroup().AddClass("Grid", "TUnsaved");
    EXPECT_TRUE(IniClassGroup().IsInGroup("Grid", "TUnsaved", nullptr));
    Files.Put(ClassFile, Files.Content(ClassFile), 8);
    EXPECT_FALSE(IniClassGroup().IsInGroup("Grid", "TUnsaved", nullptr));
    EXPECT_TRUE(IniClassGroup().IsInGroup("Grid", "TAppGrid", nullptr));
}

TEST_F(GroupFiles, MembershipByNameAndByInheritanceSeesEdits) {
    // clang-format off
    const struct {
        const char* File;
        std::int64_t Stamp;
        const char *Group, *ClassName;
        bool Expected;
    } rows[] = {
        {"", 5000, "Button", "TMyButton", true}, {"", 5000, "bUTTON", "tbutton", true},
        {"", 5000, "Edit", "TMyButton", false}, {"", 5000, "Nothing", "TMyButton", false},
        {"[Edit]\r\nTMyButton=\r\n", 6000, "Edit", "TMyButton", true},
        {"[Edit]\r\nTMyButton=\r\n", 6000, "Button", "TMyButton", false},
        {"[Edit]\r\nTMyButton=\r\n", 6000, "Button", "TButton", true},
        {"[Edit]\r\nTMyButton=x\r\n", 10, "Edit", "TMyButton", true},
        {"[Edit]\r\nTMyButton=x\r\n", 10, "Button", "TMyButton", true},
        {"[Other]\r\ntmybutton =\r\n", 9, "Button", "TMyButton", false},
        {"[Other]\r\nTButton=\r\n", 11, "Button", "TMyButton", true},
        {"[Word]\r\nTObject=\r\n", 12, "Word", "TMyButton", true}};
    // clang-format on
    TThing button(Chain("TObject TButton TMyButton"));
    for (const auto& row : rows) {
        Files.Put(ClassFile, row.File, row.Stamp);
        EXPECT_EQ(IniClassGroup().IsInGroup(row.Group, row.ClassName, &button), row.Expected)
            << row.File << row.Group << ' ' << row.ClassName;
    }
    EXPECT_FALSE(IniClassGroup().IsInGroup("Button", "TMyButton", nullptr));

    Files.Put(ClassFile, "[Fresh]\r\nTMyButton=\r\n", 77);
    EXPECT_FALSE(IniClassGroup().Contains("Fresh", "TMyButton", &button));
    EXPECT_FALSE(MatchesControlType(&button, "TMyButton", "Fresh"));
    IniClassGroup().Refresh();
    EXPECT_TRUE(IniClassGroup().Contains("Fresh", "TMyButton", &button));
    EXPECT_TRUE(MatchesControlType(&button, "TMyButton", "Fresh"));
    EXPECT_TRUE(MatchesControlType(nullptr, "TAnything", "tanything"));
    EXPECT_FALSE(MatchesControlType(&button, "", "Fresh"));
}

TEST_F(GroupFiles, MethodsThatDemandAnEnabledControl) {
    const struct {
        const char *Group, *Method;
        bool Expected;
    } rows[] = {{"Button", "Click", true},      {"BUTTON", "cLICK", true}, {"Button", "Active", false},
                {"RadioButton", "Click", true}, {"", "Click", false},      {"", "", false},
                {"TreeView", "dblclick", true}, {"Form", "Close", false},  {"StatusBar", "GetText", true}};
    for (const auto& row : rows)
        EXPECT_EQ(CheckEnabledMethodGroup().IsCheckedMethod(row.Group, row.Method), row.Expected)
            << row.Group << ' ' << row.Method;
    Files.Put(MethodFile, "[Form]\r\nClose=\r\n", 3);
    EXPECT_TRUE(CheckEnabledMethodGroup().IsCheckedMethod("Form", "Close"));
    EXPECT_TRUE(CheckEnabledMethodGroup().IsCheckedMethod("Button", "Click"));
}

TEST_F(GroupFiles, AFolderThatCannotBeWrittenIsOneWarning) {
    State.ServerPort = 0;  // the groups load before the log has a place
    Files.Put(ClassFile, "[Mine]\r\nTMine=\r\n", 7);
    Files.ReadOnly = true;
    IniClassGroup().AddClass("Grid", "TAppGrid");
    IniClassGroup().SaveFile();
    EXPECT_TRUE(IniClassGroup().IsInGroup("Grid", "TAppGrid", nullptr));
    State.ServerPort = 8083;
    const std::string warning = "warn - " + Ansi("分组文件C:\\App\\RUX.classgroup.ini无法读写!") + "\r\n";
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(IniClassGroup().IsInGroup("Mine", "TMine", nullptr));
    EXPECT_EQ(Log(), warning);
    IniClassGroup().SaveFile();
    EXPECT_EQ(Log(), warning);

    Files.ReadOnly = false;
    IniClassGroup().SaveFile();
    EXPECT_NE(Files.Content(ClassFile).find("\r\nTAppGrid=\r\n"), std::string::npos);
    EXPECT_EQ(Log(), warning);
    Files.ReadOnly = true;
    IniClassGroup().AddClass("Grid", "TOther");
    IniClassGroup().SaveFile();
    EXPECT_EQ(Log(), warning + warning);
}

TEST_F(GroupFiles, AFileThatCannotBeReadIsLeftAlone) {
    const std::string mine = "[Mine]\r\nTMine=\r\n";
    Files.Put(ClassFile, mine, 7);
    Files.Locked = true;
    EXPECT_TRUE(IniClassGroup().IsInGroup("Button", "TButton", nullptr));
    IniClassGroup().AddClass("Grid", "TAppGrid");
    IniClassGroup().SaveFile();
    EXPECT_TRUE(IniClassGroup().IsInGroup("Grid", "TAppGrid", nullptr));
    EXPECT_EQ(Files.Content(ClassFile), mine);
    EXPECT_EQ(Log(), "warn - " + Ansi("分组文件C:\\App\\RUX.classgroup.ini无法读写!") + "\r\n");
    Files.Locked = false;
    EXPECT_TRUE(IniClassGroup().IsInGroup("Mine", "TMine", nullptr));
}

}  // namespace rux::test
