#include "rtl/Text.h"

#include <algorithm>

#include "rtl/Chars.h"
#include "rtl/CodePage.h"

namespace rux {
namespace {

constexpr std::size_t Absent = std::string_view::npos;

bool IsWhite(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

unsigned char Upper(char c) {
    return static_cast<unsigned char>(c >= 'a' && c <= 'z' ? c - 0x20 : c);
}

/// Whether a character begins (or the text ends) at `place`; one does at `known`, which lies before it. A
/// byte that is no lead byte always ends a character, so the run of lead bytes in front decides.
bool IsBoundary(std::string_view text, std::size_t known, std::size_t place) {
    std::size_t first = place;
    while (first > known && IsLeadByte(static_cast<unsigned char>(text[first - 1]))) --first;
    return (place - first) % 2 == 0;
}

/// Offset of `sub` (not empty) from the boundary `known` on, where it covers whole characters. Bytes are
/// searched first, as the rare hit is cheaper to check than every character is to step over.
std::size_t FindCharacters(std::string_view text, std::string_view sub, std::size_t known) {
    const bool cutsPair = !IsBoundary(sub, 0, sub.size());
    for (std::size_t hit = text.find(sub, known); hit != Absent; hit = text.find(sub, hit + 1)) {
        const bool begins = IsBoundary(text, known, hit);
        if (begins && (!cutsPair || hit + sub.size() == text.size())) return hit;
        known = begins ? hit : hit + 1;
    }
    return Absent;
}

/// Replaces within the first `searched` bytes and keeps what lies behind them.
std::string Replaced(std::string_view text, std::size_t searched, std::string_view from,
                     std::string_view to) {
    const std::string_view hay = text.substr(0, searched);
    std::string out;
    std::size_t done = 0;
    for (std::size_t hit = FindCharacters(hay, from, 0); hit != Absent;
         hit = FindCharacters(hay, from, done)) {
        out.append(text.substr(done, hit - done)).append(to);
        done = hit + from.size();
    }
    return out.append(text.substr(done));
}

}  // namespace

std::string_view TrimLeft(std::string_view text) {
    while (!text.empty() && IsWhite(text.front())) text.remove_prefix(1);
    return text;
}

std::string_view TrimRight(std::string_view text) {
    while (!text.empty() && IsWhite(text.back())) text.remove_suffix(1);
    return text;
}

std::string_view Trim(std::string_view text) {
    return TrimLeft(TrimRight(text));
}

std::string RemoveBlanks(std::string_view text) {
    return Replaced(text, text.size(), " ", "");
}

std::string UpperCase(std::string_view text) {
    std::string out(text);
    for (char& c : out) c = static_cast<char>(Upper(c));
    return out;
}

std::string LowerCase(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 0x20);
    }
    return out;
}

bool SameText(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Upper(x) == Upper(y); });
}

int CompareText(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        const int difference = Upper(a[i]) - Upper(b[i]);
        if (difference) return difference;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

std::size_t Pos(std::string_view sub, std::string_view text) {
    return sub.empty() ? 0 : text.find(sub) + 1;
}

std::size_t AnsiPos(std::string_view sub, std::string_view text) {
    sub = UpToNul(sub);
    return sub.empty() ? 0 : FindCharacters(UpToNul(text), sub, 0) + 1;
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
    from = UpToNul(from);
    if (from.empty()) return std::string(text);
    return Replaced(text, UpToNul(text).size(), from, to);
}

std::string Copy(std::string_view text, long long index, long long count) {
    const unsigned long long skipped = index < 1 ? 0 : static_cast<unsigned long long>(index) - 1;
    if (count <= 0 || skipped >= text.size()) return {};
    const std::string_view rest = text.substr(static_cast<std::size_t>(skipped));
    const auto kept = std::min<unsigned long long>(rest.size(), static_cast<unsigned long long>(count));
    return std::string(rest.substr(0, static_cast<std::size_t>(kept)));
}

}  // namespace rux
