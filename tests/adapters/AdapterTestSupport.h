// A desktop with controls of all kinds, driven as requests drive it: by names, through the tables of
// interfaces.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "Engine/Adapters/RUXTestAdapters.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "tests/rtl/TestCodePage.h"

namespace rux::test {

/// Sleeping costs no time and is seen in the journal. Threads have a stack of 1 MB.
class TWatchedKernel final : public TPosixKernel {
 public:
    explicit TWatchedKernel(TWaitClock& clock);
    ~TWatchedKernel() override { WaitForAllThreads(); }
    std::function<void(std::uint32_t)> OnSleep;
    void Sleep(std::uint32_t milliseconds) override { OnSleep(milliseconds); }
    /// The log lies beside it.
    std::string ModuleName;
    std::string GetModuleName() override { return ModuleName; }
};

/// What a script of calls answers, and the journal that it leaves.
struct TRow {
    const char* Script;
    const char* Answers;
    const char* Journal;
};
inline void PrintTo(const TRow& row, std::ostream* out) {
    *out << row.Script;
}

class TAdapterTest : public testing::Test {
 protected:
    /// Loads these forms, one of them named F, else those that the general rows are about. In a form file X
    /// is a method without code, and Die ends its sender.
    explicit TAdapterTest(std::initializer_list<std::string_view> forms = {});
    ~TAdapterTest() override;

    /// A form by its name, or a component of form F by its own; nil if there is none.
    HComponent* Find(std::string_view name);
    TIntf<IRUXAdapter> AdapterOf(std::string_view name);
    /// "Edit1.SetText(x); pump; Edit1.GetText" gives what each call answers or raises: "; ; x".
    std::string Run(std::string_view script);
    /// The desktop's journal since the last look.
    std::string Journal();
    void Play(const TRow& row) {
        EXPECT_EQ(Run(row.Script), row.Answers) << row.Script;
        EXPECT_EQ(Journal(), row.Journal) << row.Script;
    }

    TManualClock Clock;
    TWatchedKernel Kernel{Clock};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles Files;
    THeadlessPlatform Desktop{Kernel, Clock, Sockets, Files};
    TEngineState Engine{Desktop.Platform()};

 private:
    std::string Call(std::string_view call);
    std::vector<std::string> FLines;
};

/// Class and message of what `code` raises; "nothing" if it raises nothing.
inline std::string ErrorOf(const std::function<void()>& code) {
    return AnsiToUtf8(Raised(code));
}

}  // namespace rux::test
