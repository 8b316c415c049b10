#include "platform/headless/toolkit/HTimer.h"

#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

void HTimer::SetEnabled(bool value) {
    FEnabled = value;
    Restart();
}

void HTimer::SetInterval(int value) {
    FInterval = value;
    Restart();
}

void HTimer::Loaded() {
    HComponent::Loaded();
    Restart();
}

void HTimer::Detach() {
    if (FTimer) Kit().Desktop().KillTimer(FTimer);
    FTimer = 0;
}

void HTimer::Restart() {
    Detach();
    if (!FEnabled || FInterval <= 0 || Loading() || !HasCode(Kit().Names().OnTimer)) return;
    FTimer = Kit().Desktop().SetTimer(static_cast<std::uint32_t>(FInterval), [this] {
        try {
            Fire(Kit().Names().OnTimer);
        } catch (const std::exception& error) {
            Kit().App().HandleException(error);
        }
    });
}

}  // namespace rux
