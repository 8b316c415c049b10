// A TCP client that sends and reads bytes as they are.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace rux::test {

class TRawClient {
 public:
    explicit TRawClient(std::uint16_t port) : FSocket(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in to{};
        to.sin_family = AF_INET;
        to.sin_port = htons(port);
        to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        if (connect(FSocket, reinterpret_cast<sockaddr*>(&to), sizeof to) != 0)
            throw std::runtime_error("cannot connect");
    }
    TRawClient(const TRawClient&) = delete;
    TRawClient& operator=(const TRawClient&) = delete;
    ~TRawClient() { close(FSocket); }

    /// False once the server has ended the connection.
    bool Send(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t sent = send(FSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
            if (sent <= 0) return false;
            bytes.remove_prefix(static_cast<std::size_t>(sent));
        }
        return true;
    }
    void EndSending() { shutdown(FSocket, SHUT_WR); }
    /// Everything up to and including `end`, or up to the end of the connection.
    std::string ReadUntil(std::string_view end) {
        while (FBuffer.find(end) == FBuffer.npos && Fill()) {
        }
        const std::size_t found = FBuffer.find(end);
        const std::size_t length = found == FBuffer.npos ? FBuffer.size() : found + end.size();
        const std::string result = FBuffer.substr(0, length);
        FBuffer.erase(0, length);
        return result;
    }
    std::string ReadAll() {
        while (Fill()) {
        }
        return std::exchange(FBuffer, std::string());
    }

 private:
    bool Fill() {
        char piece[65536];
        const ssize_t got = recv(FSocket, piece, sizeof piece, 0);
        if (got > 0) FBuffer.append(piece, static_cast<std::size_t>(got));
        return got > 0;
    }
    int FSocket;
    std::string FBuffer;
};

}  // namespace rux::test
