#include "platform/win32/toolkit/WBridgeReply.h"

#include <new>

#include "rtl/Text.h"

namespace rux {

bool WReply::Check(RUXStatus status) const {
    if (FOutOfMemory) throw std::bad_alloc();
    if (status == RUX_OK) return true;
    if (status == RUX_NONE) return false;
    if (status == RUX_GONE) RaiseNilAccess();
    if (SameText(FErrorClass, "EAbort")) throw EAbort(FErrorMessage);
    if (FErrorClass.empty()) throw Exception("The toolkit failed without an error");
    throw TApplicationError(FErrorClass, FErrorMessage);
}

void WReply::TakeText(void* context, const char* bytes, std::uint32_t length) noexcept {
    auto& self = *static_cast<WReply*>(context);
    try {
        if (length > 0) self.FText.append(bytes, length);
    } catch (...) {
        self.FOutOfMemory = true;
    }
}

void WReply::TakeError(void* context, const char* className, const char* message) noexcept {
    auto& self = *static_cast<WReply*>(context);
    try {
        self.FErrorClass = className ? className : "";
        self.FErrorMessage = message ? message : "";
    } catch (...) {
        self.FOutOfMemory = true;
    }
}

}  // namespace rux
