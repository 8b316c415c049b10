#include "Engine/Host/RUXHttpConnection.h"

#include <algorithm>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "platform/ClockService.h"
#include "platform/SocketService.h"
#include "rtl/Dates.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

bool BeginsWith(const std::string& upperLine, std::string_view name) {
    return upperLine.starts_with(name);
}

/// The number behind the first blank; a value that follows its colon directly is not seen, as ever.
long long ContentLength(const std::string& line) {
    const std::int32_t size = StrToIntDef(SeparateRight(line, ' '), -1);
    return size <= HttpBodyLimit ? size : -1;
}

}  // namespace

void THttpConnection::Serve() {
    while (ServeOne()) {
    }
}

bool THttpConnection::ServeOne() {
    THead head;
    if (!ReadHead(head) || !DropBody(head.Size)) return false;
    return Send(head, FHandler(head.Method, head.Uri)) && !head.Close;
}

bool THttpConnection::ReadLine(std::string& line) {
    line = FSocket.RecvString(HttpReceiveTimeout, FHeadRoom);
    FHeadRoom -= std::min(FHeadRoom, line.size() + 2);
    return FSocket.LastError() == 0;
}

bool THttpConnection::ReadHead(THead& head) {
    FHeadRoom = HttpHeadLimit;
    std::string line;
    if (!ReadLine(line) || line.empty()) return false;
    head.Method = Fetch(line, ' ');
    if (line.empty() || head.Method.empty()) return false;
    head.Uri = Fetch(line, ' ');
    if (head.Uri.empty()) return false;
    head.Protocol = Fetch(line, ' ');
    if (head.Protocol.empty()) return true;
    if (!head.Protocol.starts_with("HTTP/")) return false;
    head.Close = !head.Protocol.starts_with("HTTP/1.1");
    return ReadHeaders(head);
}

bool THttpConnection::ReadHeaders(THead& head) {
    std::string line;
    while (ReadLine(line)) {
        if (line.empty()) return true;
        const std::string upper = UpperCase(line);
        if (BeginsWith(upper, "CONTENT-LENGTH:")) head.Size = ContentLength(line);
        if (BeginsWith(upper, "CONNECTION: CLOSE")) head.Close = true;
    }
    return false;
}

bool THttpConnection::DropBody(long long size) {
    if (size <= 0) return true;
    std::string piece(static_cast<std::size_t>(std::min<long long>(size, HttpBodyPiece)), '\0');
    while (size > 0) {
        const auto wanted = static_cast<std::size_t>(std::min<long long>(size, HttpBodyPiece));
        size -= static_cast<long long>(FSocket.RecvBufferEx(piece.data(), wanted, HttpReceiveTimeout));
        if (FSocket.LastError() != 0) return false;
    }
    return true;
}

bool THttpConnection::Send(const THead& head, const THttpAnswer& answer) {
    // The status line has no reason phrase; a request without a protocol gets a bare one and no headers.
    std::string bytes = head.Protocol + " " + IntToStr(answer.Status) + "\r\n";
    if (!head.Protocol.empty()) {
        for (const std::string& header : answer.Headers) bytes += header + "\r\n";
        bytes += "Content-length: " + IntToStr(static_cast<std::int64_t>(answer.Body.size())) + "\r\n";
        if (head.Close) bytes += "Connection: close\r\n";
        TClockService& clock = Platform().Clock;
        bytes += "Date: " + Rfc822DateTime(clock.Now(), clock.BiasMinutes()) + "\r\n";
        bytes += "Server: RUX HTTP Server\r\n\r\n";
    }
    bytes += answer.Body;
    FSocket.SendBuffer(bytes);
    return FSocket.LastError() == 0;
}

}  // namespace rux
