// Texts of the system's code page from UTF-8, and back.
#pragma once

#include <windows.h>

#include <string>

namespace rux {

inline std::string Recoded(const std::string& text, UINT from, UINT to) {
    std::wstring wide(text.size(), L'\0');
    const int room = static_cast<int>(wide.size());
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(from, 0, text.data(), static_cast<int>(text.size()), wide.data(), room)));
    std::string result(wide.size() * 4, '\0');
    result.resize(static_cast<std::size_t>(
        WideCharToMultiByte(to, 0, wide.data(), static_cast<int>(wide.size()), result.data(),
                            static_cast<int>(result.size()), nullptr, nullptr)));
    return result;
}

inline std::string Ansi(const std::string& utf8) {
    return Recoded(utf8, CP_UTF8, CP_ACP);
}

inline std::string Utf8(const std::string& ansi) {
    return Recoded(ansi, CP_ACP, CP_UTF8);
}

}  // namespace rux
