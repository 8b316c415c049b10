// The toolkit of a process: the one that its executable attaches, else the window system stands in for it.
#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <memory>

#include "platform/shared/ClassTable.h"
#include "platform/win32/toolkit/WApplication.h"
#include "platform/win32/toolkit/WBridge.h"

namespace rux {

class TWin32Thunks;

/// With a table that the executable exports (see ToolkitTable.h) its live objects; without one no forms and
/// no objects behind windows: every window is one that the engine's virtual controls serve.
class WToolkit final : public TToolkit, public TScreen, public TMouse {
 public:
    /// Looks for the table. Errors at the borders of `thunks` become the application's own report.
    explicit WToolkit(TWin32Thunks& thunks);
    ~WToolkit() override;

    TObject& Application() override;
    TScreen& Screen() override { return *this; }
    TMouse& Mouse() override { return *this; }
    std::uintptr_t MainThreadId() override;
    TClassTable& Classes() override { return FClasses; }
    TObject* ObjectOfProp(std::uintptr_t value) override;
    std::uint64_t NewRefNumber() override { return FNextRef++; }

    /// Frees what is kept of live objects that are gone; answers how many are still known. User-interface
    /// thread, while no call of the engine is under way there. See WBridge::ForgetDead.
    std::size_t ForgetDead() { return FBridge ? FBridge->ForgetDead() : 0; }

    // TScreen
    TObject* ActiveForm() override;
    int CustomFormCount() override;
    TObject* CustomForms(int index) override;

    // TMouse
    TPoint CursorPos() override;
    void SetCursorPos(TPoint point) override;

 private:
    void ReportError(const std::exception& error);

    TWin32Thunks& FThunks;
    TNamedClasses FClasses;
    /// Above every address and window handle of a 32-bit process.
    std::atomic<std::uint64_t> FNextRef{std::uint64_t{1} << 32};
    WApplication FApplication;
    /// nil without a table.
    std::unique_ptr<WBridge> FBridge;
};

}  // namespace rux
