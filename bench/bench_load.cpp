// The outside: requests a second over one keep-alive connection to a host, against a bare loopback exchange
// of the same bytes with one hand-over to a second thread and back. Both in turn, so that a machine whose
// speed drifts drifts for both.
#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <mutex>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "host/call/HttpClient.h"

namespace rux::bench {
namespace {

int Check(int result, const char* what) {
    if (result < 0) throw std::runtime_error(std::string(what) + " failed");
    return result;
}

void NoDelay(int socket) {
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

sockaddr_in Loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

void SendAll(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto sent =
            Check(static_cast<int>(send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL)), "send");
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

/// Reads until `count` bytes are there.
std::string ReadCount(int socket, std::size_t count) {
    std::string bytes(count, '\0');
    for (std::size_t got = 0; got < count;) {
        const int more = Check(static_cast<int>(recv(socket, bytes.data() + got, count - got, 0)), "recv");
        if (more == 0) throw std::runtime_error("the server ended the connection");
        got += static_cast<std::size_t>(more);
    }
    return bytes;
}

/// One box for a task between two threads, as plain as can be.
class THandOver {
 public:
    void Give() {
        const std::lock_guard lock(FLock);
        FFull = true;
        FChanged.notify_one();
    }
    void Take() {
        std::unique_lock lock(FLock);
        FChanged.wait(lock, [&] { return FFull; });
        FFull = false;
    }

 private:
    std::mutex FLock;
    std::condition_variable FChanged;
    bool FFull = false;
};

/// Answers every request of `requestSize` bytes with `answer`, after a hand-over to a second thread and back.
class TBareServer {
 public:
    TBareServer(std::size_t requestSize, std::string answer)
        : FListener(Check(socket(AF_INET, SOCK_STREAM, 0), "socket")) {
        sockaddr_in address = Loopback(0);
        Check(bind(FListener, reinterpret_cast<sockaddr*>(&address), sizeof address), "bind");
        Check(listen(FListener, 4), "listen");
        socklen_t size = sizeof address;
        getsockname(FListener, reinterpret_cast<sockaddr*>(&address), &size);
        Port = ntohs(address.sin_port);
        std::thread([this] {
            while (true) {
                FThere.Take();
                FBack.Give();
            }
        }).detach();
        std::thread([this, requestSize, answer = std::move(answer)] {
            const int client = accept(FListener, nullptr, nullptr);
            NoDelay(client);
            try {
                while (true) {
                    ReadCount(client, requestSize);
                    FThere.Give();
                    FBack.Take();
                    SendAll(client, answer);
                }
            } catch (const std::exception&) {
                close(client);
            }
        }).detach();
    }
    std::uint16_t Port = 0;

 private:
    int FListener;
    THandOver FThere, FBack;
};

class TClient {
 public:
    explicit TClient(std::uint16_t port) : FSocket(Check(socket(AF_INET, SOCK_STREAM, 0), "socket")) {
        sockaddr_in to = Loopback(port);
        Check(connect(FSocket, reinterpret_cast<sockaddr*>(&to), sizeof to), "connect");
        NoDelay(FSocket);
    }
    ~TClient() { close(FSocket); }
    /// One exchange; answers must end with `end`.
    std::string Exchange(std::string_view request, std::string_view end) {
        SendAll(FSocket, request);
        std::string answer;
        char piece[4096];
        while (answer.size() < end.size() || !answer.ends_with(end)) {
            const int got = Check(static_cast<int>(recv(FSocket, piece, sizeof piece, 0)), "recv");
            if (got == 0) throw std::runtime_error("the server ended the connection");
            answer.append(piece, static_cast<std::size_t>(got));
        }
        return answer;
    }
    double PerSecond(std::string_view request, std::string_view end, int count) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < count; ++i) Exchange(request, end);
        return count / std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }

 private:
    int FSocket;
};

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

int Run(std::uint16_t port, const std::string& text, int rounds, int count) {
    const std::string request = "GET /" + EncodeRequest(text) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
    constexpr std::string_view end = "\r\n\r\nTrue";
    TClient host(port);
    const std::string answer = host.Exchange(request, end);
    // Nothing here may see this before everything else is done: the threads of the bare server never end.
    auto& bare = *new TBareServer(request.size(), answer);
    TClient plain(bare.Port);
    std::vector<double> ratios, hosts, plains;
    for (int i = 0; i <= rounds; ++i) {
        const double p = plain.PerSecond(request, end, count), h = host.PerSecond(request, end, count);
        if (i == 0) continue;  // warms up
        plains.push_back(p);
        hosts.push_back(h);
        ratios.push_back(h / p);
    }
    std::printf("requests a second: host %.0f, bare exchange %.0f (medians of %d rounds of %d)\n",
                Median(hosts), Median(plains), rounds, count);
    std::printf("ratio host / bare exchange: %.2f (least %.2f, most %.2f)\n", Median(ratios),
                *std::min_element(ratios.begin(), ratios.end()),
                *std::max_element(ratios.begin(), ratios.end()));
    return 0;
}

}  // namespace
}  // namespace rux::bench

int main(int argc, char** argv) {
    if (argc < 3) {
        std::cerr << "usage: bench_load PORT REQUEST [ROUNDS [COUNT]]\n";
        return 2;
    }
    try {
        const int rounds = argc > 3 ? std::atoi(argv[3]) : 9, count = argc > 4 ? std::atoi(argv[4]) : 5000;
        std::fflush(stdout);
        const int status =
            rux::bench::Run(static_cast<std::uint16_t>(std::atoi(argv[1])), argv[2], rounds, count);
        std::fflush(stdout);
        std::_Exit(status);  // the bare server's threads wait for ever
    } catch (const std::exception& error) {
        std::cerr << "bench_load: " << error.what() << '\n';
        return 2;
    }
}
