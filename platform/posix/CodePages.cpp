#include "platform/posix/CodePages.h"

#include <iconv.h>

#include <algorithm>
#include <functional>
#include <span>
#include <string>

#include "rtl/Exceptions.h"

namespace rux {
namespace {

constexpr std::size_t UnitCount = 0x10000;

struct TRange {
    unsigned First, Last;
};

/// What a page of single bytes leaves open here stands for the control character of the same number.
constexpr TRange UpperControls{0x80, 0x9F};

/// Lead bytes of the pages that have characters of two.
struct TLeadRanges {
    unsigned Number;
    TRange Ranges[2];
};
constexpr TLeadRanges LeadRanges[] = {
    {932, {{0x81, 0x9F}, {0xE0, 0xFC}}},
    {936, {{0x81, 0xFE}, {1, 0}}},
    {949, {{0x81, 0xFE}, {1, 0}}},
    {950, {{0x81, 0xFE}, {1, 0}}},
};

/// Characters that users define: places row by row, units one after the other.
struct TUserArea {
    TRange Leads;
    TRange Trails;
    unsigned FirstUnit;
};
constexpr TUserArea UserAreas936[] = {
    {{0xAA, 0xAF}, {0xA1, 0xFE}, 0xE000},
    {{0xF8, 0xFE}, {0xA1, 0xFE}, 0xE234},
    {{0xA1, 0xA7}, {0x40, 0xA0}, 0xE4C6},
};
/// The last of them fill what the other characters of the page leave open.
constexpr char16_t FirstFillUnit936 = 0xE766;
constexpr TRange Leads936{0x81, 0xFE};
constexpr TRange Trails936{0x40, 0xFE};
constexpr unsigned DeleteByte = 0x7F;  // no trail byte in 936
constexpr unsigned EuroByte936 = 0x80;
constexpr char16_t EuroSign = 0x20AC;

[[noreturn]] void RaiseUnknown(unsigned number) {
    throw Exception("Unknown code page " + std::to_string(number));
}

/// A conversion of the C library from one code page to UTF-16.
class TConverter {
 public:
    explicit TConverter(unsigned number)
        : FConversion(::iconv_open("UTF-16LE", ("CP" + std::to_string(number)).c_str())) {
        if (!IsOpen()) RaiseUnknown(number);
    }
    ~TConverter() { ::iconv_close(FConversion); }
    TConverter(const TConverter&) = delete;
    TConverter& operator=(const TConverter&) = delete;

    /// The one unit that these bytes stand for; 0 if they are no character or more than one unit.
    char16_t UnitOf(std::span<char> bytes) {
        ::iconv(FConversion, nullptr, nullptr, nullptr, nullptr);
        unsigned char out[8];
        char* in = bytes.data();
        auto* next = reinterpret_cast<char*>(out);
        std::size_t inLeft = bytes.size(), outLeft = sizeof out;
        const bool done = ::iconv(FConversion, &in, &inLeft, &next, &outLeft) == 0;
        if (!done || inLeft != 0 || sizeof out - outLeft != sizeof(char16_t)) return 0;
        return static_cast<char16_t>(out[0] | out[1] << 8);
    }

 private:
    bool IsOpen() const { return reinterpret_cast<std::intptr_t>(FConversion) != -1; }
    iconv_t FConversion;
};

void AddPlace(TCodePageTables& page, unsigned place, char16_t unit) {
    if (page.ToWide[place] || !unit) return;
    page.ToWide[place] = unit;
    if (!page.FromWide[unit]) page.FromWide[unit] = static_cast<std::uint16_t>(place);
}

void SetLeads(TCodePageTables& page) {
    for (const TLeadRanges& row : LeadRanges) {
        if (row.Number != page.Number) continue;
        for (const TRange& range : row.Ranges)
            for (unsigned byte = range.First; byte <= range.Last; ++byte) page.Lead[byte] = true;
    }
}

void AddKnownCharacters(TCodePageTables& page, TConverter& converter) {
    for (unsigned byte = 0; byte < 0x100; ++byte) {
        char bytes[2] = {static_cast<char>(byte), 0};
        if (!page.Lead[byte]) AddPlace(page, byte, converter.UnitOf({bytes, 1}));
    }
    for (unsigned place = 0; place < UnitCount; ++place) {
        char bytes[2] = {static_cast<char>(place >> 8), static_cast<char>(place & 0xFF)};
        if (page.Lead[place >> 8]) AddPlace(page, place, converter.UnitOf(bytes));
    }
}

void AddUserArea(TCodePageTables& page, const TUserArea& area) {
    auto unit = static_cast<char16_t>(area.FirstUnit);
    for (unsigned lead = area.Leads.First; lead <= area.Leads.Last; ++lead) {
        for (unsigned trail = area.Trails.First; trail <= area.Trails.Last; ++trail) {
            if (trail != DeleteByte) AddPlace(page, lead << 8 | trail, unit++);
        }
    }
}

void FillRest936(TCodePageTables& page) {
    char16_t unit = FirstFillUnit936;
    for (unsigned lead = Leads936.First; lead <= Leads936.Last; ++lead) {
        for (unsigned trail = Trails936.First; trail <= Trails936.Last; ++trail) {
            const unsigned place = lead << 8 | trail;
            if (trail != DeleteByte && !page.ToWide[place]) AddPlace(page, place, unit++);
        }
    }
}

void AddUpperControls(TCodePageTables& page) {
    for (unsigned byte = UpperControls.First; byte <= UpperControls.Last; ++byte)
        AddPlace(page, byte, static_cast<char16_t>(byte));
}

}  // namespace

TCodePageTables LoadCodePage(unsigned number) {
    TConverter converter(number);
    TCodePageTables page;
    page.Number = number;
    page.ToWide.resize(UnitCount);
    page.FromWide.resize(UnitCount);
    SetLeads(page);
    AddKnownCharacters(page, converter);
    if (number == 936) {
        AddPlace(page, EuroByte936, EuroSign);
        for (const TUserArea& area : UserAreas936) AddUserArea(page, area);
        FillRest936(page);
    }
    if (std::none_of(page.Lead.begin(), page.Lead.end(), std::identity())) AddUpperControls(page);
    return page;
}

}  // namespace rux
