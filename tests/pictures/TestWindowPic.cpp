// Pictures as the agent saves them: names, files, failures.
#include <csetjmp>
#include <cstdio>
#include <fstream>
#include <set>

// Wants the standard files declared before it.
#include <jpeglib.h>

#include "Engine/TaskCenter/RUXJpeg.h"
#include "Engine/TaskCenter/RUXWindowPic.h"
#include "tests/support/EngineFixture.h"

namespace rux::test {

namespace {

TBitmap Decoded(const std::string& bytes) {
    jpeg_decompress_struct jpeg{};
    jpeg_error_mgr errors{};
    TBitmap picture;
    jpeg.err = jpeg_std_error(&errors);
    // A file that is none ends the test program.
    jpeg_create_decompress(&jpeg);
    jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
    jpeg_read_header(&jpeg, TRUE);
    jpeg_start_decompress(&jpeg);
    picture.Width = static_cast<int>(jpeg.output_width);
    picture.Height = static_cast<int>(jpeg.output_height);
    picture.Pixels.resize(std::size_t{jpeg.output_width} * jpeg.output_height);
    while (jpeg.output_scanline < jpeg.output_height) {
        auto* row = reinterpret_cast<JSAMPLE*>(
            &picture.Pixels[std::size_t{jpeg.output_scanline} * jpeg.output_width]);
        jpeg_read_scanlines(&jpeg, &row, 1);
    }
    jpeg_finish_decompress(&jpeg);
    jpeg_destroy_decompress(&jpeg);
    return picture;
}

/// Mean difference of a channel; 255 for pictures of different sizes.
double Distance(const TBitmap& a, const TBitmap& b) {
    if (a.Width != b.Width || a.Height != b.Height || a.Empty()) return 255;
    double sum = 0;
    for (std::size_t i = 0; i < a.Pixels.size(); ++i)
        sum += std::abs(a.Pixels[i].Red - b.Pixels[i].Red) + std::abs(a.Pixels[i].Green - b.Pixels[i].Green) +
               std::abs(a.Pixels[i].Blue - b.Pixels[i].Blue);
    return sum / (3.0 * static_cast<double>(a.Pixels.size()));
}

class TWindowPicTest : public TEngineTest {
 protected:
    TWindowPicTest() { std::filesystem::current_path(Folder()); }
    ~TWindowPicTest() override { std::filesystem::current_path(FBefore); }

    void Save(HWnd window, const std::string& name) {
        SaveWindowPic(window, NameFromSystem((Folder() / name).string()));
    }
    TBitmap Saved(const std::string& name) {
        std::ifstream file(Folder() / name, std::ios::binary);
        return Decoded({std::istreambuf_iterator<char>(file), {}});
    }

