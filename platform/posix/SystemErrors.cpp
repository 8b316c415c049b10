#include "platform/posix/SystemErrors.h"

#include <cerrno>

#include "rtl/Exceptions.h"

namespace rux {
namespace {

thread_local constinit std::uint32_t LastError = 0;

}  // namespace

std::uint32_t LastSystemError() {
    return LastError;
}

void SetLastSystemError(std::uint32_t number) {
    LastError = number;
}

std::uint32_t SystemErrorOf(int errorNumber) {
    switch (errorNumber) {
        case 0:
            return 0;
        case ENOENT:
        case ENOTDIR:
            return ERROR_FILE_NOT_FOUND;
        case ENAMETOOLONG:
            return ERROR_INVALID_NAME;
        case ENOMEM:
        case EMFILE:
        case ENFILE:
        case ENOSPC:
        case ENOLCK:
            return ERROR_NOT_ENOUGH_MEMORY;
        default:
            return ERROR_ACCESS_DENIED;
    }
}

void RaiseOutOfResources() {
    SetLastSystemError(ERROR_NOT_ENOUGH_MEMORY);
    throw EOSError("System Error.  Code: 8.\r\nNot enough storage is available to process this command");
}

}  // namespace rux
