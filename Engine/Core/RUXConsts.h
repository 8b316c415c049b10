// The return codes of a request: names, comments, status numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace rux {

enum TReturnCode : std::uint8_t {
    /// Initial value; what a caller sees whose wait ran out before any code was set.
    rcUnassigned,
    /// A method with a result was called.
    rcReturned,
    /// A method without a result was called.
    rcSuccess,
    /// An awaited window appeared; the return value is its caption.
    rcWindowPopped,
    rcParseError,
    rcNotFound,
    rcNotUnique,
    rcOtherError,
    /// Reserved: nothing sets it.
    rcUnknownError,
    rcUnexpectedWindow,
    /// The previous request left an error behind.
    rcPreviousNodeFailed,
};

struct TReturnCodeRow {
    TReturnCode Code;
    std::string_view Name;
    /// UTF-8.
    std::string_view Comment;
};

inline constexpr TReturnCodeRow ReturnCodeComments[] = {
    {rcUnassigned, "rcUnassigned", "未赋值"},
    {rcReturned, "rcReturned", "成功返回"},
    {rcSuccess, "rcSuccess", "成功"},
    {rcWindowPopped, "rcWindowPopped", "窗体弹出"},
    {rcParseError, "rcParseError", "解析错误"},
    {rcNotFound, "rcNotFound", "查找失败"},
    {rcNotUnique, "rcNotUnique", "结果不唯一"},
    {rcOtherError, "rcOtherError", "其他错误"},
    {rcUnknownError, "rcUnknownError", "未知错误"},
    {rcUnexpectedWindow, "rcUnexpectedWindow", "非预期窗体"},
    {rcPreviousNodeFailed, "rcPreviousNodeFailed", "前节点执行异常"},
};

/// The comment in the system's code page.
std::string ReturnCodeComment(TReturnCode code);

/// 211 to 213 for the codes from 1 to 3, 510 plus the code for every other one.
constexpr int ReturnCodeToStatus(TReturnCode code) {
    return (code >= rcReturned && code <= rcWindowPopped ? 210 : 510) + code;
}

/// Codes whose answer is the error message. rcPreviousNodeFailed is none: it is set after this test.
constexpr bool IsErrorCode(TReturnCode code) {
    return code >= rcParseError && code <= rcUnexpectedWindow;
}

}  // namespace rux
