// Drawing, pictures of windows and of the screen, and as the agent saves them: names, files, failures.
#include <fstream>
#include <functional>

#include "Engine/TaskCenter/RUXJpeg.h"
#include "Engine/TaskCenter/RUXWindowPic.h"
#include "platform/headless/drawing/HCanvas.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HItems.h"
#include "platform/headless/toolkit/HListView.h"
#include "tests/support/EngineFixture.h"
#include "tests/support/Jpeg.h"

namespace rux::test {

namespace {

constexpr TColor Black{0, 0, 0}, White{255, 255, 255};
constexpr int Low = std::numeric_limits<int>::min(), High = std::numeric_limits<int>::max();

/// A form with a control of each kind, all of one size; those behind the panel stand on it.
std::string Samples() {
    std::string form = "object Form1: TForm1 Left = 100 Top = 50 ClientWidth = 460 ClientHeight = 320";
    int place = 0;
    for (const std::string control :
         {"Label: TLabel", "Speed: TSpeedButton GroupIndex = 1 AllowAllUp = True", "Panel: TPanel",
          "Button: TButton", "Check: TCheckBox", "Radio: TRadioButton", "Edit: TEdit", "Memo: TMemo",
          "Combo: TComboBox Items.Strings = ('One' 'Two')", "List: TListBox Items.Strings = ('One' 'Two')",
          "Third: TThirdParty", "Group: TGroupBox", "Fixed: TStaticText"}) {
        form += " object " + control + " Left = " + std::to_string(place % 4 * 76) +
                " Top = " + std::to_string(place / 4 * 35) + " Caption = 'old' " +
                (control == "Panel: TPanel" ? "Width = 300 Height = 300" : "Width = 75 Height = 25 end");
        ++place;
    }
    return form + " end end";
}

/// What a form file may claim.
constexpr const char* Hostile = R"(object Form1: TForm1 ClientWidth = 300 ClientHeight = 200 Caption = 'x'
  object Grid: TStringGrid Width = 90 Height = 90 ColCount = 2147483647 RowCount = -2147483647
    DefaultColWidth = 2147483647 FixedCols = 2147483647 FixedRows = -5 end
  object Gauge: TGauge Left = 90 Width = 90 Height = 20 MinValue = 2147483647 MaxValue = -2147483647 end
  object Track: TTrackBar Left = 90 Top = 30 Width = 90 Height = 20 Max = -5 Position = 2147483647 end
  object Bar: TStatusBar Top = 180 Width = 300 Height = 19 Panels = <item Width = -5 end item Width = 2147483647 end> end
  object Flat: TPageControl Left = 180 Width = 1 Height = 1 object Page: TTabSheet Caption = 'x' end end
  object Tall: TImage Left = -32768 Top = -32768 Width = 32768 Height = 32770 end
  object List: TListBox Left = 180 Top = 50 Width = 90 Height = 40 Color = 16777215 end
end)";

class TPictureTest : public TEngineTest {
 protected:
    TPictureTest() {
        std::filesystem::current_path(Folder());
        ::setenv("RUX_BITMAP_FONT", "", 1);
    }
    ~TPictureTest() override {
        std::filesystem::current_path(FBefore);
        ::unsetenv("RUX_BITMAP_FONT");
    }

    TBitmap Print(HWnd window) {
        TBitmap picture;
        EXPECT_TRUE(Screen.PrintWindow(window, picture));
        return picture;
    }
    TBitmap Copy(const TRect& place) {
        TBitmap picture;
        EXPECT_TRUE(Screen.CopyScreen(place, picture));
        return picture;
    }
    HWnd Native(const char* className, HWnd parent, const TRect& place) {
        const std::uint32_t style = WS_VISIBLE | (parent ? WS_CHILD : WS_POPUP);
        return Screen.CreateWindowA({className, "", style, 0, parent, place, {}, 0, nullptr, nullptr});
    }
    void Save(HWnd window, const std::string& name) {
        SaveWindowPic(window, NameFromSystem((Folder() / name).string()));
    }

