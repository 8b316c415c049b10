// The agent inside Windows programs: native controls, questions, notepad, the registry
// editor, code pages.
#include <gtest/gtest.h>

#include <numeric>
#include <set>

#include "WineRun.h"
#include "host/call/Script.h"
#include "native/VirtualRows.h"
#include "watch/Scene.h"

namespace rux::test {

namespace {

class TWinePrograms : public testing::Test {
 protected:
    void SetUp() override {
        if (const std::string why = WhyNoWine(); !why.empty()) GTEST_SKIP() << why;
    }
    /// The answer, of its status only the number.
    static std::string Ask(TWineRun& run, const std::string& request) {
        std::string answer = run.Ask(request);
        return answer.erase(3, answer.find('\n') - 3);
    }
    static void Play(TWineRun& run, std::string_view script) {
        for (const TScriptStep& step : ReadScript("script", script)) {
            std::string expected = std::to_string(step.Status.value());
            std::string answer = Ask(run, step.Request);
            if (step.Text) expected += "\n" + *step.Text;
            if (!step.Text) answer.resize(3);
            EXPECT_EQ(EscapeText(answer), EscapeText(expected)) << step.Request;
        }
    }
    static TArgs SystemProgram(const std::string& name, const std::string& windowClass) {
        return {"--control", ControlPort,  "--own",  "--await", windowClass,
                "--load",    "vcl100.bpl", "--load", "rux.dll", name + ".exe"};
    }
    static std::string PictureNames(TWineRun& run) {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(run.Pictures())) {
            const std::string what = DescribeJpeg(entry.path().string());
            names.insert(entry.path().filename().string() + what.substr(what.rfind(' ')) + ";");
        }
        return std::accumulate(names.begin(), names.end(), std::string());
    }
};

}  // namespace

TEST_F(TWinePrograms, NativeControls) {
    TWineRun run(HostArguments({"fixture"}));
    run.AwaitWindow("原生");
    run.Tell("notes");
    for (const TVirtualRow& row : VirtualRows()) {
        if (row.InMemory) continue;
        std::string expected = row.Answer;
        // No window belongs to an object of the toolkit.
        if (const std::size_t at = expected.find("TPanel:"); at != expected.npos)
            expected.replace(at, 6, "other");
        EXPECT_EQ(Ask(run, row.Request), expected) << row.Request;
        if (!row.Journal.ends_with("command 7")) continue;
        EXPECT_EQ(run.Tell("notes"), "command 7") << row.Request;
    }
}

TEST_F(TWinePrograms, BoxThatWasThereBefore) {
    TWineRun run({"--await", "#32770", "--load", "rux.dll", "testhost.exe", "--control", ControlPort, "box"});
    run.Tell("idle");
    Play(run, R"(Box$Find => 211 True
text?Label$GetText => 211 text
Box?TVirtualWindow$GetInfo => 211 Box\r\nother:确定\r\nother:text
确定?Button$Click => 212
Box$Find => 211 False
)");
    EXPECT_EQ(run.Tell("notes"), "ended 1");
    run.Tell("end 7");
    EXPECT_TRUE(run.Outcome().ends_with("= 7"));
}

TEST_F(TWinePrograms, QuestionsAndBoxesOnBoxes) {
    TWineRun run(HostArguments({"main", "go yesno"}));
    run.AwaitWindow("Main");
    Play(run, R"(Go$Click?PopupWindow=Box => 213 Box
Main/Go$Find => 211 False
是?Button$Click => 212
Main/Go$Find => 211 True
)");
    EXPECT_EQ(run.Tell("notes"), "go; ended 6; back");
    // Of the second nobody hears before the next request.
    run.Tell("go two");
    EXPECT_TRUE(run.Ask("Go$Click").starts_with("519 非预期窗体\nBox\r\n"));
    run.TellUntil("notes", [](const std::string& notes) { return notes.find("second") != notes.npos; });
    run.AwaitLog(" Pop:Go$Click\r\n");
    Play(run, R"(确定?Button$Click => 520
Box$Find => 211 True
确定?Button$Click => 212
Box$Find => 211 False
)");
    EXPECT_EQ(run.Tell("notes"), "ended 1; ended 1; back");
}

