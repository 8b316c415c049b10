// Drawing: clipping, text with and without a font file.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

#include "platform/headless/drawing/HCanvas.h"
#include "platform/posix/CodePages.h"
#include "rtl/CodePage.h"

namespace rux::test {

namespace {

constexpr TColor Black{0, 0, 0}, White{255, 255, 255};

class TCanvasTest : public testing::Test {
 protected:
    TCanvasTest() {
        SetAnsiCodePage(LoadCodePage(936));
        UseFont("");
    }
    ~TCanvasTest() override {
        ::unsetenv("RUX_BITMAP_FONT");
        std::filesystem::remove(FFile);
    }
    void UseFont(const std::string& path) { ::setenv("RUX_BITMAP_FONT", path.c_str(), 1); }
    void UseFontOf(const std::string& lines) {
        std::ofstream(FFile) << lines;
        UseFont("");
        static_cast<void>(Drawn(2, 1, "\xD6\xD0"));  // the last file is forgotten
        UseFont(FFile.string());
    }
    static TBitmap Blank(int width, int height) {
        return {width, height, std::vector<TColor>(static_cast<std::size_t>(width * height), White)};
    }
    /// A row of characters for each row of pixels: '#' is black, '.' white, '+' between.
    static std::string Shown(const TBitmap& picture) {
        std::string rows;
        for (int y = 0; y < picture.Height; ++y) {
            for (int x = 0; x < picture.Width; ++x)
                rows += picture.At(x, y) == Black ? '#' : picture.At(x, y) == White ? '.' : '+';
            rows += '\n';
        }
        return rows;
    }
    static std::string Drawn(int width, int height, const std::string& text,
                             HTextAlign align = HTextAlign::Left) {
        TBitmap picture = Blank(width, height);
        HCanvas(picture).Text({0, 0, width, height}, text, Black, align);
        return Shown(picture);
    }

 private:
    const std::filesystem::path FFile =
        std::filesystem::temp_directory_path() / ("rux-font-" + std::to_string(::getpid()));
};

}  // namespace

TEST_F(TCanvasTest, DrawsLettersAndBoxesForWhatNoFontHas) {
    EXPECT_EQ(Drawn(22, 12, "Hi\xD6\xD0"),
              "......................\n"
              ".........##########...\n"
              ".........#........#...\n"
              "#...#.#..#........#...\n"
              "#...#....#........#...\n"
              "#...#.#..#........#...\n"
              "#####.#..#........#...\n"
              "#...#.#..#........#...\n"
              "#...#.#..#........#...\n"
              "#...#.#..#........#...\n"
              ".........##########...\n"
              "......................\n");
    EXPECT_EQ(HCanvas::TextWidth("Hi\xD6\xD0"), 20);
}

TEST_F(TCanvasTest, TakesOtherCharactersFromTheFontFile) {
    const std::string box = Drawn(12, 12, "\xD6\xD0");
    // The left half of a glyph, made smaller by a quarter.
    std::string half = "4E2D:";
    for (int i = 0; i < 16; ++i) half += "FF00";
    UseFontOf("nonsense\n4E2D:00\n4E2D:" + std::string(64, 'x') + "\n123456:" + std::string(64, '0') + "\n" +
              half + "\r\n");
    std::string expected;
    for (int i = 0; i < 12; ++i) expected += "######......\n";
    EXPECT_EQ(Drawn(12, 12, "\xD6\xD0"), expected);
    EXPECT_EQ(Drawn(12, 12, "\xB9\xFA"), box) << "a character that the font lacks";
    // A narrow glyph stands in the middle of a wide character.
    UseFontOf("4E2D:" + std::string(32, 'F') + "\n");
    EXPECT_EQ(Drawn(12, 12, "\xD6\xD0").substr(0, 13), "...######...\n");
    UseFont(std::filesystem::temp_directory_path().string());
    EXPECT_EQ(Drawn(12, 12, "\xD6\xD0"), box) << "a folder is no font";
}

TEST_F(TCanvasTest, KeepsWithinItsPlace) {
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    const TRect places[] = {{low, low, high, high}, {high, high, low, low}, {low, low, low, low},
                            {high - 1, 0, high, 9}, {5, 5, 4, 4},           {-3, -3, 40, 40}};
    for (const TRect& place : places) {
        TBitmap picture = Blank(20, 20);
        HCanvas part = HCanvas(picture).Part({5, 5, 15, 15});
        const std::string text = "W\xD6\xD0 ww\r\n" + std::string(5000, 'm');
        part.Fill(place, Black);
        part.Frame(place, Black);
        part.Edge(place, HEdge::Etched);
        part.Lines(place, text, Black, true);
        for (const HTextAlign align : {HTextAlign::Left, HTextAlign::Center, HTextAlign::Right})
            part.Text(place, text, Black, align);
        part.Part(place).Part(place).Fill(place, Black);
        HCanvas(picture).Fill({5, 5, 15, 15}, White);
        EXPECT_EQ(picture.Pixels, Blank(20, 20).Pixels);
    }
}

TEST_F(TCanvasTest, BreaksLines) {
    struct TRow {
        const char* Text;
        bool Wrap;
        /// Rows of 13 pixels that hold ink.
        const char* Inked;
    };
    static constexpr TRow rows[] = {{"aa bb cc", true, "110"},
                                    {"aa bb cc", false, "100"},
                                    {"a\r\n\r\nb", false, "101"},
                                    {"a\rb\nc", false, "111"},
                                    {"\xD6\xD0\xD6\xD0\xD6\xD0\xD6\xD0", true, "110"},
                                    {"aaaaaaaaa", true, "110"}};
    for (const TRow& row : rows) {
        TBitmap picture = Blank(30, 39);
        HCanvas(picture).Lines({0, 0, 30, 39}, row.Text, Black, row.Wrap);
        std::string inked;
        const std::string shown = Shown(picture);
        for (std::size_t i = 0; i < 3; ++i)
            inked += shown.substr(i * 13 * 31, 13 * 31).find('#') == std::string::npos ? '0' : '1';
        EXPECT_EQ(inked, row.Inked) << row.Text;
    }
}

}  // namespace rux::test
