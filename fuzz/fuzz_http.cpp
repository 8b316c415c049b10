// The HTTP reader: any bytes, in pieces of any size. Each answer it gives must belong to a request it
// understood, and it must come to an end.
#include <cstdint>
#include <cstring>

#include "Engine/Core/RUXLimits.h"
#include "Engine/Host/RUXHttpConnection.h"
#include "fuzz/FuzzEngine.h"
#include "platform/SocketService.h"

namespace rux::fuzz {

/// A peer that has sent `bytes` and will send no more.
class TBytesSocket final : public TTCPBlockSocket {
 public:
    explicit TBytesSocket(std::string_view bytes) : FRest(bytes) {}
    std::string Sent;

    void SetRaiseExcept(bool) override {}
    void CreateSocket() override {}
    void SetLinger(bool, int) override {}
    void Bind(const std::string&, const std::string&) override {}
    void Listen() override {}
    bool CanRead(int) override { return !FRest.empty(); }
    TSocketHandle Accept() override { return INVALID_SOCKET; }
    void SetSocket(TSocketHandle) override {}
    std::string RecvString(int, std::size_t limit) override {
        const std::size_t end = FRest.find("\r\n");
        FLastError = end == FRest.npos ? WSAECONNRESET : end > limit ? WSAEMSGSIZE : 0;
        if (FLastError) return {};
        std::string line(FRest.substr(0, end));
        FRest.remove_prefix(end + 2);
        return line;
    }
    std::size_t RecvBufferEx(char* buffer, std::size_t length, int) override {
        Demand(length <= HttpBodyPiece);
        const std::size_t count = std::min(length, FRest.size());
        std::memcpy(buffer, FRest.data(), count);
        FRest.remove_prefix(count);
        FLastError = count == length ? 0 : WSAECONNRESET;
        return count;
    }
    void SendBuffer(std::string_view data) override { Sent += data; }
    void CloseSocket() override {}
    int LastError() const override { return FLastError; }
    std::string LastErrorDesc() const override { return {}; }
    void Interrupt() override {}

 private:
    std::string_view FRest;
    int FLastError = 0;
};

}  // namespace rux::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace rux;
    using namespace rux::fuzz;
    FuzzEngine();
    TBytesSocket socket({reinterpret_cast<const char*>(data), size});
    std::size_t handled = 0;
    const THttpHandler handler = [&](const std::string& method, const std::string& uri) {
        Demand(!method.empty() && !uri.empty());
        Demand(method.find_first_of(" \r\n") == method.npos || method.find("\r\n") == method.npos);
        ++handled;
        return THttpAnswer{211, {"A:b"}, "body"};
    };
    THttpConnection(socket, handler).Serve();
    std::size_t answers = 0;
    for (std::size_t at = socket.Sent.find(" 211\r\n"); at != std::string::npos;
         at = socket.Sent.find(" 211\r\n", at + 1))
        ++answers;
    Demand(answers >= handled);
    return 0;
}
