// Which request is answered by what.
#pragma once

#include <string>
#include <vector>

namespace rux {

/// An answer before it is put on the wire.
struct THttpAnswer {
    int Status = 0;
    /// In the order in which they go out; the transport's own headers follow them.
    std::vector<std::string> Headers;
    /// UTF-8.
    std::string Body;
};

/// Method and uri as they stood in the request line. Runs on a worker; may block for as long as a request
/// takes.
THttpAnswer ProcessHttpRequest(const std::string& method, const std::string& uri);

}  // namespace rux
