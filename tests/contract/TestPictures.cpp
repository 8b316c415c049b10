// Pictures of windows and of the screen, as every platform takes them.
#include <algorithm>

#include "WindowContract.h"

namespace rux::test {

namespace {

constexpr TColor Red{255, 0, 0}, Blue{0, 0, 255}, Black{};

int Count(const TBitmap& picture, TColor color) {
    return static_cast<int>(std::count(picture.Pixels.begin(), picture.Pixels.end(), color));
}

bool IsLarge(const TBitmap& picture, int width, int height) {
    return picture.Width == width && picture.Height == height &&
           picture.Pixels.size() == static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

}  // namespace

TEST_P(WindowContract, PicturesOfWindowsAndOfTheScreen) {
    // An odd width: the rows are not whole words.
    const TRect place{200, 150, 275, 190};
    const HWnd window = Make({"Painted", "", Popup | Visible, 0, place});
    Make({"Painted", "", Popup | Visible, 0, place.MovedBy({50, 20})});
    Stage->Pump();
    TBitmap picture;
    ASSERT_TRUE(Windows.PrintWindow(window, picture) && IsLarge(picture, 75, 40));
    EXPECT_TRUE(Count(picture, Red) == 37 * 40 && Count(picture, Blue) == 38 * 40);
    EXPECT_TRUE(picture.At(0, 0) == Red && picture.At(36, 39) == Red && picture.At(37, 39) == Blue);
    // On the screen the other one lies over it.
    ASSERT_TRUE(Windows.CopyScreen(place, picture) && IsLarge(picture, 75, 40));
    EXPECT_TRUE(Count(picture, Red) == 37 * 40 + 25 * 20 && picture.At(50, 20) == Red);
    EXPECT_TRUE(picture.At(50, 19) == Blue && picture.At(49, 39) == Blue && picture.At(74, 39) == Red);

    ASSERT_TRUE(Windows.CopyScreen({-30, -20, 10, 15}, picture) && IsLarge(picture, 40, 35));
    for (int x = 0; x < 40; ++x)
        EXPECT_TRUE(picture.At(x, 19) == Black && (x >= 30 || picture.At(x, 34) == Black)) << x;
    ASSERT_TRUE(Windows.CopyScreen({100'000, 100'000, 100'003, 100'002}, picture));
    EXPECT_EQ(Count(picture, Black), 6);

    const HWnd empty = Make({"Plain", "", Popup, 0, {10, 10, 10, 10}});
    EXPECT_FALSE(Windows.PrintWindow(0, picture) || Windows.PrintWindow(0x7FFFFFFE, picture) ||
                 Windows.PrintWindow(empty, picture) || Windows.CopyScreen({5, 5, 5, 9}, picture) ||
                 Windows.CopyScreen({5, 5, 1, 1}, picture) ||
                 Windows.CopyScreen({0, 0, 8193, 8192}, picture));
    EXPECT_EQ(Count(picture, Black), 6);
}

TEST_P(WindowContract, ButtonsDrawThemselvesAndHiddenWindowsHaveTheirSize) {
    const HWnd dialog = Make({"#32770", "", Popup | Visible, 0, {300, 300, 420, 380}});
    const HWnd button = Make({"Button", "OK", Child, dialog, {10, 10, 81, 35}});
    Stage->Pump();
    TBitmap picture;
    ASSERT_TRUE(Windows.PrintWindow(button, picture) && IsLarge(picture, 71, 25));
    EXPECT_LT(Count(picture, picture.At(20, 5)), 71 * 25 - 40);  // an edge, and letters
    ASSERT_TRUE(Windows.PrintWindow(Make({"Plain", ""}), picture) && IsLarge(picture, 200, 150));
}

}  // namespace rux::test
