#include "platform/headless/loader/HIdents.h"

#include <unordered_map>

#include "rtl/Names.h"

namespace rux {

namespace {

struct TIdent {
    std::string_view Name;
    std::int64_t Value;
};

/// System colours carry the high byte FF and the system's index.
constexpr std::int64_t System(int index) {
    return static_cast<std::int32_t>(0xFF000000u | static_cast<unsigned>(index));
}

constexpr TIdent Idents[] = {
    {"clBlack", 0x000000},
    {"clMaroon", 0x000080},
    {"clGreen", 0x008000},
    {"clOlive", 0x008080},
    {"clNavy", 0x800000},
    {"clPurple", 0x800080},
    {"clTeal", 0x808000},
    {"clGray", 0x808080},
    {"clSilver", 0xC0C0C0},
    {"clRed", 0x0000FF},
    {"clLime", 0x00FF00},
    {"clYellow", 0x00FFFF},
    {"clBlue", 0xFF0000},
    {"clFuchsia", 0xFF00FF},
    {"clAqua", 0xFFFF00},
    {"clLtGray", 0xC0C0C0},
    {"clDkGray", 0x808080},
    {"clWhite", 0xFFFFFF},
    {"clMoneyGreen", 0xC0DCC0},
    {"clSkyBlue", 0xF0CAA6},
    {"clCream", 0xF0FBFF},
    {"clMedGray", 0xA4A0A0},
    {"clNone", 0x1FFFFFFF},
    {"clDefault", 0x20000000},
    {"clScrollBar", System(0)},
    {"clBackground", System(1)},
    {"clActiveCaption", System(2)},
    {"clInactiveCaption", System(3)},
    {"clMenu", System(4)},
    {"clWindow", System(5)},
    {"clWindowFrame", System(6)},
    {"clMenuText", System(7)},
    {"clWindowText", System(8)},
    {"clCaptionText", System(9)},
    {"clActiveBorder", System(10)},
    {"clInactiveBorder", System(11)},
    {"clAppWorkSpace", System(12)},
    {"clHighlight", System(13)},
    {"clHighlightText", System(14)},
    {"clBtnFace", System(15)},
    {"clBtnShadow", System(16)},
    {"clGrayText", System(17)},
    {"clBtnText", System(18)},
    {"clInactiveCaptionText", System(19)},
    {"clBtnHighlight", System(20)},
    {"cl3DDkShadow", System(21)},
    {"cl3DLight", System(22)},
    {"clInfoText", System(23)},
    {"clInfoBk", System(24)},
    {"clHotLight", System(26)},
    {"clGradientActiveCaption", System(27)},
    {"clGradientInactiveCaption", System(28)},
    {"clMenuHighlight", System(29)},
    {"clMenuBar", System(30)},
    {"crDefault", 0},
    {"crNone", -1},
    {"crArrow", -2},
    {"crCross", -3},
    {"crIBeam", -4},
    {"crSize", -22},
    {"crSizeNESW", -6},
    {"crSizeNS", -7},
    {"crSizeNWSE", -8},
    {"crSizeWE", -9},
    {"crUpArrow", -10},
    {"crHourGlass", -11},
    {"crDrag", -12},
    {"crNoDrop", -13},
    {"crHSplit", -14},
    {"crVSplit", -15},
    {"crMultiDrag", -16},
    {"crSQLWait", -17},
    {"crNo", -18},
    {"crAppStart", -19},
    {"crHelp", -20},
    {"crHandPoint", -21},
    {"crSizeAll", -22},
    {"ANSI_CHARSET", 0},
    {"DEFAULT_CHARSET", 1},
    {"SYMBOL_CHARSET", 2},
    {"MAC_CHARSET", 77},
    {"SHIFTJIS_CHARSET", 128},
    {"HANGEUL_CHARSET", 129},
    {"JOHAB_CHARSET", 130},
    {"GB2312_CHARSET", 134},
    {"CHINESEBIG5_CHARSET", 136},
    {"GREEK_CHARSET", 161},
    {"TURKISH_CHARSET", 162},
    {"VIETNAMESE_CHARSET", 163},
    {"HEBREW_CHARSET", 177},
    {"ARABIC_CHARSET", 178},
    {"BALTIC_CHARSET", 186},
    {"RUSSIAN_CHARSET", 204},
    {"THAI_CHARSET", 222},
    {"EASTEUROPE_CHARSET", 238},
    {"OEM_CHARSET", 255},
    {"mrNone", 0},
    {"mrOk", 1},
    {"mrCancel", 2},
    {"mrAbort", 3},
    {"mrRetry", 4},
    {"mrIgnore", 5},
    {"mrYes", 6},
    {"mrNo", 7},
    {"mrAll", 8},
    {"mrNoToAll", 9},
    {"mrYesToAll", 10},
};

/// Large forms ask for one identifier or more with every control.
struct TIdentTable {
    TIdentTable() {
        for (const TIdent& row : Idents) Values.emplace(InternName(row.Name).Id, row.Value);
    }
    std::unordered_map<std::uint32_t, std::int64_t> Values;
};

}  // namespace

std::optional<std::int64_t> IntegerOfIdent(std::string_view ident) {
    static const TIdentTable table;
    const auto found = table.Values.find(FindName(ident).Id);
    if (found == table.Values.end()) return std::nullopt;
    return found->second;
}

}  // namespace rux
