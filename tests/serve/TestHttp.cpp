// The daemon, byte by byte, and what clients can do to it.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <memory>
#include <thread>

#include "Engine/Core/RUXLimits.h"
#include "support/LiveHost.h"
#include "support/RawClient.h"

namespace rux::test {

namespace {

constexpr std::string_view MainForm = R"(object Main: TForm Caption = '主窗口' Width = 600 Height = 400
  object a: TEdit Left = 10 Top = 10 Width = 75 Height = 25 Text = '中文' end
  object b: TButton Left = 10 Top = 50 Width = 75 Height = 25 Caption = '等待' OnClick = Wait end end)";
constexpr const char* FindTail = "$Find HTTP/1.1\r\n\r\n";

class THttp : public testing::Test {
 protected:
    /// What comes back until the server ends the connection; the memory figure is masked.
    std::string Exchange(std::string_view request) {
        TRawClient client(Host.Port());
        client.Send(request);
        client.EndSending();
        return Masked(client.ReadAll());
    }
    /// The memory figure is the only thing that differs from run to run; its form is checked as it goes.
    static std::string Masked(std::string answer) {
        constexpr std::string_view name = "MemoryUsage:";
        for (std::size_t at = answer.find(name); at != answer.npos; at = answer.find(name, at + 1)) {
            const std::size_t start = at + name.size(), end = answer.find('\r', start);
            EXPECT_EQ(answer.find('.', start) + 5, end);
            EXPECT_EQ(answer.find_first_not_of("0123456789.", start), end);
            answer.replace(start, end - start, "M");
        }
        return answer;
    }
    TLiveHost Host{{MainForm}};
};

/// What follows each occurrence of `word`, up to eight bytes.
std::vector<std::string> Occurrences(const std::string& text, std::string_view word) {
    std::vector<std::string> found;
    for (std::size_t at = text.find(word); at != text.npos; at = text.find(word, at + 1))
        found.push_back(text.substr(at + word.size(), 8));
    return found;
}

std::string Tail(int length, bool close = false) {
    return "Content-length: " + std::to_string(length) + "\r\n" + (close ? "Connection: close\r\n" : "") +
           "Date: Wed, 5 Mar 2008 09:00:00 +0800\r\nServer: RUX HTTP Server\r\n\r\n";
}

const std::string Found =
    "Content-Type: text/plain \r\nRunTime:0\r\nMemoryUsage:M\r\nReturnCodeComment:成功返回\r\n";
const std::string Fixed = "Content-Type: text/plain \r\nReturnCodeComment:\r\n";

}  // namespace

