#include "Engine/Core/RUXConsts.h"

#include "rtl/CodePage.h"

namespace rux {

std::string ReturnCodeComment(TReturnCode code) {
    return Ansi(ReturnCodeComments[static_cast<unsigned>(code) & 127].Comment);
}

}  // namespace rux
