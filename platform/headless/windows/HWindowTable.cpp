#include "platform/headless/windows/HWindowTable.h"

#include "platform/headless/HLimits.h"

namespace rux {

HWindow* HWindowTable::Add() {
    const std::lock_guard lock(FLock);
    const bool full = FSlots.size() >= HWindowLimit;
    if (full && FFree.empty()) return nullptr;
    std::size_t slot = FSlots.size();
    if (full || FFree.size() > HWindowSlotsAtRest) {
        slot = FFree.front();
        FFree.pop_front();
    } else {
        FSlots.emplace_back();
    }
    TSlot& place = FSlots[slot];
    place.Generation = (place.Generation + 1) & 0x7FF;
    place.Window = std::make_unique<HWindow>();
    // Even numbers below 2^32, like the window system's own.
    place.Window->Handle = (static_cast<HWnd>(place.Generation) << (SlotBits + 1)) | (slot << 1);
    return place.Window.get();
}

void HWindowTable::Remove(HWnd handle) {
    const std::lock_guard lock(FLock);
    const std::size_t slot = SlotOf(handle);
    if (slot >= FSlots.size() || !FSlots[slot].Window || FSlots[slot].Window->Handle != handle) return;
    FSlots[slot].Window.reset();
    FFree.push_back(slot);
}

bool HWindowTable::Exists(HWnd handle) const {
    const std::lock_guard lock(FLock);
    return Find(handle) != nullptr;
}

}  // namespace rux
