#include "platform/headless/windows/HJournal.h"

namespace rux {

void HJournal::SetSink(unsigned mask, TSink sink) {
    const std::lock_guard lock(FLock);
    FMask = sink ? mask : 0;
    FSink = std::move(sink);
}

void HJournal::Add(HEntry kind, std::string_view line) {
    if (!Wants(kind)) return;
    const std::lock_guard lock(FLock);
    if (FSink) FSink(kind, line);
}

}  // namespace rux
