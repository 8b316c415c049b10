// Files that a person names on a command line.
#pragma once

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

namespace rux {

/// More than any form file, class file or script has; a device may have no end at all.
inline constexpr std::size_t InputFileLimit = std::size_t{64} << 20;

/// The bytes up to the end. Raises std::runtime_error, which names `name` and the reason.
inline std::string ReadToEnd(std::istream& from, const std::string& name) {
    std::string bytes, piece(std::size_t{1} << 16, '\0');
    while (from.read(piece.data(), static_cast<std::streamsize>(piece.size())), from.gcount() > 0) {
        bytes.append(piece, 0, static_cast<std::size_t>(from.gcount()));
        if (bytes.size() > InputFileLimit)
            throw std::runtime_error(name + ": has more than " + std::to_string(InputFileLimit) + " bytes");
    }
    // A folder can be opened like a file and only then cannot be read.
    if (from.bad() || !from.eof())
        throw std::runtime_error(name + ": cannot be read (" + std::strerror(errno ? errno : EIO) + ")");
    return bytes;
}

inline std::string ReadInputFile(const std::string& name) {
    errno = 0;
    std::ifstream file(name, std::ios::binary);
    return ReadToEnd(file, name);
}

}  // namespace rux
