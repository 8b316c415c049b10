#include "platform/posix/PosixKernel.h"

#include <fcntl.h>
#include <sched.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <string_view>

#include "platform/posix/FileContents.h"
#include "platform/posix/PosixEvent.h"
#include "platform/posix/SystemErrors.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {
namespace {

/// Place of the data pages (data and stack, written or not) in the line of page counts.
constexpr int DataField = 5;

std::optional<std::uint64_t> FieldOf(std::string_view line, int field) {
    for (; field > 0; --field) {
        const std::size_t blank = line.find(' ');
        if (blank == line.npos) return std::nullopt;
        line.remove_prefix(blank + 1);
    }
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), value);
    return error == std::errc() ? std::optional(value) : std::nullopt;
}

void WriteError(const std::string& text) {
    WriteAll(STDERR_FILENO, AnsiToUtf8(text) + "\n");
}

}  // namespace

TPosixKernel::TPosixKernel(TWaitClock& clock, TKernelFacts facts)
    : FClock(clock),
      FFacts(std::move(facts)),
      FProcessId(static_cast<std::uint32_t>(::getpid())),
      FThreads(clock, FFacts.ThreadStackSize),
      FObjects(FFacts.ObjectFolder),
      FMemoryFigures(::open("/proc/self/statm", O_RDONLY | O_CLOEXEC)) {}

std::unique_ptr<TEvent> TPosixKernel::CreateEventA() {
    return std::make_unique<TPosixEvent>(FClock);
}

std::unique_ptr<TThreadHandle> TPosixKernel::StartThread(std::function<void()> body) {
    return FThreads.Start(std::move(body));
}

void TPosixKernel::Sleep(std::uint32_t milliseconds) {
    if (milliseconds == 0) {
        ::sched_yield();
        return;
    }
    const auto point = std::make_shared<TWaitPoint>();
    std::unique_lock lock(point->Lock);
    const std::uint64_t deadline = FClock.DeadlineAfter(milliseconds);
    while (FClock.Wait(*point, lock, deadline)) {
    }
}

std::uint32_t TPosixKernel::GetCurrentProcessId() {
    return FProcessId;
}

std::uintptr_t TPosixKernel::GetCurrentThreadId() {
    thread_local const auto id = static_cast<std::uintptr_t>(::gettid());
    return id;
}

std::uint32_t TPosixKernel::GetLastError() {
    return LastSystemError();
}

bool TPosixKernel::HasModule(const std::string& name) {
    return std::any_of(FFacts.Modules.begin(), FFacts.Modules.end(),
                       [&](const std::string& module) { return SameText(module, name); });
}

std::optional<std::uint64_t> TPosixKernel::GetPagefileUsage() {
    char line[128];
    const ssize_t length = Retry([&] { return ::pread(FMemoryFigures.Get(), line, sizeof line, 0); });
    if (length <= 0) return std::nullopt;
    const auto pages = FieldOf({line, static_cast<std::size_t>(length)}, DataField);
    if (!pages) return std::nullopt;
    return *pages * static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

void TPosixKernel::OutputDebugStringA(const std::string& text) {
    if (FFacts.DebugSink) FFacts.DebugSink(text);
    if (FFacts.DebugToStandardError) WriteError(text);
}

void TPosixKernel::MessageBoxA(const std::string& text, const std::string& title) {
    WriteError(title + ": " + text);
}

void TPosixKernel::ExitProcess(unsigned code) {
    ::_exit(static_cast<int>(code));
}

}  // namespace rux
