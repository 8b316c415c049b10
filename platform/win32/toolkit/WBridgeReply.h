// One call through the table: what it answers, and its error as an exception of ours.
#pragma once

#include <string>

#include "platform/win32/toolkit/ToolkitTable.h"
#include "rtl/Exceptions.h"

namespace rux {

/// An error that the application raised, under the name of the class that it has there.
class TApplicationError final : public Exception {
 public:
    TApplicationError(std::string className, std::string message)
        : Exception(std::move(message)), FClassName(std::move(className)) {}
    std::string_view ClassName() const noexcept override { return FClassName; }

 private:
    std::string FClassName;
};

/// For one call on one thread.
class WReply {
 public:
    WReply() : FSinks{this, &TakeText, &TakeError} {}
    WReply(const WReply&) = delete;
    WReply& operator=(const WReply&) = delete;

    const RUXReply* Sinks() const { return &FSinks; }
    /// False for RUX_NONE. Raises EAccessViolation for an object that is gone, the application's own error
    /// for a call that failed: EAbort as such, any other as TApplicationError.
    bool Check(RUXStatus status) const;
    std::string& Text() { return FText; }

 private:
    static void RUX_CALL TakeText(void* context, const char* bytes, std::uint32_t length) noexcept;
    static void RUX_CALL TakeError(void* context, const char* className, const char* message) noexcept;

    RUXReply FSinks;
    std::string FText, FErrorClass, FErrorMessage;
    bool FOutOfMemory = false;
};

}  // namespace rux
