#include "rtl/Exceptions.h"

namespace rux {

void Assert(bool condition, std::string_view text, const char* file, int line) {
    if (condition) return;
    throw EAssertionFailed(std::string(text) + " (" + file + ", line " + std::to_string(line) + ")");
}

void RaiseNilAccess() {
    throw EAccessViolation("Access violation at address 00000000. Read of address 00000000");
}

}  // namespace rux