 private:
    const std::filesystem::path FBefore = std::filesystem::current_path();
};

constexpr const char* Sample =
    "object Form1: TForm1 Width = 200 Height = 100 Caption = 'Sample' "
    "object B: TButton Left = 8 Top = 8 Width = 75 Height = 25 Caption = 'OK' end end";

}  // namespace

TEST_F(TWindowPicTest, NamesWhatFilesCanBeCalled) {
    for (const char* file : {"x_u.jpg", "y_u.jpg", "y_u_1_1.jpg", "y_u_1_2.jpg", "z_u_1_1.jpg"})
        std::ofstream(Folder() / file) << "here";
    struct TRow {
        const char *Caption, *Url, *Name;
    };
    static constexpr TRow rows[] = {
        {"Error", "/a/Click?b=1", "Error__a_Click_b=1.jpg"},
        {"a:b|c<d>e*f\"g\\h", "", "a_b_c_d_e_f_g_h_.jpg"},
        // Trail bytes that look like a backslash and a bar.
        {"\xD5\x5C\xD5\x7C|", "u", "\xD5\x5C\xD5\x7C__u.jpg"},
        {"x", "u", "x_u_1_1.jpg"},
        {"y", "u", "y_u_1_3.jpg"},
        {"z", "u", "z_u.jpg"},
    };
    for (const TRow& row : rows) EXPECT_EQ(BuildWindowPicName(row.Url, row.Caption), row.Name);
}

TEST_F(TWindowPicTest, SavesWhatTheWindowShows) {
    HDesktop& screen = Desktop.Desktop();
    HCustomForm& form = Load(Sample);
    TBitmap printed, copied;
    ASSERT_TRUE(screen.PrintWindow(form.Handle(), printed));
    HCreateParams params;
    params.ClassName = "Edit";
    params.Style = WS_POPUP | WS_VISIBLE;
    params.Rect = form.ScreenRect();
    params.Rect.Left += 50;
    screen.CreateWindowA(params);
    ASSERT_TRUE(screen.CopyScreen(form.ScreenRect(), copied));
    Save(form.Handle(), "a.jpg");
    EXPECT_LT(Distance(Saved("a.jpg"), printed), 4);
    EXPECT_GT(Distance(printed, copied), 20);
    // Without the operation in the system the screen is copied.
    Desktop.CodeSpace().RemoveExport("user32.dll", "PrintWindow");
    Save(form.Handle(), "b.jpg");
    EXPECT_LT(Distance(Saved("b.jpg"), copied), 4);
    EXPECT_EQ(Log(), "no log");
}

TEST_F(TWindowPicTest, FailuresAreAWarning) {
    HCustomForm& form = Load(Sample);
    Save(form.Handle(), "missing/a.jpg");
    EXPECT_EQ(Log(), "no log") << "without the folder nothing happens";
    const std::string longName = std::string(300, 'n') + ".jpg";
    Save(form.Handle(), longName);
    const std::string refused = "warn - Picture of a window not saved: Cannot create file \"" +
                                NameFromSystem((Folder() / longName).string()) + "\"\r\n";
    EXPECT_EQ(Log(), refused);
    Save(0, "a.jpg");
    Save(12345, "a.jpg");
    const std::string nothing = "warn - Picture of a window not saved: The window has no picture\r\n";
    EXPECT_EQ(Log(), refused + nothing + nothing);
    EXPECT_FALSE(std::filesystem::exists(Folder() / "a.jpg"));
    // Too wide for a JPEG, so the bitmap stays.
    Desktop.Desktop().MoveWindow(form.Handle(), {0, 0, 65535, 100});
    Save(form.Handle(), "wide.jpg");
    EXPECT_EQ(std::filesystem::file_size(Folder() / "wide.jpg"), 54u + (65535u * 3 + 3) * 100);
    EXPECT_NE(Log(), refused + nothing + nothing);
}

TEST(Jpeg, WritesBitmapFilesAndRefusesWhatIsNoPicture) {
    const TBitmap picture{1, 2, {{1, 2, 3}, {4, 5, 6}}};
    const std::string bytes = BitmapFileBytes(picture);
    std::string expected{'B', 'M', 62, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,  40,
                         0,   0,   0,  1, 0, 0, 0, 2, 0, 0, 0,  1, 0, 24, 0};
    expected += std::string(24, '\0') + std::string{6, 5, 4, 0, 3, 2, 1, 0};
    EXPECT_EQ(bytes, expected);
    EXPECT_THROW(JpegFileBytes({}), EInvalidGraphic);
    EXPECT_THROW(JpegFileBytes({65501, 1, std::vector<TColor>(65501)}), EInvalidGraphic);
    // More bytes than the first piece of memory takes.
    TBitmap noise{600, 600, std::vector<TColor>(360000)};
    for (std::size_t i = 0; i < noise.Pixels.size(); ++i) {
        const auto part = static_cast<std::uint8_t>((i * 2654435761u) >> 24);
        noise.Pixels[i] = {part, part, part};
    }
    const std::string large = JpegFileBytes(noise);
    EXPECT_GT(large.size(), std::size_t{1} << 17);
    EXPECT_LT(Distance(Decoded(large), noise), 12);
}

}  // namespace rux::test