    void UseFontOf(const std::string& lines) {
        const std::filesystem::path file = Folder() / "font";
        std::ofstream(file) << lines;
        ::setenv("RUX_BITMAP_FONT", "", 1);
        Drawn(2, 1, "\xD6\xD0");  // the last file is forgotten
        ::setenv("RUX_BITMAP_FONT", file.c_str(), 1);
    }
    static TBitmap Blank(int width, int height) {
        return {width, height, std::vector<TColor>(static_cast<std::size_t>(width * height), White)};
    }
    /// A row of characters for each row of pixels: '#' is black, '.' white, '+' between.
    static std::string Shown(const TBitmap& picture) {
        std::string rows;
        for (int i = 0; i < picture.Width * picture.Height; ++i) {
            const TColor& pixel = picture.Pixels[static_cast<std::size_t>(i)];
            rows += pixel == Black ? '#' : pixel == White ? '.' : '+';
            if ((i + 1) % picture.Width == 0) rows += '\n';
        }
        return rows;
    }
    static std::string Drawn(int width, int height, const std::string& text) {
        TBitmap picture = Blank(width, height);
        HCanvas(picture).Text({0, 0, width, height}, text, Black);
        return Shown(picture);
    }

    HDesktop& Screen = Desktop.Desktop();

 private:
    const std::filesystem::path FBefore = std::filesystem::current_path();
};

/// The smallest rectangle that holds all pixels in which two pictures of one size differ.
TRect Difference(const TBitmap& a, const TBitmap& b) {
    TRect found{a.Width, a.Height, 0, 0};
    for (int y = 0; y < a.Height; ++y)
        for (int x = 0; x < a.Width; ++x)
            if (a.At(x, y) != b.At(x, y))
                found = {std::min(found.Left, x), std::min(found.Top, y), std::max(found.Right, x + 1),
                         std::max(found.Bottom, y + 1)};
    return found;
}

/// Mean difference of a channel; 255 for pictures of different sizes.
double Distance(const TBitmap& a, const TBitmap& b) {
    if (a.Width != b.Width || a.Height != b.Height || a.Empty()) return 255;
    double sum = 0;
    for (std::size_t i = 0; i < a.Pixels.size(); ++i)
        for (const auto channel : {&TColor::Red, &TColor::Green, &TColor::Blue})
            sum += std::abs(a.Pixels[i].*channel - b.Pixels[i].*channel);
    return sum / (3.0 * static_cast<double>(a.Pixels.size()));
}

}  // namespace

