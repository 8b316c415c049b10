#include "platform/win32/Win32Locale.h"

#include "platform/win32/Headers.h"
#include "rtl/Exceptions.h"

namespace rux {
namespace {

constexpr unsigned UnitCount = 0x10000;
constexpr UINT MostBytes = 2;

/// The unit at a place of the page; 0 when there is no character or more than one unit.
char16_t UnitAt(unsigned page, unsigned place) {
    const char bytes[] = {static_cast<char>(place >> 8), static_cast<char>(place & 0xFF)};
    const int length = place > 0xFF ? 2 : 1;
    wchar_t units[4] = {};
    const int count = ::MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes + 2 - length, length, units, 4);
    return count == 1 ? static_cast<char16_t>(units[0]) : u'\0';
}

/// Where the system writes a unit to, as long as it reads back from there; 0 for nowhere.
std::uint16_t PlaceOf(unsigned page, char16_t unit) {
    const auto wide = static_cast<wchar_t>(unit);
    unsigned char bytes[4] = {};
    BOOL lacks = FALSE;
    const int length = ::WideCharToMultiByte(page, WC_NO_BEST_FIT_CHARS, &wide, 1,
                                             reinterpret_cast<char*>(bytes), sizeof bytes, nullptr, &lacks);
    if (lacks || length < 1 || length > 2) return 0;
    return static_cast<std::uint16_t>(length == 1 ? bytes[0] : bytes[0] << 8 | bytes[1]);
}

void AddPlace(TCodePageTables& page, unsigned place) {
    const char16_t unit = UnitAt(page.Number, place);
    if (!unit) return;
    page.ToWide[place] = unit;
    if (!page.FromWide[unit]) page.FromWide[unit] = PlaceOf(page.Number, unit);
}

std::string LocaleText(LCTYPE type) {
    char text[128];
    const int length = ::GetLocaleInfoA(LOCALE_USER_DEFAULT, type | LOCALE_USE_CP_ACP, text, sizeof text);
    return length > 0 ? std::string(text, static_cast<std::size_t>(length - 1)) : std::string();
}

/// Separators are single bytes to the run-time library.
char LocaleChar(LCTYPE type, char instead) {
    const std::string text = LocaleText(type);
    return text.size() == 1 ? text[0] : instead;
}

std::string TimePicture() {
    const std::string hour = LocaleText(LOCALE_ITLZERO) == "1" ? "hh" : "h";
    if (LocaleText(LOCALE_ITIME) == "1") return hour + ":mm:ss";
    const bool markFirst = LocaleText(LOCALE_ITIMEMARKPOSN) == "1";
    return markFirst ? "AMPM " + hour + ":mm:ss" : hour + ":mm:ss AMPM";
}

}  // namespace

TCodePageTables LoadSystemCodePage(unsigned number) {
    TCodePageTables page;
    page.Number = number ? number : ::GetACP();
    CPINFO facts{};
    if (!::GetCPInfo(page.Number, &facts) || facts.MaxCharSize > MostBytes)
        throw Exception("Unknown code page " + std::to_string(page.Number));
    page.ToWide.resize(UnitCount);
    page.FromWide.resize(UnitCount);
    for (unsigned byte = 0; byte < 0x100; ++byte) {
        page.Lead[byte] = ::IsDBCSLeadByteEx(page.Number, static_cast<BYTE>(byte));
        if (!page.Lead[byte]) AddPlace(page, byte);
    }
    for (unsigned place = 0x100; place < UnitCount; ++place)
        if (page.Lead[place >> 8]) AddPlace(page, place);
    return page;
}

std::string TranslateDatePicture(std::string_view picture) {
    std::string out;
    bool quoted = false;
    for (TTextCursor at(picture); !at.AtEnd(); at.Next()) {
        if (at.Is('\'')) quoted = !quoted;
        if (!quoted && (at.Is('g') || at.Is('G'))) continue;
        out += at.Char();
    }
    const std::size_t start = out.find_first_not_of(' ');
    return start == out.npos ? std::string() : out.substr(start);
}

TLocaleFacts LoadLocaleFacts() {
    TLocaleFacts facts;
    const std::string date = TranslateDatePicture(LocaleText(LOCALE_SSHORTDATE));
    if (!date.empty()) facts.ShortDateFormat = date;
    facts.LongTimeFormat = TimePicture();
    facts.DateSeparator = LocaleChar(LOCALE_SDATE, facts.DateSeparator);
    facts.TimeSeparator = LocaleChar(LOCALE_STIME, facts.TimeSeparator);
    facts.DecimalSeparator = LocaleChar(LOCALE_SDECIMAL, facts.DecimalSeparator);
    facts.AmText = LocaleText(LOCALE_S1159);
    facts.PmText = LocaleText(LOCALE_S2359);
    return facts;
}

}  // namespace rux
