// The windows that exist, by handle. A handle is not used again until a long row of others was.
#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/headless/windows/HWindow.h"

namespace rux {

/// The owner thread adds, removes and finds; Exists may be asked from any thread.
class HWindowTable {
 public:
    /// nil when too many windows are alive.
    HWindow* Add();
    void Remove(HWnd handle);
    HWindow* Find(HWnd handle) const {
        const std::size_t slot = SlotOf(handle);
        if (slot >= FSlots.size()) return nullptr;
        HWindow* window = FSlots[slot].Window.get();
        return window && window->Handle == handle ? window : nullptr;
    }
    bool Exists(HWnd handle) const;

 private:
    struct TSlot {
        std::unique_ptr<HWindow> Window;
        std::uint32_t Generation = 0;
    };
    static constexpr unsigned SlotBits = 20;
    static std::size_t SlotOf(HWnd handle) { return (handle >> 1) & ((1u << SlotBits) - 1); }

    mutable std::mutex FLock;
    std::vector<TSlot> FSlots{1};  // slot 0 is never given out, so no handle is 0
    std::deque<std::size_t> FFree;
};

}  // namespace rux
