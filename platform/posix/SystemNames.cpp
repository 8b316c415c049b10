#include "platform/posix/SystemNames.h"

#include <algorithm>

#include "rtl/CodePage.h"

namespace rux {

std::string SystemName(std::string_view name) {
    if (name.find('\0') != name.npos) return {};
    std::string out;
    out.reserve(name.size());
    for (TTextCursor cursor(name); !cursor.AtEnd(); cursor.Next()) {
        if (!cursor.Is('\\') && !cursor.Is('/'))
            out += cursor.Char();
        else if (!out.ends_with('/'))
            out += '/';
    }
    return AnsiToUtf8(out);
}

std::string NameFromSystem(std::string_view systemName) {
    std::string name(systemName);
    std::replace(name.begin(), name.end(), '/', '\\');
    return Utf8ToAnsi(name);
}

}  // namespace rux
