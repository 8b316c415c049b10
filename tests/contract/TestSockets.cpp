
#include "contract/BoundaryContract.h"
#include "rtl/Exceptions.h"

namespace rux::test {
namespace {

/// Milliseconds that a test which fails may lose.
constexpr int Plenty = 120000;

/// "line|error" of one call.
std::string Line(TTCPBlockSocket& socket, std::size_t limit = 1000, int wait = Plenty) {
    const std::string line = socket.RecvString(wait, limit);
    return line + "|" + std::to_string(socket.LastError());
}

std::string Block(TTCPBlockSocket& socket, std::size_t length, int wait = Plenty) {
    std::string bytes(length, '?');
    bytes.resize(socket.RecvBufferEx(bytes.data(), length, wait));
    return bytes + "|" + std::to_string(socket.LastError());
}

}  // namespace

std::unique_ptr<TTCPBlockSocket> BoundaryContract::Listener(std::uint16_t& port) {
    static std::uint16_t next = static_cast<std::uint16_t>(20000 + Kernel.GetCurrentProcessId() % 10000);
    for (int i = 0; i < 1000; ++i) {
        auto socket = Sockets.CreateTCPBlockSocket();
        port = next++;
        socket->CreateSocket();
        socket->Bind("0.0.0.0", std::to_string(port));
        if (socket->LastError() == 0) socket->Listen();
        if (socket->LastError() == 0) return socket;
    }
    throw Exception("no port to listen on");
}

BoundaryContract::TConnection BoundaryContract::Connection() {
    std::uint16_t port = 0;
    const auto listener = Listener(port);
    TConnection result{Sockets.CreateTCPBlockSocket(), Sockets.CreateTCPBlockSocket()};
    result.Peer->SetSocket(Platform->Connect(port));
    EXPECT_TRUE(listener->CanRead(Plenty));
    result.Socket->SetSocket(listener->Accept());
    EXPECT_EQ(result.Socket->LastError(), 0);
    return result;
}

TEST_P(BoundaryContract, LinesComeWholeHoweverTheyArePacked) {
    using TTexts = std::vector<std::string>;
    const struct {
        TTexts Packets, Lines;
    } rows[] = {
        {{"GET / HTTP/1.1\r\nA: b\r\n\r\nrest"}, {"GET / HTTP/1.1|0", "A: b|0", "|0"}},
        {{"GE", "T /\r", "\n", "\r", "\nx\r\n"}, {"GET /|0", "|0", "x|0"}},
        {{"a\nb\rc\r\r\n\r\n"}, {"a\nb\rc\r|0", "|0"}},
        {{std::string("a\0b\r\n", 5)}, {std::string("a\0b|0", 5)}},
    };
    for (const auto& row : rows) {
        TConnection c = Connection();
        TBackground<TTexts> lines(Kernel, [&] {
            TTexts all;
            while (all.size() < row.Lines.size()) all.push_back(Line(*c.Socket));
            return all;
        });
        for (const std::string& packet : row.Packets) {
            // The reader waits anew, for what comes after the packet before.
            Platform->WaitUntilWaiters(1, Platform->Tick() + Plenty);
            Platform->Advance(1);
            c.Peer->SendBuffer(packet);
        }
        EXPECT_EQ(lines.Result(), row.Lines);
    }
}

TEST_P(BoundaryContract, ALineMayPauseBetweenPacketsButNotTooLong) {
    TConnection c = Connection();
    TBackground<std::string> line(Kernel, [&] { return Line(*c.Socket, 1000, static_cast<int>(Long)); });
    Platform->WaitUntilWaiters(1, Platform->Tick() + Long);
    Platform->Advance(Long - Margin);
    c.Peer->SendBuffer("ab");
    Platform->WaitUntilWaiters(1, Platform->Tick() + Long);
    Platform->Advance(Long - Margin);
    Platform->WaitUntilWaiters(1, Platform->Tick() + Margin);
    Platform->Advance(Margin);
    EXPECT_EQ(line.Result(), "|10060");
    EXPECT_EQ(c.Socket->LastErrorDesc(), "Connection timed out");
    c.Peer->SendBuffer("c\r\n");
    EXPECT_EQ(Line(*c.Socket), "abc|0");
}

TEST_P(BoundaryContract, ALineHasALimit) {
    const struct {
        const char *Sent, *Line;
    } rows[] = {{"12345\r\nx", "12345|0"},
                {"123456\r\n", "|10040"},
                {"123456", "|10040"},
                {"12345\rx", "|10040"},
                {"12345\r\r\n", "|10040"}};
    for (const auto& row : rows) {
        TConnection c = Connection();
        c.Peer->SendBuffer(row.Sent);
        EXPECT_EQ(Line(*c.Socket, 5), row.Line) << row.Sent;
    }
    TConnection endless = Connection();
    TBackground<int> flood(Kernel, [&] { return endless.Peer->SendBuffer(std::string(1 << 20, 'x')), 0; });
    EXPECT_EQ(Line(*endless.Socket, 100000), "|10040");
    EXPECT_EQ(Line(*endless.Socket, 100000), "|10040");
    endless.Socket.reset();
}

TEST_P(BoundaryContract, ABlockBeginsWithWhatCameBehindTheLine) {
    TConnection c = Connection();
    c.Peer->SendBuffer("line\r\n12345");
    EXPECT_EQ(Line(*c.Socket), "line|0");
    EXPECT_TRUE(c.Socket->CanRead(0));
    EXPECT_EQ(Block(*c.Socket, 3), "123|0");
    EXPECT_TRUE(c.Socket->CanRead(0));
    EXPECT_EQ(Block(*c.Socket, 0), "|0");
    EXPECT_EQ(Block(*c.Socket, 2), "45|0");
    EXPECT_FALSE(c.Socket->CanRead(0));
    EXPECT_EQ(c.Socket->LastError(), 0);

    // The time is that of the whole call.
    TBackground<std::string> block(Kernel, [&] { return Block(*c.Socket, 10, static_cast<int>(Long)); });
    Platform->WaitUntilWaiters(1, Long);
    Platform->Advance(Long - Margin);
    c.Peer->SendBuffer("abc");
    Platform->Advance(Margin);
    EXPECT_EQ(block.Result(), "abc|10060");
}

TEST_P(BoundaryContract, APeerThatGoesIsAnError) {
    TConnection c = Connection();
    c.Peer->SendBuffer("half");
    c.Peer.reset();
    EXPECT_EQ(Line(*c.Socket), "|10054");
    EXPECT_EQ(Block(*c.Socket, 10), "half|10054");
    for (int i = 0; i < 1000 && c.Socket->LastError() == 0; ++i) c.Socket->SendBuffer("more");
    EXPECT_EQ(c.Socket->LastError(), WSAECONNRESET);
    EXPECT_EQ(c.Socket->LastErrorDesc(), "Connection reset by peer");
    c.Socket->CloseSocket();
    EXPECT_EQ(c.Socket->LastErrorDesc(), "");
    EXPECT_EQ(Line(*c.Socket), "|10038");
}

TEST_P(BoundaryContract, SendingWaitsForThePeerAndGivesUpOnOneThatSleeps) {
    std::string bytes(16 << 20, 'x');
    for (std::size_t i = 0; i < bytes.size(); i += 1000) bytes[i] = static_cast<char>('a' + i / 1000 % 26);
    const auto send = [&](TConnection& c) { return c.Socket->SendBuffer(bytes), c.Socket->LastError(); };
    {
        TConnection c = Connection();
        TBackground<int> sender(Kernel, [&] { return send(c); });
        EXPECT_TRUE(Block(*c.Peer, bytes.size()) == bytes + "|0");
        EXPECT_EQ(sender.Result(), 0);
    }
    // A peer that has never read has no more room than systems give at first.
    TConnection c = Connection();
    TBackground<int> sender(Kernel, [&] { return send(c); });
    Platform->WaitUntilWaiters(1, 0);
    Platform->Advance(Long);
    EXPECT_EQ(sender.Result(), WSAETIMEDOUT);
}

TEST_P(BoundaryContract, AnInterruptEndsEveryWaitForGood) {
    std::uint16_t port = 0;
    const auto listener = Listener(port);
    TConnection line = Connection(), block = Connection();
    const struct {
        TTCPBlockSocket& Socket;
        std::function<void()> Wait;
    } rows[] = {{*listener, [&] { listener->CanRead(Plenty); }},
                {*line.Socket, [&] { Line(*line.Socket); }},
                {*block.Socket, [&] { Block(*block.Socket, 10); }}};
    for (const auto& row : rows) {
        TBackground<int> wait(Kernel, [&] { return row.Wait(), row.Socket.LastError(); });
        Platform->WaitUntilWaiters(1, 0);
        row.Socket.Interrupt();
        EXPECT_EQ(wait.Result(), WSAECONNRESET);
        EXPECT_FALSE(row.Socket.CanRead(Plenty));
        EXPECT_EQ(row.Socket.LastError(), WSAECONNRESET);
    }
    EXPECT_EQ(Block(*line.Peer, 1), "|10054");
    listener->CloseSocket();
    EXPECT_EQ(Platform->Connect(port), INVALID_SOCKET);

    const auto early = Sockets.CreateTCPBlockSocket();
    early->CreateSocket();
    early->Interrupt();
    early->Listen();
    EXPECT_EQ(early->LastError(), WSAECONNRESET);
    EXPECT_FALSE(early->CanRead(Plenty));
}

TEST_P(BoundaryContract, AnInterruptMayMeetAClosingSocket) {
    for (int i = 0; i < 100; ++i) {
        TConnection c = Connection();
        TBackground<int> closer(Kernel, [&] { return c.Socket->CloseSocket(), 0; });
        c.Socket->Interrupt();
    }
}

TEST_P(BoundaryContract, APortIsBoundWhileSomebodyListens) {
    std::uint16_t port = 0;
    auto listener = Listener(port);
    EXPECT_TRUE(Sockets.IsPortBound(port));
    EXPECT_EQ(listener->Accept(), INVALID_SOCKET);
    EXPECT_EQ(listener->LastError(), 10035);

    const auto second = Sockets.CreateTCPBlockSocket();
    second->CreateSocket();
    second->SetLinger(true, 10000);
    EXPECT_EQ(second->LastError(), 0);
    second->Bind("0.0.0.0", std::to_string(port));
    EXPECT_EQ(second->LastError(), 10048);
    second->SetRaiseExcept(true);
    try {
        second->Bind("0.0.0.0", std::to_string(port));
        ADD_FAILURE() << "nothing was raised";
    } catch (const Exception& error) {
        EXPECT_EQ(error.Message(), "Address already in use");
    }
    for (const char* bad : {"", "x", "-1", "65536"}) EXPECT_THROW(second->Bind("0.0.0.0", bad), Exception);
    listener.reset();
    EXPECT_FALSE(Sockets.IsPortBound(port));
}

}  // namespace rux::test
