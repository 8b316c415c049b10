// rux-host: what it makes of forms, its options, its ports, its end.
#include <netinet/in.h>

#include <sstream>

#include "host/Program.h"
#include "host/call/HttpClient.h"
#include "support/LiveHost.h"

namespace rux::test {

namespace {

std::string ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Ask(THttpClient& client, std::string_view request) {
    return TLiveHost::Show(client.Get(request));
}

int FreePortFrom(int port) {
    const int probe = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0), on = 1;
    setsockopt(probe, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    do name.sin_port = htons(static_cast<std::uint16_t>(port++));
    while (bind(probe, reinterpret_cast<const sockaddr*>(&name), sizeof name) != 0);
    close(probe);
    return port - 1;
}

class HostProgram : public testing::Test {
 protected:
    const TTempFolder Folder;
    const std::string Main = Folder.File("main.dfm",
                                         "\xEF\xBB\xBF"
                                         R"(object Main: TMain
  Left = 10 Top = 20 ClientWidth = 300 ClientHeight = 200 Caption = '主窗口#'#241
  object edit: TMyEdit Left = 10 Top = 10 Width = 75 Height = 25 Text = 'a'#13#10'b' TabOrder = 0 end
  object panel: TPanel Left = 100 Top = 50 Width = 90 Height = 40 Enabled = False
    object lamp: TLamp Left = 1 Top = 2 Width = 3 Height = 4 end
  end
  object menu: TPopupMenu object open: TMenuItem Caption = '&Open' end end
end)");
    const std::string Second = Folder.File("second.dfm",
                                           "\xEF\xBB\xBF"
                                           R"(object Second: TSecond Caption = '第二个'
  object close: TLabel Left = 1 Top = 1 Width = 75 Height = 25 Visible = False end end)");
    const std::string Third =
        Folder.File("third.dfm", "\xEF\xBB\xBFobject Third: TThird Caption = '第三个' end");
};

}  // namespace

TEST_F(HostProgram, DumpsWhatLives) {
    const std::string classes = Folder.File("classes", "; parents\nTMyEdit = TEdit\r\n");
    for (const auto& [page, first, second] :
         {std::array{"936", "主窗口#?", "第二个"}, {"1252", "???#ñ", "???"}})
        EXPECT_EQ(OutcomeOf({"rux-host", "--dump", "--codepage", page, "--classes", classes, Main, "--show",
                             "second", Second}),
                  "TMain Main parent=- rect=(10,20)-(318,247) visible=True enabled=True caption='" +
                      std::string(first) + R"(' [unknown class, served as TForm]
  TMyEdit edit parent=Main rect=(24,53)-(99,78) visible=True enabled=True caption='a\r\nb' [unknown class, served as TEdit]
  TPanel panel parent=Main rect=(114,93)-(204,133) visible=True enabled=False caption=''
    TLamp lamp parent=panel rect=(115,95)-(118,99) visible=True enabled=True caption='' [unknown class, served as TGraphicControl]
  TPopupMenu menu parent=Main rect=- visible=- enabled=- caption=''
    TMenuItem open parent=menu rect=- visible=True enabled=True caption='&Open'
TSecond Second parent=- rect=(0,0)-(320,240) visible=True enabled=True caption=')" +
                      second + R"(' [unknown class, served as TForm]
  TLabel close parent=Second rect=(5,24)-(80,49) visible=False enabled=True caption=''
= 0)");
}

TEST_F(HostProgram, RunsAsItIsTold) {
    const std::string portFile = Folder.File("port", "an earlier run's"), journal = Folder.Path("journal");
    TStartedHost host(Folder, {"--listen", "0.0.0.0", "--port-file", portFile, "--journal", journal, "--show",
                               "second", Main, Second, Third});
    EXPECT_EQ(ReadWholeFile(portFile), host.PortText + "\n");
    THttpClient client("127.0.0.2", host.Port());  // another address of this machine
    EXPECT_EQ(Ask(client, "?TMain$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(Ask(client, "第二个$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(Ask(client, "第三个$Find"), "211 成功返回\nFalse");
    host.Signal(SIGTERM);
    EXPECT_EQ(host.Outcome(), "= 0");
    EXPECT_EQ(ReadWholeFile(journal), "show TMain 主窗口#?\nshow TSecond 第二个\n");

    TStartedHost alone(Folder, {Main});
    THttpClient other("127.0.0.2", alone.Port());
    EXPECT_THROW(other.Get("?TMain$Find"), THttpClientError);
}

TEST_F(HostProgram, EndsOnSignals) {
    for (const int number : {SIGTERM, SIGINT}) {
        TStartedHost host(Folder, {"--modal", "Second", "--modal", "Third", "--journal", "/dev/stdout", Main,
                                   Second, Third});
        EXPECT_EQ(host.WaitForLine("show TSecond"), "show TSecond 第二个");
        EXPECT_EQ(host.WaitForLine("show TThird"), "show TThird 第三个");
        THttpClient client("127.0.0.1", host.Port());
        EXPECT_EQ(Ask(client, "第三个?TThird$Enabled"), "211 成功返回\nTrue");
        host.Signal(number);
        EXPECT_TRUE(host.Outcome().ends_with("= 0"));
        EXPECT_THROW(client.Get("?TMain$Find"), THttpClientError);
    }
    // A request that waits for the window that it opened.
    TStartedHost host(Folder, {"--sample", "orders", "--journal", "/dev/stdout"});
    TProgram call({"ruxcall", "--port", host.PortText, "选择客户?Button$Click?IgnorePopupWindow"});
    EXPECT_EQ(host.WaitForLine("show TCustomerForm"), "show TCustomerForm 选择客户");
    host.Signal(SIGINT);
    EXPECT_TRUE(host.Outcome().ends_with("= 0"));
    EXPECT_EQ(call.Outcome(), "! ruxcall: the server ended the connection\n= 2");
}

/// Other hosts of this machine come and go meanwhile and may take or free a port between a look at it and a
/// start, so that the rule need not show at once; when it is broken it never shows.
TEST_F(HostProgram, TakesTheFirstFreePort) {
    std::string seen;
    for (int attempt = 0; attempt < 30; ++attempt) {
        const int first = FreePortFrom(4440), second = FreePortFrom(first + 1);
        TStartedHost one(Folder, {Main}), two(Folder, {Main});
        ASSERT_NE(one.Port(), two.Port());
        one.Signal(SIGKILL);
        EXPECT_EQ(one.Outcome(), "= -9");
        TStartedHost again(Folder, {Main});
        if (one.Port() == first && two.Port() == second && again.Port() == first) return;
        seen += one.PortText + " " + two.PortText + " " + again.PortText + "; ";
    }
    FAIL() << seen;
}

TEST_F(HostProgram, RealFormsLive) {
    const char* const given = std::getenv("RUX_FORMS");
    const fs::path forms = given ? fs::path(given) : fs::path(RUX_SOURCE_DIR) / "../shared/forms";
    std::ifstream table(forms / "COUNTS.tsv");
    if (!table) GTEST_SKIP() << "no form files in " << forms;
    // One line for each object, but for those that controls make for themselves.
    std::string row, name, root;
    long objects = 0;
    for (std::getline(table, row); std::getline(table, row);) {
        std::istringstream(row) >> name >> root >> objects;
        const std::string file = (forms / name).string(),
                          dump = "\n" + OutcomeOf({"rux-host", "--dump", file});
        EXPECT_TRUE(dump.ends_with("\n= 0")) << name;
        long lines = 0;
        std::istringstream text(dump.substr(1));
        for (std::string line; std::getline(text, line);)
            lines += line.find("TGroupButton - ") == line.npos && line.find("TBoundLabel ") == line.npos &&
                     !line.substr(line.find_first_not_of(' ')).starts_with("- ");
        EXPECT_EQ(lines, objects + 1) << name;  // and the status
        TStartedHost host(Folder, {file});
        THttpClient client("127.0.0.1", host.Port());
        EXPECT_EQ(Ask(client, "?" + root + "$Find"), "211 成功返回\nTrue") << name;
        host.Signal(SIGTERM);
        EXPECT_EQ(host.Outcome(), "= 0") << name;
    }
    EXPECT_GT(objects, 0);
}

}  // namespace rux::test
