// The exception tree of the run-time library. Message texts are in the system's code page.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace rux {

/// Root of all failures that travel through the engine and the application.
class Exception : public std::exception {
 public:
    explicit Exception(std::string message) : FMessage(std::move(message)) {}
    const std::string& Message() const noexcept { return FMessage; }
    const char* what() const noexcept override { return FMessage.c_str(); }
    /// The class name as the run-time library spells it; for logs and journals.
    virtual std::string_view ClassName() const noexcept { return "Exception"; }

 private:
    std::string FMessage;
};

/// A class name as a template argument.
template <std::size_t N>
struct TClassNameLiteral {
    char Text[N];
    consteval TClassNameLiteral(const char (&text)[N]) { std::copy_n(text, N, Text); }
};

/// A descendant that differs from its base by its name alone.
template <class Base, TClassNameLiteral Name>
class TNamedException : public Base {
 public:
    using Base::Base;
    std::string_view ClassName() const noexcept override { return Name.Text; }
};

using EAbort = TNamedException<Exception, "EAbort">;
using EAccessViolation = TNamedException<Exception, "EAccessViolation">;
using EAssertionFailed = TNamedException<Exception, "EAssertionFailed">;
using EComponentError = TNamedException<Exception, "EComponentError">;
using EConvertError = TNamedException<Exception, "EConvertError">;
using EFCreateError = TNamedException<Exception, "EFCreateError">;
using EFOpenError = TNamedException<Exception, "EFOpenError">;
using EFilerError = TNamedException<Exception, "EFilerError">;
using EInOutError = TNamedException<Exception, "EInOutError">;
using EInvalidOp = TNamedException<Exception, "EInvalidOp">;
using EInvalidOperation = TNamedException<Exception, "EInvalidOperation">;
using EListError = TNamedException<Exception, "EListError">;
using EOSError = TNamedException<Exception, "EOSError">;
using EPropertyError = TNamedException<Exception, "EPropertyError">;
using EReadError = TNamedException<Exception, "EReadError">;
using EStackOverflow = TNamedException<Exception, "EStackOverflow">;
using EStringListError = TNamedException<Exception, "EStringListError">;
using ETreeViewError = TNamedException<Exception, "ETreeViewError">;
using ETypeTransException = TNamedException<Exception, "ETypeTransException">;

/// Raises EAssertionFailed with "<text> (<file>, line <n>)" when `condition` does not hold. The file is the
/// source path below the project's root, as the compiler was told to record it.
void Assert(bool condition, std::string_view text = "Assertion failure", const char* file = __builtin_FILE(),
            int line = __builtin_LINE());

/// A call through a nil reference or a nil method pointer.
[[noreturn]] void RaiseNilAccess();

}  // namespace rux
