// What the tests of patching share, the live program among them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CodeService.h"

namespace rux::test {

/// "8B FF", up to the end or a second blank, as bytes.
inline std::vector<std::uint8_t> FromHex(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i + 1 < text.size() && text[i] != ' '; i += 3)
        bytes.push_back(static_cast<std::uint8_t>(std::stoul(std::string(text.substr(i, 2)), nullptr, 16)));
    return bytes;
}

inline std::string ToHex(std::span<const std::uint8_t> bytes) {
    std::string text;
    char pair[4];
    for (const std::uint8_t byte : bytes) {
        std::snprintf(pair, sizeof pair, text.empty() ? "%02X" : " %02X", byte);
        text += pair;
    }
    return text;
}

/// What a shell command prints; `status` becomes what waiting for it answers.
inline std::string OutputOf(const std::string& command, int& status) {
    std::string text;
    char part[4096];
    std::FILE* const pipe = popen(command.c_str(), "r");
    for (std::size_t size; pipe && (size = std::fread(part, 1, sizeof part, pipe)) > 0;)
        text.append(part, size);
    status = pipe ? pclose(pipe) : -1;
    return text;
}

/// Memory alone: no functions to find, make or call.
class TCodeMemory : public TCodeService {
 public:
    bool IsNtFamily() override { return true; }
    TCodeAddress GetProcAddress(const std::string&, const std::string&) override { return 0; }
    TCodeAddress MakeFunction(TCallKind, unsigned, TNativeBody) override { return 0; }
    void FreeFunction(TCodeAddress, TCodeAddress) override {}
    std::uintptr_t Call(TCallKind, TCodeAddress, std::span<const std::uintptr_t>) override { return 0; }
};

}  // namespace rux::test
