#include "host/windows/common/ControlLine.h"

// clang-format off
#include <winsock2.h>
#include <windows.h>
// clang-format on

#include <exception>
#include <stdexcept>

namespace rux {

TControlLine::TControlLine(std::uint16_t port) {
    WSADATA data;
    WSAStartup(MAKEWORD(2, 2), &data);
    FSocket = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(port);
    to.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (connect(FSocket, reinterpret_cast<sockaddr*>(&to), sizeof to) != 0)
        throw std::runtime_error("nobody listens on the control port " + std::to_string(port));
}

TControlLine::~TControlLine() {
    closesocket(FSocket);
}

bool TControlLine::ReadLine(std::string& line) {
    std::size_t end;
    while ((end = FBuffer.find('\n')) == FBuffer.npos) {
        char piece[1024];
        const int got = recv(FSocket, piece, sizeof piece, 0);
        if (got <= 0) return false;
        FBuffer.append(piece, static_cast<std::size_t>(got));
    }
    line = FBuffer.substr(0, end);
    FBuffer.erase(0, end + 1);
    return true;
}

void TControlLine::Serve(const std::function<std::string(const std::string& line)>& answer) {
    for (std::string line; ReadLine(line);) {
        std::string text;
        try {
            text = answer(line);
        } catch (const std::exception& error) {
            text = std::string("failed: ") + error.what();
        }
        text += '\n';
        send(FSocket, text.data(), static_cast<int>(text.size()), 0);
    }
}

std::string TakeWord(std::string& line) {
    const std::size_t blank = line.find(' ');
    const std::string word = line.substr(0, blank);
    line.erase(0, blank == line.npos ? blank : blank + 1);
    return word;
}

}  // namespace rux
