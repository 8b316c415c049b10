// How a test drives a program past the agent: lines over a connection, each answered with one line.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace rux {

class TControlLine {
 public:
    /// Connects to that port of this machine, where the test listens. Raises std::runtime_error.
    explicit TControlLine(std::uint16_t port);
    ~TControlLine();
    TControlLine(const TControlLine&) = delete;
    TControlLine& operator=(const TControlLine&) = delete;

    /// Returns when the test has closed the connection. What `answer` raises becomes the answer.
    void Serve(const std::function<std::string(const std::string& line)>& answer);

 private:
    bool ReadLine(std::string& line);

    std::uintptr_t FSocket;
    std::string FBuffer;
};

/// A line's first word; it and the blank behind it are taken off the line.
std::string TakeWord(std::string& line);

}  // namespace rux
