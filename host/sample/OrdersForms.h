// The form files of the sample application, carried by the program.
#pragma once

#include <span>
#include <string_view>

namespace rux {

struct TEmbeddedForm {
    std::string_view FileName;
    std::string_view Bytes;
};

/// The main form first.
std::span<const TEmbeddedForm> OrdersForms();

}  // namespace rux
