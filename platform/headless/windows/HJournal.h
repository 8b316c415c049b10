// The journal: what happened on the desktop, in order, one line each. A test states the exact sequence that
// an adapter produced; a person follows a script with it.
#pragma once

#include <atomic>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

namespace rux {

enum class HEntry : unsigned {
    Cursor = 1,   // "cursor 10,20"
    Key = 2,      // "key down 13"
    Sent = 4,     // "send Button1 WM_LBUTTONDOWN 0 5,6"
    Posted = 8,   // "post Form1 WM_CLOSE 0 0"
    Event = 16,   // "event Form1.Button1 OnClick Button1Click"
    Window = 32,  // "show TForm2 标题" and "close TForm2 标题"
    Box = 64,     // "box title: text"
};
inline constexpr unsigned HEntriesOfHost = 16 | 32 | 64;
inline constexpr unsigned HAllEntries = 127;

/// Safe from any thread. Without a sink nothing is kept and recording costs one test of a mask.
class HJournal {
 public:
    using TSink = std::function<void(HEntry, std::string_view line)>;
    /// `mask` is a sum of HEntry values. The sink runs under the journal's lock, on the recording thread.
    void SetSink(unsigned mask, TSink sink);
    bool Wants(HEntry kind) const { return (FMask & static_cast<unsigned>(kind)) != 0; }
    void Add(HEntry kind, std::string_view line);

 private:
    std::mutex FLock;
    std::atomic<unsigned> FMask{0};
    TSink FSink;
};

}  // namespace rux
