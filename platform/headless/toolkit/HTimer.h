// Timers.
#pragma once

#include "platform/headless/toolkit/HComponent.h"

namespace rux {

/// Calls OnTimer from the message loop. Runs only while there is code to call.
class HTimer : public HComponent {
 public:
    using HComponent::HComponent;
    bool Enabled() const { return FEnabled; }
    void SetEnabled(bool value);
    int Interval() const { return FInterval; }
    void SetInterval(int value);
    void Loaded() override;

 protected:
    void Detach() override;

 private:
    void Restart();
    bool FEnabled = true;
    int FInterval = 1000;
    unsigned FTimer = 0;
};

}  // namespace rux
