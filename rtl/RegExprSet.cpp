// The sets of a regular expression: filled by the compiler, asked by the matcher.
#include <algorithm>
#include <string>

#include "rtl/CodePage.h"
#include "rtl/RegExprProgram.h"
#include "rtl/Text.h"

namespace rux {

bool TRegExprProgram::AddClass(char16_t name) {
    const std::u16string_view ends = name == u'd'   ? u"09"
                                     : name == u's' ? u"\t\n\f\r  "
                                     : name == u'w' ? u"09AZ__az"
                                                    : u"";
    for (std::size_t i = 0; i < ends.size(); i += 2) AddRange(ends[i], ends[i + 1]);
    return !ends.empty();
}

bool TRegExprProgram::AddRussian(char16_t first, char16_t last) {
    const auto& page = CurrentCodePage().FromWide;
    const bool small = first == page[u'а'] && (last == page[u'я'] || last == page[u'Я']);
    const bool capital = last == page[u'Я'] && (first == page[u'А'] || first == page[u'а']);
    if (!page[u'а'] || !page[u'Я'] || !(small || capital)) return false;
    if (small) {
        AddRange(page[u'а'], page[u'я']);
        AddRange(page[u'ё'], page[u'ё']);
    }
    if (capital) {
        AddRange(page[u'А'], page[u'Я']);
        AddRange(page[u'Ё'], page[u'Ё']);
    }
    return true;
}

std::uint32_t TRegExprProgram::FinishSet(bool negated) {
    const std::size_t start = FSets.empty() ? 0 : FSets.back().End;
    const auto begin = FRanges.begin() + static_cast<std::ptrdiff_t>(start);
    std::sort(begin, FRanges.end(),
              [](const TRegExprRange& a, const TRegExprRange& b) { return a.First < b.First; });
    auto end = begin;  // of the ranges that were joined
    for (auto at = begin; at != FRanges.end(); ++at) {
        if (end != begin && at->First <= end[-1].Last) {
            end[-1].Last = std::max(end[-1].Last, at->Last);
        } else {
            *end++ = *at;
        }
    }
    FRanges.erase(end, FRanges.end());
    FSets.push_back({start, FRanges.size(), negated});
    return static_cast<std::uint32_t>(FSets.size() - 1);
}

void TRegExprProgram::LearnSmallLetters() {
    if (!FSmallLetters.empty()) return;
    std::string all;
    for (unsigned byte = 1; byte <= 0xFF; ++byte) {
        const unsigned trails = IsLeadByte(static_cast<unsigned char>(byte)) ? 0xFF : 0;
        if (trails == 0) all += static_cast<char>(byte);
        for (unsigned trail = 1; trail <= trails; ++trail) {
            all += {static_cast<char>(byte), static_cast<char>(trail)};
        }
    }
    const std::u16string letters = RegExprCharacters(all), capitals = RegExprCharacters(AnsiUpperCase(all));
    for (std::size_t i = 0; i < letters.size(); ++i) {
        if (letters[i] != capitals[i]) FSmallLetters.emplace_back(capitals[i], letters[i]);
    }
    std::sort(FSmallLetters.begin(), FSmallLetters.end());
}

bool TRegExprProgram::InRanges(const TRegExprSet& set, char16_t c) const {
    const auto begin = FRanges.begin() + static_cast<std::ptrdiff_t>(set.Begin);
    const auto end = FRanges.begin() + static_cast<std::ptrdiff_t>(set.End);
    const auto behind = std::upper_bound(
        begin, end, c, [](char16_t value, const TRegExprRange& range) { return value < range.First; });
    return behind != begin && c <= behind[-1].Last;
}

bool TRegExprProgram::InSet(std::uint32_t index, char16_t c) const {
    const TRegExprSet& set = FSets[index];
    return InRanges(set, c) != set.Negated;
}

bool TRegExprProgram::InSetAnyCase(std::uint32_t index, char16_t c, char16_t capital) const {
    const TRegExprSet& set = FSets[index];
    if (InRanges(set, c) || InRanges(set, capital)) return !set.Negated;
    auto small = std::lower_bound(FSmallLetters.begin(), FSmallLetters.end(), std::pair(capital, u'\0'));
    for (; small != FSmallLetters.end() && small->first == capital; ++small) {
        if (InRanges(set, small->second)) return !set.Negated;
    }
    return set.Negated;
}

}  // namespace rux
