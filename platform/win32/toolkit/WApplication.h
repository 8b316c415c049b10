// The application as far as the window system alone knows it.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>

#include "platform/toolkit/Forms.h"

namespace rux {

/// An application without a toolkit that could be asked: a window through which its messages can be met, the
/// messages themselves, and a box for errors. Made by the thread that loads the library; used on the
/// user-interface thread where nothing else is said.
class WApplication final : public TObject, public TApplication {
 public:
    WApplication(const TClass& aClass, std::uint64_t refNumber);

    // TObject
    const TClass& ClassType() const override { return FClass; }
    void* Facet(TFacetId id) override;
    std::uint64_t RefNumber() const override { return FRefNumber; }
    bool GetProp(TName name, TPropValue& value) override;

    // TApplication
    /// The toolkit's hidden window, by its class; in a program that has none, the window of this process that
    /// lies on top among those without an owner when the library is loaded. 0 for a process without windows.
    HWnd Handle() override { return FHandle; }
    void ProcessMessages() override;
    TObject* MainForm() override { return nullptr; }
    /// True once the window is gone, or the end of the messages was seen. Any thread.
    bool Terminated() override;

    /// The thread that owns the window. Any thread.
    std::uintptr_t ThreadId() const { return FThread; }
    /// The application's own report of an error: a message box with its title, all windows of the thread
    /// disabled meanwhile. Off the user-interface thread, where no box may come up, a debug text.
    void ReportError(const std::exception& error);

 private:
    const TClass& FClass;
    const std::uint64_t FRefNumber;
    const HWnd FHandle;
    const std::uintptr_t FThread;
    std::atomic<bool> FQuitSeen{false};
};

}  // namespace rux
