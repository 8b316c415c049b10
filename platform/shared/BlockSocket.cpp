#include "platform/shared/BlockSocket.h"

#include <algorithm>

#include "platform/shared/ServiceLimits.h"
#include "platform/shared/SocketErrors.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"

namespace rux {
namespace {

constexpr std::string_view LineEnd = "\r\n";

std::uint32_t NotNegative(int milliseconds) {
    return static_cast<std::uint32_t>(std::max(milliseconds, 0));
}

/// Bytes that a line without an end has at least: a CR at the very end may belong to its end.
std::size_t UnfinishedLength(std::string_view data) {
    return data.ends_with(LineEnd.front()) ? data.size() - 1 : data.size();
}

}  // namespace

bool TBlockSocket::Finish(int error) {
    FLastError = error;
    if (error != 0 && FRaiseExcept) throw Exception(LastErrorDesc());
    return error == 0;
}

std::string TBlockSocket::LastErrorDesc() const {
    return SocketErrorText(FLastError);
}

int TBlockSocket::Usable() const {
    if (FInterrupted) return WSAECONNRESET;
    return IsOpen() ? 0 : WSAENOTSOCK;
}

std::uint64_t TBlockSocket::DeadlineAfter(int milliseconds) const {
    return FClock.TickCount() + NotNegative(milliseconds);
}

// --------------------------------------------------------------------------------------------- opening

void TBlockSocket::SetLinger(bool enabled, int milliseconds) {
    int error = Usable();
    if (!error) error = LingerOnClose(enabled, static_cast<int>((NotNegative(milliseconds) + 999) / 1000));
    Finish(error);
}

void TBlockSocket::Bind(const std::string& address, const std::string& port) {
    const int number = StrToIntDef(port, -1);
    int error = Usable();
    if (!error && (number < 0 || number > 0xFFFF)) error = WSAEINVAL;
    if (!error) error = BindTo(address, static_cast<std::uint16_t>(number));
    Finish(error);
}

void TBlockSocket::Listen() {
    int error = Usable();
    if (!error) error = StartListening();
    Finish(error);
}

// --------------------------------------------------------------------------------------------- receiving

bool TBlockSocket::CanRead(int milliseconds) {
    if (!FBuffer.Empty()) return Finish(Usable());
    int error = Usable();
    if (!error) error = Await(TReady::ToRead, DeadlineAfter(milliseconds));
    return Finish(error == WSAETIMEDOUT ? 0 : error) && error == 0;
}

int TBlockSocket::ReceiveSome(std::uint64_t deadline) {
    char chunk[SocketChunk];
    while (true) {
        if (const int error = Await(TReady::ToRead, deadline)) return error;
        const TTransfer got = Receive(chunk, sizeof chunk);
        if (got.Error == WSAEWOULDBLOCK) continue;
        if (got.Error) return got.Error;
        if (got.Count == 0) return WSAECONNRESET;
        FBuffer.Append({chunk, got.Count});
        return 0;
    }
}

int TBlockSocket::ReceiveLine(std::string& line, int milliseconds, std::size_t limit) {
    if (const int error = Usable()) return error;
    std::size_t searchFrom = 0;
    while (true) {
        const std::string_view data = FBuffer.Data();
        const std::size_t end = data.find(LineEnd, searchFrom);
        const bool found = end != data.npos;
        if ((found ? end : UnfinishedLength(data)) > limit) return WSAEMSGSIZE;
        if (found) {
            line.assign(data.substr(0, end));
            FBuffer.Consume(end + LineEnd.size());
            return 0;
        }
        searchFrom = UnfinishedLength(data);
        if (const int error = ReceiveSome(DeadlineAfter(milliseconds))) return error;
    }
}

std::string TBlockSocket::RecvString(int milliseconds, std::size_t limit) {
    std::string line;
    Finish(ReceiveLine(line, milliseconds, limit));
    return line;
}

int TBlockSocket::ReceiveInto(char* buffer, std::size_t length, std::uint64_t deadline, std::size_t& count) {
    if (const int error = Usable()) return error;
    count = FBuffer.Take(buffer, length);
    while (count < length) {
        const TTransfer got = Receive(buffer + count, length - count);
        if (got.Error == WSAEWOULDBLOCK) {
            if (const int error = Await(TReady::ToRead, deadline)) return error;
            continue;
        }
        if (got.Error) return got.Error;
        if (got.Count == 0) return WSAECONNRESET;
        count += got.Count;
        // A peer that never pauses must not outrun the time of the call.
        if (count < length && FClock.TickCount() >= deadline) return WSAETIMEDOUT;
    }
    return 0;
}

std::size_t TBlockSocket::RecvBufferEx(char* buffer, std::size_t length, int milliseconds) {
    std::size_t count = 0;
    Finish(ReceiveInto(buffer, length, DeadlineAfter(milliseconds), count));
    return count;
}

// --------------------------------------------------------------------------------------------- sending

int TBlockSocket::SendAll(std::string_view data) {
    if (const int error = Usable()) return error;
    while (!data.empty()) {
        const TTransfer sent = Send(data);
        data.remove_prefix(sent.Count);
        if (!sent.Error) continue;
        if (sent.Error != WSAEWOULDBLOCK) return sent.Error;
        if (const int error = Await(TReady::ToWrite, FClock.TickCount() + FSendStall)) return error;
    }
    return 0;
}

void TBlockSocket::SendBuffer(std::string_view data) {
    Finish(SendAll(data));
}

}  // namespace rux