TEST_F(THttp, BytesOnTheWire) {
    const std::string folder = Host.Folder().string();
    std::string exePath = folder + "/";
    for (char& c : exePath)
        if (c == '/') c = '\\';
    const std::string find11 = "HTTP/1.1 211\r\n" + Found + Tail(4) + "True";
    const std::string unsplit =
        "URL:无法分离控件位置描述字符串和方法调用字符串，请检查串中是否包含前一字符不是转义字符“\\”的字符“$“";
    const struct {
        std::string Request, Answer;
    } rows[] = {
        {"GET /%E4%B8%AD%e6%96%87$Find HTTP/1.1\r\nHost: x\r\n\r\n", find11},
        {"get /中文$Find HTTP/1.1\r\n\r\n", find11},  // raw UTF-8 is no error
        {"GET  /中文$Find   HTTP/1.1\r\n\r\n", find11},
        {"POST /中文$Find HTTP/1.1\r\ncontent-length: 5\r\n\r\nabcdeGET /GetExePath HTTP/1.1\r\n\r\n",
         find11 + "HTTP/1.1 213\r\n" + Fixed + Tail(static_cast<int>(exePath.size())) + exePath},
        {"GET /中文$Find HTTP/1.1\r\n\r\nGET /中文$Find HTTP/1.1\r\n\r\n", find11 + find11},
        {"GET /中文$Find HTTP/1.0\r\n\r\n", "HTTP/1.0 211\r\n" + Found + Tail(4, true) + "True"},
        {"GET /中文$Find HTTP/1.1\r\nConnection: Close\r\n\r\nGET /x HTTP/1.1\r\n\r\n",
         "HTTP/1.1 211\r\n" + Found + Tail(4, true) + "True"},
        {"GET /中文$Find\r\n", " 211\r\nTrue"},  // no protocol: a bare status line and the text
        {"GET /clearSERVER HTTP/1.1\r\n\r\n", "HTTP/1.1 212\r\n" + Fixed + Tail(4) + "True"},
        {"POST /getexepath HTTP/1.0\r\n\r\n",  // a request like any other, since the route takes GET only
         "HTTP/1.0 514\r\nContent-Type: text/plain "
         "\r\nRunTime:0\r\nMemoryUsage:M\r\nReturnCodeComment:解析错误\r\n" +
             Tail(static_cast<int>(unsplit.size()), true) + unsplit},
        {"PUT /x HTTP/1.1\r\n\r\n", "HTTP/1.1 504\r\n" + Fixed + Tail(0)},
        // No answer at all: one word, no path, another protocol, an empty line, an unfinished head.
        {"GET\r\n\r\n", ""},
        {"GET \r\n\r\n", ""},
        {"GET /x FTP/1.0\r\n\r\n", ""},
        {"\r\nGET /中文$Find HTTP/1.1\r\n\r\n", ""},
        {"GET /中文$Find HTTP/1.1\r\nHost: x\r\n", ""},
        {"GET /中文$Find HTTP/1.1\nHost: x\n\n", ""},  // a lone LF ends no line
        {"GET /%FF$Find HTTP/1.1\r\n\r\n",             // what is no UTF-8 is nothing
         "HTTP/1.1 514\r\nContent-Type: text/plain "
         "\r\nRunTime:0\r\nMemoryUsage:M\r\nReturnCodeComment:解析错误\r\n" +
             Tail(static_cast<int>(unsplit.size())) + unsplit},
    };
    for (const auto& row : rows) EXPECT_EQ(Exchange(row.Request), row.Answer) << row.Request;
}

TEST_F(THttp, LengthsThatAreNone) {
    // A length that follows its colon directly is not seen, nor one that is no number, negative or too large:
    // the bytes behind the head are then the next request.
    for (const char* const header :
         {"Content-Length:4", "Content-Length: -5", "Content-Length: four", "Content-Length: 4294967296",
          "Content-Length: 2147483648", "Content-Length: "}) {
        TRawClient client(Host.Port());
        client.Send("GET /中文$Find HTTP/1.1\r\n" + std::string(header) + "\r\n\r\nGET /中文" + FindTail);
        EXPECT_TRUE(client.ReadUntil("True").starts_with("HTTP/1.1 211")) << header;
        EXPECT_TRUE(client.ReadUntil("True").starts_with("HTTP/1.1 211")) << header;
    }
    // Two gigabytes are awaited, piece by piece, and end with the client.
    TRawClient client(Host.Port());
    client.Send("POST /中文$Find HTTP/1.1\r\nContent-Length: 2147483647\r\n\r\n" + std::string(1 << 20, 'x'));
    client.EndSending();
    EXPECT_EQ(client.ReadAll(), "");
}

TEST_F(THttp, RequestsInPieces) {
    TRawClient client(Host.Port());
    const std::string request = "GET /%E4%B8%AD%E6%96%87" + std::string(FindTail);
    for (const char c : request) client.Send({&c, 1});
    EXPECT_TRUE(client.ReadUntil("True").starts_with("HTTP/1.1 211"));
    // A client that says no more is let go after its time, and not before.
    Host.Clock().Advance(1);  // tells the wait for the rest from the wait for a request
    client.Send("GET /x");
    Host.Clock().WaitUntilWaiters(1, 120001);
    Host.Clock().Advance(120000);
    EXPECT_EQ(client.ReadAll(), "");
}

