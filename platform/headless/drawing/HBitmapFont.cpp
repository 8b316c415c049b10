#include "platform/headless/drawing/HBitmapFont.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <string_view>

namespace rux {

namespace {

/// Larger than any font of this format that covers the first plane.
constexpr std::uintmax_t FileLimit = std::uintmax_t{1} << 24;

std::string FontPath() {
    const char* named = std::getenv("RUX_BITMAP_FONT");
    return named ? named : "/usr/share/unifont/unifont.hex";
}

bool ReadHex(std::string_view digits, unsigned& value) {
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, 16);
    return error == std::errc() && stop == end;
}

}  // namespace

std::shared_ptr<const HBitmapFont> HBitmapFont::Current() {
    static std::mutex lock;
    static std::shared_ptr<const HBitmapFont> font;
    static std::string source;
    const std::lock_guard guard(lock);
    std::string path = FontPath();
    if (font && path == source) return font;
    auto fresh = std::make_shared<HBitmapFont>();
    fresh->Read(path);
    source = std::move(path);
    font = std::move(fresh);
    return font;
}

void HBitmapFont::Read(const std::string& path) {
    std::error_code error;
    if (path.empty() || !std::filesystem::is_regular_file(path, error)) return;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > FileLimit) return;
    std::ifstream file(path);
    // Most lines are 70 bytes long.
    FGlyphs.reserve(static_cast<std::size_t>(size / 64));
    std::string line;
    while (std::getline(file, line)) ReadLine(line);
    FGlyphs.shrink_to_fit();
}

void HBitmapFont::ReadLine(const std::string& line) {
    const std::string_view text = line;
    const std::size_t colon = text.find(':');
    unsigned character = 0;
    if (colon == text.npos || !ReadHex(text.substr(0, colon), character) || character > 0xFFFF) return;
    const std::string_view digits = text.substr(colon + 1, text.find_last_not_of("\r ") - colon);
    HBitmapGlyph glyph;
    glyph.Wide = digits.size() == 64;
    if (!glyph.Wide && digits.size() != 32) return;
    const std::size_t perRow = digits.size() / 16;
    for (std::size_t row = 0; row < 16; ++row) {
        unsigned bits = 0;
        if (!ReadHex(digits.substr(row * perRow, perRow), bits)) return;
        glyph.Rows[row] = static_cast<std::uint16_t>(glyph.Wide ? bits : bits << 8);
    }
    Add(static_cast<char16_t>(character), glyph);
}

void HBitmapFont::Add(char16_t character, const HBitmapGlyph& glyph) {
    if (FPlaces.empty()) FPlaces.resize(0x10000);
    if (FPlaces[character] != 0 || FGlyphs.size() >= 0xFFFF) return;
    FGlyphs.push_back(glyph);
    FPlaces[character] = static_cast<std::uint16_t>(FGlyphs.size());
}

}  // namespace rux
