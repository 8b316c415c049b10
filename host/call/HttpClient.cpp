#include "host/call/HttpClient.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace rux {

namespace {

/// Beyond letters and digits: what stands in a request line as it is.
constexpr std::string_view Plain = "-._~$(),?=/:*!'";
/// More than any answer has: a server that sends it is none of ours.
constexpr std::size_t LineLimit = std::size_t{1} << 20;

/// The value of a header line of that name, which the server writes with or without a blank behind its colon.
bool HeaderValue(const std::string& line, std::string_view name, std::string& value) {
    if (line.size() < name.size() || strncasecmp(line.c_str(), name.data(), name.size()) != 0) return false;
    value = line.substr(name.size());
    if (!value.empty() && value.front() == ' ') value.erase(0, 1);
    return true;
}

}  // namespace

std::string EncodeRequest(std::string_view text) {
    constexpr char digits[] = "0123456789ABCDEF";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (std::isalnum(byte) || Plain.find(c) != Plain.npos) {
            result += c;
        } else {
            result += '%';
            result += digits[byte >> 4];
            result += digits[byte & 15];
        }
    }
    return result;
}

THttpClient::~THttpClient() {
    Close();
}

void THttpClient::Close() {
    if (FSocket >= 0) close(FSocket);
    FSocket = -1;
    FBuffer.clear();
}

void THttpClient::Connect() {
    sockaddr_in to{};
    to.sin_family = AF_INET;
    to.sin_port = htons(FPort);
    if (inet_pton(AF_INET, FAddress.c_str(), &to.sin_addr) != 1)
        throw THttpClientError("found \"" + FAddress +
                               "\" as the address, expected an IPv4 address such as 127.0.0.1");
    FSocket = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    setsockopt(FSocket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    const timeval timeout{static_cast<time_t>(FTimeout), 0};
    setsockopt(FSocket, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
    if (FSocket >= 0 && connect(FSocket, reinterpret_cast<sockaddr*>(&to), sizeof to) == 0) return;
    const std::string why = std::strerror(errno);
    Close();
    throw THttpClientError("nothing answers on " + FAddress + ":" + std::to_string(FPort) + " (" + why + ")");
}

void THttpClient::Send(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(FSocket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) throw THttpClientError("the connection broke while sending");
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
}

bool THttpClient::Fill() {
    char piece[16384];
    const ssize_t got = recv(FSocket, piece, sizeof piece, 0);
    if (got < 0 && errno == EAGAIN)
        throw THttpClientError("no answer within " + std::to_string(FTimeout) + " seconds");
    if (got > 0) FBuffer.append(piece, static_cast<std::size_t>(got));
    return got > 0;
}

std::string THttpClient::ReadLine() {
    std::size_t end;
    while ((end = FBuffer.find("\r\n")) == FBuffer.npos)
        if (FBuffer.size() > LineLimit || !Fill()) throw THttpClientError("the server ended the connection");
    std::string line = FBuffer.substr(0, end);
    FBuffer.erase(0, end + 2);
    return line;
}

std::string THttpClient::ReadBody(std::size_t length) {
    while (FBuffer.size() < length)
        if (!Fill()) throw THttpClientError("the server ended the connection in the middle of an answer");
    std::string body = FBuffer.substr(0, length);
    FBuffer.erase(0, length);
    return body;
}

THttpReply THttpClient::Get(std::string_view requestText) {
    if (FSocket < 0) Connect();
    Send("GET /" + EncodeRequest(requestText) + " HTTP/1.1\r\nHost: " + FAddress + ":" +
         std::to_string(FPort) + "\r\n\r\n");
    THttpReply reply;
    const std::string status = ReadLine();
    const std::size_t blank = status.find(' ');
    reply.Status = blank == status.npos ? 0 : std::atoi(status.c_str() + blank);
    if (reply.Status == 0) throw THttpClientError("this is no answer: " + status);
    std::size_t length = 0;
    bool ends = false;
    for (std::string line = ReadLine(); !line.empty(); line = ReadLine()) {
        std::string value;
        if (HeaderValue(line, "Content-length:", value)) length = std::strtoull(value.c_str(), nullptr, 10);
        if (HeaderValue(line, "Connection:", value)) ends = value == "close";
        HeaderValue(line, "ReturnCodeComment:", reply.Comment);
        HeaderValue(line, "RunTime:", reply.RunTime);
    }
    reply.Body = ReadBody(length);
    if (ends) Close();
    return reply;
}

}  // namespace rux
