// ruxcall and curl against a running host.
#include <arpa/inet.h>
#include <sys/socket.h>

#include "host/Program.h"

namespace rux::test {

namespace {

class CallProgram : public testing::Test {
 protected:
    std::string Call(const TArgs& args, std::string_view input = "") {
        return OutcomeOf(TArgs{"ruxcall", "--port-file", PortFile} + args, input);
    }
    const TTempFolder Folder;
    const std::string PortFile = Folder.Path("port");
    TStartedHost Host{Folder, {"--sample", "orders", "--port-file", PortFile}};
};

/// Takes one request of a client and answers as it is told.
class TFalseServer {
 public:
    TFalseServer() {
        socklen_t size = sizeof FName;
        EXPECT_EQ(listen(FListener, 1), 0);  // on a port of the system's choice
        getsockname(FListener, reinterpret_cast<sockaddr*>(&FName), &size);
    }
    ~TFalseServer() { close(FListener); }
    std::string PortText() const { return std::to_string(ntohs(FName.sin_port)); }
    std::string Serve(std::string_view answer) {
        const int client = accept4(FListener, nullptr, nullptr, SOCK_CLOEXEC);
        std::string head;
        for (char c; !head.ends_with("\r\n\r\n") && recv(client, &c, 1, 0) == 1;) head += c;
        send(client, answer.data(), answer.size(), MSG_NOSIGNAL);
        close(client);
        return head;
    }

 private:
    const int FListener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in FName{};
};

}  // namespace

TEST_F(CallProgram, RequestsAndScripts) {
    const std::string found = "> 订单管理$Find\n211 成功返回\nTrue\n";
    const std::string wrong =
        "\" behind the last \" => \", expected a status number, and a text behind it if the text counts\n= 2";
    const struct {
        std::string Script, Output;
    } rows[] = {
        {"\xEF\xBB\xBF# nothing\r\n\r\n   # indented\n", "= 0"},
        {"订单管理$Find => 211\n订单管理$Find => 211 False\n订单管理$Find => 212\r\n  订单管理$Find",
         found + found + "! line 2: expected 211 False, got 211 True\n" + found +
             "! line 3: expected 212, got 211 True\n" + found + "! 2 expectations not met\n= 1"},
        {"备注>?TMemo$GetText => 211 货到付款\\r\\n周末\\t",
         "> 备注>?TMemo$GetText\n211 成功返回\n货到付款\r\n周末不送\r\n\n! line 1: expected 211 "
         "货到付款\\r\\n周末\\t, got 211 货到付款\\r\\n周末不送\\r\\n\n! 1 expectation not met\n= 1"},
        {"备注>?TMemo$SetText(a => b) => 212\n备注>?TMemo$GetText => 211",
         "> 备注>?TMemo$SetText(a => b)\n212 成功\n> 备注>?TMemo$GetText\n211 成功返回\na => b\n= 0"},
        // Nothing is played of a script with a line that is wrong.
        {"订单管理$Find => 211\n\n备注>?TMemo$SetText(a => b)",
         "! ruxcall: standard input:3: found \"b)" + wrong},
        {"订单管理$Find => 211True", "! ruxcall: standard input:1: found \"211True" + wrong},
    };
    for (const auto& [script, output] : rows) EXPECT_EQ(Call({"-f", "-"}, script), output);
    EXPECT_EQ(Call({"备注>?TMemo$SetText(a\\, %20?&+\"\t)", "备注>?TMemo$GetText", "没有$Click"}),
              "212 成功\n211 成功返回\na, %20?&+\"\t\n515 查找失败\n没有找到没有对应的控件\n= 0");
    std::string many;
    for (std::size_t i = 0; i < 1000; ++i) {
        const std::string text = std::to_string(i) + std::string(i, 'x');
        many += "联系电话>?TEdit$SetText(" + text + ") => 212\n联系电话>?TEdit$GetText => 211 " + text + "\n";
    }
    EXPECT_TRUE(Call({"-f", Folder.File("many.rux", many)}).ends_with("\n= 0"));
}

TEST(CallProgramAlone, BytesOnTheWire) {
    for (const auto& [answer, output] :
         {std::pair("HTTP/1.1 211\r\nReturnCodeComment: 好\r\nContent-length: 4\r\n\r\nTrue",
                    "211 好\nTrue\n= 0"),
          {"", "! ruxcall: the server ended the connection\n= 2"},
          {"HTTP/1.1 211\r\nContent-length: 9\r\n\r\nTrue",
           "! ruxcall: the server ended the connection in the middle of an answer\n= 2"},
          {"SSH-2.0-x\r\n", "! ruxcall: this is no answer: SSH-2.0-x\n= 2"}}) {
        TFalseServer server;
        TProgram call({"ruxcall", "--address", "127.0.0.2", "--port", server.PortText(),
                       "中\\,/a#1>?TEdit$SetText(5% +\"\t)?X"});
        EXPECT_EQ(server.Serve(answer),
                  "GET /%E4%B8%AD%5C,/a%231%3E?TEdit$SetText(5%25%20%2B%22%09)?X HTTP/1.1\r\n"
                  "Host: 127.0.0.2:" +
                      server.PortText() + "\r\n\r\n");
        EXPECT_EQ(call.Outcome(), output);
    }
}

TEST_F(CallProgram, Curl) {
    if (OutcomeOf({"sh", "-c", "command -v curl > /dev/null"}) != "= 0")
        GTEST_SKIP() << "curl is not installed";
    const std::string find =
        "http://127.0.0.1:" + Host.PortText + "/%E8%AE%A2%E5%8D%95%E7%AE%A1%E7%90%86$Find";
    const std::string text = "Content-Type: text/plain \n", end = "Date: #\nServer: RUX HTTP Server\n\n";
    const std::string found =
        " 211\n" + text + "RunTime:#\nMemoryUsage:#\nReturnCodeComment:成功返回\nContent-length: 4\n";
    const std::string refused =
        "HTTP/1.1 504\n" + text + "ReturnCodeComment:\nContent-length: 0\n" + end + "= 0";
    const std::string again = "HTTP/1.1" + found + end + "True";
    const std::string last = found + "Connection: close\n" + end + "True= 0";
    const struct {
        TArgs Args;
        std::string Answer;
    } rows[] = {{{find, find}, again + again + "= 0"},
                {{"--data", "dropped", find}, again + "= 0"},
                {{"--http1.0", find}, "HTTP/1.0" + last},
                {{"-H", "Connection: close", find}, "HTTP/1.1" + last},
                {{"-I", find}, refused},
                {{"-XPUT", find}, refused}};
    for (const auto& [args, answer] : rows) {
        std::string got = OutcomeOf(TArgs{"curl", "-sS", "-i", "--noproxy", "*"} + args);
        std::erase(got, '\r');
        // What differs from run to run.
        for (const char* const name : {"RunTime:", "MemoryUsage:", "Date: "}) got = Masked(got, name, "\n");
        EXPECT_EQ(got, answer);
    }
}

}  // namespace rux::test