TEST_F(THttp, WhatIsTooLong) {
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const std::string head : {"GET /", "GET /x HTTP/1.1\r\nA: ", "GET /x HTTP/1.1\r\n"}) {
        TRawClient client(Host.Port());
        client.Send(head);
        std::string piece(1 << 16, 'x');
        if (head.ends_with("1.1\r\n")) piece = "Name: value\r\n" + piece.substr(0, 1 << 12) + "\r\n";
        for (int i = 0; i < 160 && client.Send(piece); ++i) {
        }
        client.EndSending();
        EXPECT_EQ(client.ReadAll(), "") << head;
        EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nTrue");
    }
    getrusage(RUSAGE_SELF, &after);
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16 * 1024);
#endif
}

TEST_F(THttp, ClientsThatGoAway) {
    for (int i = 0; i < 20; ++i) {
        TRawClient half(Host.Port());
        half.Send("GET /中文");
        TRawClient unread(Host.Port());
        unread.Send("GET /中文" + std::string(FindTail));
    }
    EXPECT_EQ(Host.Ask("中文$Find"), "211 成功返回\nTrue");
}

// Five hundred requests at once nest, are set aside beyond the depth that a small stack bears, and are all
// served.
TEST(THttpSmallStack, RequestsAtOnceInTheHundreds) {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    constexpr std::size_t stack = 4u << 20;  // frames are several times larger there
#else
    constexpr std::size_t stack = 1u << 20;
#endif
    TLiveHost host({MainForm}, stack);
    std::vector<std::unique_ptr<TRawClient>> clients;
    for (int i = 0; i < 500; ++i) clients.push_back(std::make_unique<TRawClient>(host.Port()));
    EXPECT_EQ(host.Ask("中文$Find"), "211 成功返回\nTrue");  // idle, they are in nobody's way
    // While the application is busy they gather in its queue.
    host.Run([&] {
        for (auto& client : clients) client->Send("GET /中文" + std::string(FindTail));
        while (Occurrences(host.Log(), "Request :").size() <= clients.size()) std::this_thread::yield();
    });
    for (auto& client : clients) ASSERT_TRUE(client->ReadUntil("True").starts_with("HTTP/1.1 211"));
    EXPECT_EQ(host.Ask("中文$Find"), "211 成功返回\nTrue");
    EXPECT_EQ(host.Engine().RequestStack.Count(), 0u);
    // They nested as deep as the rule allows, and no deeper.
    const std::vector<std::string> counts = Occurrences(host.Log(), "StactCount:");
    ASSERT_EQ(counts.size(), clients.size() + 2);
    int deepest = 0;
    for (const std::string& count : counts) deepest = std::max(deepest, std::stoi(count));
    EXPECT_GE(deepest, 10);
    EXPECT_LE(deepest, RequestNestingLimit + 1);
}

TEST(THttpLife, StartedAndStoppedManyTimes) {
    std::uint16_t port = 0;
    for (int i = 0; i < 15; ++i) {
        auto host = std::make_unique<TLiveHost>(std::vector{MainForm});
        if (port == 0) port = host->Port();
        EXPECT_EQ(host->Port(), port);  // the process keeps its port
        TRawClient idle(port), unfinished(port);
        unfinished.Send("GET /中文");
        EXPECT_EQ(host->Ask("中文$Find"), "211 成功返回\nTrue");
        if (i % 3 == 0) continue;
        // The end comes while a request waits in a message box, and another one behind it.
        host->Define("Main", "Wait", [&](HComponent&) { host->Kit().App().MessageBox("text", "caption"); });
        TPendingCall waiting(*host, "等待$Click?IgnorePopupWindow");
        host->WaitFor("show #32770");
        host.reset();
        EXPECT_EQ(waiting.Answer(), "the server ended the connection");
    }
}

}  // namespace rux::test
