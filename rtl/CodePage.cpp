#include "rtl/CodePage.h"

#include <cstring>
#include <utility>

#include "rtl/KeptForGood.h"

namespace rux {
namespace {

constexpr std::size_t UnitCount = 0x10000;
constexpr unsigned SevenBitPage = 20127;
constexpr char16_t Unknown = 0xFFFD;

constinit TKeptForGood<TCodePageTables> Current;

/// Lookups rely on complete tables and runs of ASCII are copied unseen, so both are made true here.
TCodePageTables Completed(TCodePageTables tables) {
    tables.ToWide.resize(UnitCount);
    tables.FromWide.resize(UnitCount);
    for (unsigned byte = 0; byte < 0x80; ++byte) {
        tables.Lead[byte] = false;
        tables.ToWide[byte] = static_cast<char16_t>(byte);
        tables.FromWide[byte] = static_cast<std::uint16_t>(byte);
    }
    return tables;
}

const TCodePageTables& SevenBitTables() {
    static const TCodePageTables& tables = *[] {
        TCodePageTables blank;
        blank.Number = SevenBitPage;
        return new TCodePageTables(Completed(std::move(blank)));
    }();
    return tables;
}

/// Offset behind the run of ASCII that begins at `from`.
std::size_t AsciiEnd(std::string_view text, std::size_t from) {
    constexpr std::uint64_t highBits = 0x8080808080808080;
    while (text.size() - from >= sizeof(std::uint64_t)) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + from, sizeof word);
        if (word & highBits) break;
        from += sizeof word;
    }
    while (from < text.size() && static_cast<unsigned char>(text[from]) < 0x80) ++from;
    return from;
}

void AppendAnsi(std::string& out, char16_t unit, const TCodePageTables& page) {
    const std::uint16_t bytes = page.FromWide[unit];
    if (!bytes && unit) {
        out += '?';
        return;
    }
    if (bytes > 0xFF) out += static_cast<char>(bytes >> 8);
    out += static_cast<char>(bytes & 0xFF);
}

void AppendUtf8(std::string& out, char16_t unit) {
    if (unit < 0x80) {
        out += static_cast<char>(unit);
        return;
    }
    if (unit < 0x800) {
        out += static_cast<char>(0xC0 | unit >> 6);
    } else {
        out += static_cast<char>(0xE0 | unit >> 12);
        out += static_cast<char>(0x80 | (unit >> 6 & 0x3F));
    }
    out += static_cast<char>(0x80 | (unit & 0x3F));
}

/// Walks a text of the code page: ASCII in runs, everything else unit by unit into `appendUnit`.
template <class Out, class AppendUnit>
void DecodeAnsi(std::string_view text, Out& out, AppendUnit appendUnit) {
    const TCodePageTables& page = CurrentCodePage();
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t end = AsciiEnd(text, pos);
        out.append(text.begin() + pos, text.begin() + end);
        if (end == text.size()) return;
        const auto byte = static_cast<unsigned char>(text[end]);
        const bool pair = page.Lead[byte] && end + 1 < text.size();
        const std::size_t index = pair ? byte * 256u + static_cast<unsigned char>(text[end + 1]) : byte;
        const char16_t unit = page.Lead[byte] && !pair ? 0 : page.ToWide[index];
        appendUnit(unit ? unit : Unknown);
        pos = end + (pair ? 2 : 1);
    }
}

/// The six bits of the continuation byte at `pos`, which then moves on; -1 when there is none.
int TakeContinuation(std::string_view utf8, std::size_t& pos) {
    if (pos >= utf8.size()) return -1;
    const auto byte = static_cast<unsigned char>(utf8[pos++]);
    return (byte & 0xC0) == 0x80 ? byte & 0x3F : -1;
}

/// The unit of the sequence at `pos`, whose first byte is not ASCII; -1 when it is malformed or cut. The
/// upper bits of a lead byte from F0 on fall out of the unit.
int TakeSequence(std::string_view utf8, std::size_t& pos) {
    const auto lead = static_cast<unsigned char>(utf8[pos++]);
    if (lead < 0xC0) return -1;
    int unit = lead & 0x1F;
    if (lead >= 0xE0) {
        const int middle = TakeContinuation(utf8, pos);
        if (middle < 0) return -1;
        unit = (lead & 0x0F) << 6 | middle;
    }
    const int last = TakeContinuation(utf8, pos);
    return last < 0 ? -1 : unit << 6 | last;
}

template <class Out, class AppendUnit>
Out DecodeUtf8(std::string_view utf8, AppendUnit appendUnit) {
    Out out;
    out.reserve(utf8.size());
    for (std::size_t pos = 0; pos < utf8.size();) {
        const std::size_t end = AsciiEnd(utf8, pos);
        out.append(utf8.begin() + pos, utf8.begin() + end);
        if (end == utf8.size()) break;
        pos = end;
        const int unit = TakeSequence(utf8, pos);
        if (unit < 0) return Out();
        appendUnit(out, static_cast<char16_t>(unit));
    }
    return out;
}

}  // namespace

void SetAnsiCodePage(TCodePageTables tables) {
    Current.Set(Completed(std::move(tables)));
}

const TCodePageTables& CurrentCodePage() {
    const TCodePageTables* page = Current.Get();
    return page ? *page : SevenBitTables();
}

unsigned AnsiCodePage() {
    return CurrentCodePage().Number;
}

bool IsLeadByte(unsigned char byte) {
    return byte >= 0x80 && CurrentCodePage().Lead[byte];
}

std::u16string AnsiToWide(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    DecodeAnsi(text, out, [&out](char16_t unit) { out += unit; });
    return out;
}

std::string WideToAnsi(std::u16string_view text) {
    const TCodePageTables& page = CurrentCodePage();
    std::string out;
    out.reserve(text.size() + text.size() / 2);
    for (const char16_t unit : text) AppendAnsi(out, unit, page);
    return out;
}

std::string AnsiToUtf8(std::string_view text) {
    std::string out;
    out.reserve(text.size() + text.size() / 2);
    DecodeAnsi(text, out, [&out](char16_t unit) { AppendUtf8(out, unit); });
    return out;
}

std::u16string Utf8Decode(std::string_view utf8) {
    return DecodeUtf8<std::u16string>(utf8, [](std::u16string& out, char16_t unit) { out += unit; });
}

std::string Utf8ToAnsi(std::string_view utf8) {
    const TCodePageTables& page = CurrentCodePage();
    return DecodeUtf8<std::string>(utf8,
                                   [&page](std::string& out, char16_t unit) { AppendAnsi(out, unit, page); });
}

std::string Ansi(std::string_view utf8Literal) {
    return Utf8ToAnsi(utf8Literal);
}

std::size_t TTextCursor::LengthBeyondAscii(unsigned char byte) const {
    constexpr unsigned char placeholder = 0xFE;
    if (FPlaceholders && byte == placeholder) return 1;
    return FPos + 1 < FText.size() && IsLeadByte(byte) ? 2 : 1;
}

}  // namespace rux
