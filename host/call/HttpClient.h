// A small HTTP client for one server on this machine: one connection, kept alive.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace rux {

/// The server cannot be reached, or does not speak as it should.
class THttpClientError : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

struct THttpReply {
    int Status = 0;
    std::string Comment;
    std::string RunTime;
    std::string Body;
};

class THttpClient {
 public:
    THttpClient(std::string address, std::uint16_t port) : FAddress(std::move(address)), FPort(port) {}
    THttpClient(const THttpClient&) = delete;
    THttpClient& operator=(const THttpClient&) = delete;
    ~THttpClient();

    /// Sends a request text (UTF-8) and waits for the answer, connecting first when need be. Raises
    /// THttpClientError.
    THttpReply Get(std::string_view requestText);
    /// From the next connection on, an answer that does not come within that time raises. 0: waits for ever.
    void SetTimeout(unsigned seconds) { FTimeout = seconds; }

 private:
    void Connect();
    void Close();
    void Send(std::string_view bytes);
    std::string ReadLine();
    std::string ReadBody(std::size_t length);
    bool Fill();

    std::string FAddress;
    std::uint16_t FPort;
    unsigned FTimeout = 0;
    int FSocket = -1;
    std::string FBuffer;
};

/// Percent-encodes everything that a request line cannot carry, or that would not come back as it was.
std::string EncodeRequest(std::string_view text);

}  // namespace rux
