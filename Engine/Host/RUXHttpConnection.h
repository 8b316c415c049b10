// One connection: the hand-made HTTP that the engine speaks.
#pragma once

#include <functional>
#include <string>

#include "Engine/Host/RUXRoutes.h"

namespace rux {

class TTCPBlockSocket;

using THttpHandler = std::function<THttpAnswer(const std::string& method, const std::string& uri)>;

/// Serves requests of one connection until it ends: by the client, by an error, by a line that is no request,
/// or because the protocol asks for it. Answers nothing to what it does not understand. Everything that a
/// client sends is bounded; bodies are read and dropped.
class THttpConnection {
 public:
    THttpConnection(TTCPBlockSocket& socket, const THttpHandler& handler)
        : FSocket(socket), FHandler(handler) {}
    void Serve();

 private:
    struct THead {
        std::string Method, Uri, Protocol;
        /// Below 0 for no body.
        long long Size = -1;
        bool Close = false;
    };
    bool ServeOne();
    bool ReadHead(THead& head);
    bool ReadHeaders(THead& head);
    bool ReadLine(std::string& line);
    bool DropBody(long long size);
    bool Send(const THead& head, const THttpAnswer& answer);

    TTCPBlockSocket& FSocket;
    const THttpHandler& FHandler;
    /// Bytes that the head of the request at hand may still have.
    std::size_t FHeadRoom = 0;
};

}  // namespace rux
