#include "Engine/Locator/RUXContentMatch.h"

#include <algorithm>
#include <string>
#include <vector>

#include "rtl/CodePage.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {

namespace {

bool HasMarkBeforeLast(std::string_view text) {
    bool mark = false, previous = false;
    for (TTextCursor at(text); !at.AtEnd(); at.Next()) {
        mark = previous;
        previous = at.Is('|');
    }
    return mark;
}

}  // namespace

bool MatchContentPrefix(std::string_view content, std::string_view text) {
    std::string hay = RemoveBlanks(content), needle = RemoveBlanks(text);
    if (!HasMarkBeforeLast(needle)) {
        hay += '|';
        needle += '|';
    }
    return AnsiPos(UpperCase(needle), UpperCase(hay)) == 1;
}

bool MatchContentList(std::string_view text, std::string_view content, bool partMatch) {
    const std::string hay = "|" + std::string(content) + "|";
    const std::vector<std::string> elements = SplitDelimited(text, '|');
    return std::all_of(elements.begin(), elements.end(), [&](const std::string& element) {
        const std::string name = RemoveBlanks(element);
        return AnsiPos(partMatch ? name : "|" + name + "|", hay) > 0;
    });
}

}  // namespace rux