// A window that nobody's call brings up, a menu's dialog, belongs to a request that waits for a window.
TEST_F(TWinePrograms, Notepad) {
    const std::string saveAs = "post Notepad 273 259 0", typed = "post Notepad/Edit 258 33 0";
    TWineRun run(SystemProgram("notepad", "Notepad"), "C.UTF-8");
    Play(run, "?TVirtualEdit$SetText(first line) => 212");
    EXPECT_EQ(run.Tell(typed), "posted");
    Play(run, R"(?TVirtualEdit$GetText => 211 !first line
Notepad?TVirtualWindow$Close?CloseUnExpactPopupWindow => 519 Notepad\r\nother:&Yes\r\nother:&No\r\nother:Cancel\r\nother:File 'Untitled' has been modified.\n\nWould you like to save the changes?\r\nPicFileName:/UnExpectWindowPic/Notepad_Notepad_TVirtualWindow$Close_CloseUnExpactPopupWindow.jpg
?TVirtualEdit$GetText?PopupWindow=Other?CloseUnExpactPopupWindow => 211 !first line
)");
    EXPECT_EQ(run.Tell(saveAs), "posted");
    run.AwaitLog("Close UnExWin:Save As");
    const std::string report = Ask(run, "nothing$Find");
    EXPECT_TRUE(report.starts_with("520\n") && report.find("\r\nSave As\r\nother:") != report.npos &&
                report.ends_with("\r\nPicFileName:/UnExpectWindowPic/Save As_"
                                 "_TVirtualEdit$GetText_PopupWindow=Other_CloseUnExpactPopupWindow.jpg"))
        << report;
    EXPECT_EQ(PictureNames(run),
              "Notepad_Notepad_TVirtualWindow$Close_CloseUnExpactPopupWindow.jpg many;"
              "Save As__TVirtualEdit$GetText_PopupWindow=Other_CloseUnExpactPopupWindow.jpg many;");

    TWineRequest waiting(run.Port(), "?TVirtualEdit$GetText?WaitForWindow=^Save As$");
    run.AwaitLog("Execute Test:?TVirtualEdit$GetText?WaitForWindow");
    EXPECT_EQ(run.Tell(saveAs), "posted");
    EXPECT_TRUE(waiting.Answer().ends_with("\nSave As"));
    Play(run, R"(Save As/?TVirtualEdit$SetText(Z\:\\mnt\\run\\saved.txt) => 212
Save As/Save?Button$Click => 212
Save As$Find => 211 False
saved?TVirtualWindow$Find => 211 True
)");
    std::ifstream saved(run.Folder() / "saved.txt");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(saved), {}), "!first line");
    // Nothing is left to ask for: it goes, and the agent with it.
    const TWineRequest last(run.Port(), "saved?TVirtualWindow$Close");
    EXPECT_TRUE(run.Outcome().ends_with("= 0"));
}

// A key of the tree has its keys below it only once it has been opened.
TEST_F(TWinePrograms, RegistryEditor) {
    TWineRun run(SystemProgram("regedit", "RegEdit_RegEdit"), "C.UTF-8");
    Play(run, R"(?TreeView$SetExpand(HKEY_CURRENT_USER) => 212
?TreeView$SetExpand(HKEY_CURRENT_USER/Software) => 212
?TreeView$Select(HKEY_CURRENT_USER/Software/Wine) => 212
?TreeView$Selected => 211 Wine
?TreeView$Select(HKEY_CURRENT_USER/Nothing) => 517
)");
    const std::string texts = Ask(run, "?TVirtualWindow$GetInfo");
    EXPECT_NE(texts.find("\\HKEY_CURRENT_USER\\Software\\Wine"), texts.npos) << texts;
}

// The code page is the system's; what it has not becomes a question mark, the agent's own words too.
TEST_F(TWinePrograms, CodePages) {
    struct TRow {
        const char *Language, *Page, *Comment, *Text, *InPage;
    };
    const TRow rows[] = {
        {"zh_CN.UTF-8", "936", "非预期窗体", "方法没实现", "Caf\xA8\xA6$Click"},
        {"C.UTF-8", "1252", "?????", "?????", "Caf\xE9$Click"},
    };
    for (const TRow& row : rows) {
        TWineRun run(HostArguments({"main"}), row.Language);
        run.AwaitWindow("Main");
        EXPECT_EQ(run.Tell("codepage"), row.Page);
        EXPECT_EQ(run.Tell("title Zoé"), "done");
        const std::string answer = run.Ask("Café$Click");
        EXPECT_TRUE(answer.starts_with(std::string("519 ") + row.Comment + "\nZoé\r\nother:")) << answer;
        EXPECT_NE(answer.find(std::string("other:") + row.Text + " (Engine/"), answer.npos) << answer;
        EXPECT_TRUE(answer.ends_with("PicFileName:/UnExpectWindowPic/Zoé_Café$Click.jpg")) << answer;
        EXPECT_NE(run.Log().find(row.InPage), std::string::npos);
        run.Tell("settle");
        EXPECT_EQ(PictureNames(run), "Zoé_Café$Click.jpg many;");
        EXPECT_EQ(run.Tell("close Zoé"), "posted");
    }
}

}  // namespace rux::test