TEST_F(TPictureTest, DrawsLettersAndBoxesForWhatNoFontHas) {
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

TEST_F(TPictureTest, TakesOtherCharactersFromTheFontFile) {
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
    ::setenv("RUX_BITMAP_FONT", Folder().c_str(), 1);
    EXPECT_EQ(Drawn(12, 12, "\xD6\xD0"), box) << "a folder is no font";
}

TEST_F(TPictureTest, KeepsWithinItsPlace) {
    const std::string text = "W\xD6\xD0 ww\r\n" + std::string(5000, 'm');
    for (const TRect& place :
         {TRect{Low, Low, High, High}, TRect{High, High, Low, Low}, TRect{5, 5, 4, 4},
          TRect{Low, Low, Low, Low}, TRect{High - 1, 0, High, 9}, TRect{-3, -3, 40, 40}}) {
        TBitmap picture = Blank(20, 20);
        HCanvas part = HCanvas(picture).Part({5, 5, 15, 15});
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

TEST_F(TPictureTest, BreaksLines) {
    std::string inked;  // of three lines of 13 pixels those that hold ink, as they stand and wrapped
    for (const char* text :
         {"aa bb cc", "a\r\n\r\nb", "a\rb\nc", "aaaaaaaaa", "\xD6\xD0\xD6\xD0\xD6\xD0\xD6\xD0"})
        for (const bool wrap : {false, true}) {
            TBitmap picture = Blank(30, 39);
            HCanvas(picture).Lines({0, 0, 30, 39}, text, Black, wrap);
            const std::string shown = Shown(picture);
            for (std::size_t line = 0; line < shown.size(); line += 13 * 31)
                inked += shown.substr(line, 13 * 31).find('#') == std::string::npos ? '0' : '1';
            inked += wrap ? '\n' : ' ';
        }
    EXPECT_EQ(inked, "100 110\n101 101\n111 111\n100 110\n100 110\n");
}

TEST_F(TPictureTest, AChangeOfAControlShowsWithinIt) {
    const std::pair<const char*, std::function<void(HControl&)>> rows[] = {
        {"Label Speed Button Check Radio Edit Memo Third Group Fixed Panel",
         [](HControl& c) { c.SetText("new"); }},
        {"Combo List", [](HControl& c) { dynamic_cast<HItemsControl&>(c).SetItemIndex(1); }},
        {"Check", [](HControl& c) { dynamic_cast<HCustomCheckBox&>(c).SetChecked(true); }},
        {"Check", [](HControl& c) { dynamic_cast<HCustomCheckBox&>(c).SetState(HCheckBoxState::cbGrayed); }},
        {"Radio", [](HControl& c) { dynamic_cast<HRadioButton&>(c).SetChecked(true); }},
        {"Speed", [](HControl& c) { dynamic_cast<HSpeedButton&>(c).SetDown(true); }},
        {"Memo", [](HControl& c) { c.SetVisible(false); }},
        {"Label Button Check Radio Edit", [](HControl& c) { c.SetEnabled(false); }}};
    HCustomForm& form = Load(Samples());
    for (const auto& [names, change] : rows) {
        std::istringstream each(names);
        for (std::string name; each >> name;) {
            auto& control = dynamic_cast<HControl&>(*form.FindComponent(name));
            const TBitmap before = Print(form.Handle());
            change(control);
            const TRect r = Difference(before, Print(form.Handle()));
            const TRect place =
                control.ScreenRect().MovedBy({-form.ScreenRect().Left, -form.ScreenRect().Top});
            EXPECT_TRUE(r.Left < r.Right && place.Contains({r.Left, r.Top}) &&
                        place.Contains({r.Right - 1, r.Bottom - 1}))
                << name << " changes at " << r.Left << "," << r.Top << "," << r.Right << "," << r.Bottom;
        }
    }
}

TEST_F(TPictureTest, AReportMarksRowsAndAlignsColumns) {
    HCustomForm& form = Load(R"(object Form1: TForm1 ClientWidth = 300 ClientHeight = 200
      object V: TListView Width = 200 Height = 100 BorderStyle = bsNone ViewStyle = vsReport
        HideSelection = False RowSelect = True Checkboxes = True
        Columns = <item Width = 60 end item Width = 100 Alignment = taRightJustify end> end end)");
    auto& view = dynamic_cast<HCustomListView&>(*form.FindComponent("V"));
    HListItem& item = view.AddItem("");
    const int top = item.DisplayRect(TDisplayCode::Bounds).Top;
    const auto changes = [&](const std::function<void()>& change) {
        const TBitmap before = Print(view.Handle());
        change();
        return Difference(before, Print(view.Handle()));
    };
    EXPECT_GT(changes([&] { item.SubItems().SetLines({"y"}); }).Left, 140);
    // The tick is that of a check box.
    EXPECT_EQ(changes([&] { item.SetChecked(true); }), (TRect{4, top + 4, 11, top + 11}));
    EXPECT_EQ(changes([&] { item.SetSelected(true); }), (TRect{16, top, 160, top + 16}));
}

TEST_F(TPictureTest, ThePrintLacksWhatLiesOverTheWindowAndTheScreenHasIt) {
    HCustomForm& below = Load(Samples());
    const TRect place = below.ScreenRect(), over{150, 60, 540, 360};
    const TBitmap alone = Print(below.Handle());
    EXPECT_EQ(Copy(place).Pixels, alone.Pixels);
    const HWnd above = Native("Edit", 0, over);
    EXPECT_EQ(Print(below.Handle()).Pixels, alone.Pixels);
    const TBitmap both = Copy(place);
    EXPECT_EQ(Difference(alone, both), over.MovedBy({-place.Left, -place.Top}));
    // Saved is the print, and the copy where the system lacks the operation.
    Save(below.Handle(), "a.jpg");
    Desktop.CodeSpace().RemoveExport("user32.dll", "PrintWindow");
    Save(below.Handle(), "b.jpg");
    const auto saved = [&](const char* name) {
        return DecodedJpeg(Files.ReadFile(NameFromSystem((Folder() / name).string())).value());
    };
    EXPECT_GT(Distance(alone, both), 20);
    EXPECT_LT(Distance(saved("a.jpg"), alone), 4);
    EXPECT_LT(Distance(saved("b.jpg"), both), 4);
    EXPECT_EQ(Log(), "no log");
    // What is hidden is drawn all the same.
    Screen.SetWindowVisible(above, false);
    EXPECT_EQ(Copy(place).Pixels, alone.Pixels);
    Screen.SetWindowVisible(below.Handle(), false);
    EXPECT_EQ(Print(below.Handle()).At(5, 40), alone.At(5, 40));
    // Inactive now, so its caption may differ; the screen shows the desktop.
    EXPECT_EQ(Copy({-2, -2, 2, 2}).At(3, 3), Copy(place).At(10, 10));
    EXPECT_EQ(Copy({-2, -2, 2, 2}).At(1, 3), TColor{});
}

TEST_F(TPictureTest, AWindowIsCutByWhatItStandsOn) {
    const HWnd parent = Native("#32770", 0, {0, 0, 40, 40});
    const HWnd middle = Native("#32770", parent, {10, 10, 30, 30});
    const TBitmap before = Print(parent);
    const HWnd edit = Native("Edit", middle, {5, 5, 100, 100});
    EXPECT_EQ(Difference(before, Print(parent)), (TRect{15, 15, 30, 30}));
    EXPECT_EQ(Print(edit).Width, 95) << "its own picture is whole";
    // Siblings: a new one lies below the others.
    const HWnd over = Native("#32770", parent, {12, 12, 40, 40});
    EXPECT_NE(Print(parent).At(20, 20), Print(over).At(5, 5));
    Screen.SetWindowOrder(over, 1);
    EXPECT_EQ(Print(parent).At(20, 20), Print(over).At(5, 5));
}

TEST_F(TPictureTest, HostileSizesAreRefusedOrComeToAnEnd) {
    const TBitmap untouched{1, 1, {{1, 2, 3}}};
    TBitmap picture = untouched;
    HCustomForm& form = Load("object Form1: TForm1 Width = 32768 Height = 32768 Caption = 'x' end");
    EXPECT_FALSE(Screen.PrintWindow(form.Handle(), picture));
    form.SetBounds({10, 10, 10, 50});
    EXPECT_FALSE(Screen.PrintWindow(form.Handle(), picture));
    for (const TRect& place : {TRect{Low, Low, High, High}, TRect{High, High, Low, Low}})
        EXPECT_FALSE(Screen.CopyScreen(place, picture));
    EXPECT_EQ(picture.Pixels, untouched.Pixels);
    for (const TRect& place : {TRect{Low, Low, Low + 3, Low + 3}, TRect{High - 3, High - 3, High, High}})
        EXPECT_EQ(Copy(place).Pixels, std::vector<TColor>(9));
    EXPECT_EQ(Print(Load(Hostile).Handle()).At(200, 100), White);

    const HWnd top = Native("#32770", 0, {0, 0, 800, 600});
    HWnd deep = top;
    for (int i = 0; i < 5000; ++i) deep = Native("#32770", deep, {0, 0, 800 - i / 10, 600});
    Native("Edit", deep, {2, 2, 100, 100});
    EXPECT_EQ(Print(top).At(50, 50), White);
    for (int i = 0; i < 5000; ++i) Native("Edit", top, {i % 700, i % 500, 800, 600});
    EXPECT_EQ(Print(top).Width, 800);
}

TEST_F(TPictureTest, NamesWhatFilesCanBeCalled) {
    for (const char* file : {"x_u.jpg", "y_u.jpg", "y_u_1_1.jpg", "y_u_1_2.jpg", "z_u_1_1.jpg"})
        std::ofstream(Folder() / file) << "here";
    static constexpr const char* rows[][3] = {
        {"Error", "/a/Click?b=1", "Error__a_Click_b=1.jpg"},
        {"a:b|c<d>e*f\"g\\h", "", "a_b_c_d_e_f_g_h_.jpg"},
        // Trail bytes that look like a backslash and a bar.
        {"\xD5\x5C\xD5\x7C|", "u", "\xD5\x5C\xD5\x7C__u.jpg"},
        {"x", "u", "x_u_1_1.jpg"},
        {"y", "u", "y_u_1_3.jpg"},
        {"z", "u", "z_u.jpg"},
    };
    for (const auto& [caption, url, name] : rows) EXPECT_EQ(BuildWindowPicName(url, caption), name);
}

TEST_F(TPictureTest, FailuresToSaveAreAWarning) {
    const HWnd window = Native("Edit", 0, {0, 0, 200, 100});
    const std::string longName = std::string(300, 'n') + ".jpg";
    Save(window, "missing/a.jpg");  // without the folder nothing happens
    for (const HWnd nothing : {HWnd{0}, HWnd{12345}}) Save(nothing, "a.jpg");
    Save(window, longName);
    // Too wide for a JPEG, so the bitmap stays.
    Screen.MoveWindow(window, {0, 0, 65535, 100});
    Save(window, "wide.jpg");
    const std::string warning = "warn - Picture of a window not saved: ";
    const std::string nothing = warning + "The window has no picture\r\n";
    EXPECT_EQ(Log(), nothing + nothing + warning + "Cannot create file \"" +
                         NameFromSystem((Folder() / longName).string()) + "\"\r\n" + warning +
                         "Maximum supported image dimension is 65500 pixels\r\n");
    EXPECT_FALSE(std::filesystem::exists(Folder() / "a.jpg"));
    EXPECT_EQ(std::filesystem::file_size(Folder() / "wide.jpg"), 54u + (65535u * 3 + 3) * 100);
}

TEST_F(TPictureTest, FilesOfBitmapsAndJpegs) {
    std::string expected{'B', 'M', 62, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,  40,
                         0,   0,   0,  1, 0, 0, 0, 2, 0, 0, 0,  1, 0, 24, 0};
    expected += std::string(24, '\0') + std::string{6, 5, 4, 0, 3, 2, 1, 0};
    EXPECT_EQ(BitmapFileBytes({1, 2, {{1, 2, 3}, {4, 5, 6}}}), expected);
    EXPECT_THROW(JpegFileBytes({}), EInvalidGraphic);
    EXPECT_THROW(JpegFileBytes({65501, 1, std::vector<TColor>(65501)}), EInvalidGraphic);
    // More bytes than the first piece of memory takes.
    TBitmap noise{600, 600, {}};
    for (unsigned i = 0; i < 360000; ++i) {
        const auto part = static_cast<std::uint8_t>((i * 2654435761u) >> 24);
        noise.Pixels.push_back({part, part, part});
    }
    const std::string large = JpegFileBytes(noise);
    EXPECT_GT(large.size(), std::size_t{1} << 17);
    EXPECT_LT(Distance(DecodedJpeg(large), noise), 12);
}

}  // namespace rux::test
