// Pictures of windows and of the screen.
#include <limits>

#include "platform/Bitmap.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HLists.h"
#include "tests/support/EngineFixture.h"

namespace rux::test {

namespace {

constexpr const char* Samples = R"(object Form1: TForm1
  Left = 100 Top = 50 ClientWidth = 400 ClientHeight = 200 Caption = 'Samples'
  object Label: TLabel Left = 8 Top = 8 Width = 80 Height = 13 Caption = 'old' end
  object Speed: TSpeedButton Left = 8 Top = 30 Width = 80 Height = 22 Caption = 'old' GroupIndex = 1 AllowAllUp = True end
  object Panel: TPanel Left = 100 Top = 0 Width = 300 Height = 200
    object Button: TButton Left = 8 Top = 8 Width = 75 Height = 25 Caption = 'old' end
    object Check: TCheckBox Left = 8 Top = 40 Width = 75 Height = 17 Caption = 'old' end
    object Radio: TRadioButton Left = 8 Top = 60 Width = 75 Height = 17 Caption = 'old' end
    object Edit: TEdit Left = 8 Top = 80 Width = 75 Height = 21 Text = 'old' end
    object Memo: TMemo Left = 8 Top = 105 Width = 75 Height = 40 end
    object Combo: TComboBox Left = 100 Top = 8 Width = 75 Height = 21 Items.Strings = ('One' 'Two') end
    object List: TListBox Left = 100 Top = 40 Width = 75 Height = 60 Items.Strings = ('One' 'Two' 'Three') end
    object Third: TThirdParty Left = 100 Top = 110 Width = 75 Height = 25 Caption = 'old' end
    object Group: TGroupBox Left = 190 Top = 8 Width = 90 Height = 60 Caption = 'old' end
    object Fixed: TStaticText Left = 190 Top = 80 Width = 75 Height = 17 Caption = 'old' end
  end
end)";

class TPictureTest : public TEngineTest {
 protected:
    HDesktop& Screen() { return Desktop.Desktop(); }
    TBitmap Print(HWnd window) {
        TBitmap picture;
        EXPECT_TRUE(Screen().PrintWindow(window, picture));
        return picture;
    }
    TBitmap Copy(const TRect& place) {
        TBitmap picture;
        EXPECT_TRUE(Screen().CopyScreen(place, picture));
        return picture;
    }
    HWnd Native(const char* className, HWnd parent, const TRect& place, const char* text = "") {
        HCreateParams params;
        params.ClassName = className;
        params.Text = text;
        params.Style = WS_VISIBLE | (parent ? WS_CHILD : WS_POPUP);
        params.Parent = parent;
        params.Rect = place;
        return Screen().CreateWindowA(params);
    }
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

}  // namespace

TEST_F(TPictureTest, AChangeOfAControlShowsWithinIt) {
    HCustomForm& form = Load(Samples);
    std::vector<std::pair<const char*, std::function<void(HControl&)>>> rows;
    for (const char* name :
         {"Label", "Speed", "Button", "Check", "Radio", "Edit", "Memo", "Third", "Group", "Fixed", "Panel"})
        rows.emplace_back(name, [](HControl& c) { c.SetText("new"); });
    for (const char* name : {"Combo", "List"})
        rows.emplace_back(name, [](HControl& c) { dynamic_cast<HItemsControl&>(c).SetItemIndex(1); });
    rows.emplace_back("Check", [](HControl& c) { dynamic_cast<HCustomCheckBox&>(c).SetChecked(true); });
    rows.emplace_back(
        "Check", [](HControl& c) { dynamic_cast<HCustomCheckBox&>(c).SetState(HCheckBoxState::cbGrayed); });
    rows.emplace_back("Radio", [](HControl& c) { dynamic_cast<HRadioButton&>(c).SetChecked(true); });
    rows.emplace_back("Speed", [](HControl& c) { dynamic_cast<HSpeedButton&>(c).SetDown(true); });
    rows.emplace_back("Memo", [](HControl& c) { c.SetVisible(false); });
    for (const char* name : {"Label", "Button", "Check", "Radio", "Edit"})
        rows.emplace_back(name, [](HControl& c) { c.SetEnabled(false); });
    for (const auto& [name, change] : rows) {
        auto& control = dynamic_cast<HControl&>(*form.FindComponent(name));
        const TBitmap before = Print(form.Handle());
        change(control);
        const TRect changed = Difference(before, Print(form.Handle()));
        const TRect place = control.ScreenRect().MovedBy({-form.ScreenRect().Left, -form.ScreenRect().Top});
        EXPECT_LT(changed.Left, changed.Right) << name << " looks as before";
        EXPECT_TRUE(changed.Left >= place.Left && changed.Top >= place.Top && changed.Right <= place.Right &&
                    changed.Bottom <= place.Bottom)
            << name << ": " << changed.Left << "," << changed.Top << "," << changed.Right << ","
            << changed.Bottom;
    }
}

TEST_F(TPictureTest, ThePrintLacksWhatLiesOverTheWindowAndTheScreenHasIt) {
    HCustomForm& below = Load(Samples);
    const TRect place = below.ScreenRect();
    const TBitmap alone = Print(below.Handle());
    EXPECT_EQ(Copy(place).Pixels, alone.Pixels);
    const HWnd above = Native("Button", 0, {150, 90, 250, 120}, "above");
    EXPECT_EQ(Print(below.Handle()).Pixels, alone.Pixels);
    EXPECT_EQ(Difference(alone, Copy(place)), (TRect{150, 90, 250, 120}.MovedBy({-place.Left, -place.Top})));
    EXPECT_EQ(Print(above).Pixels, Copy({150, 90, 250, 120}).Pixels);
    // What is hidden is drawn all the same.
    Screen().SetWindowVisible(above, false);
    EXPECT_EQ(Copy(place).Pixels, alone.Pixels);
    Screen().SetWindowVisible(below.Handle(), false);
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
    // Siblings: the later one lies above.
    const HWnd over = Native("#32770", parent, {12, 12, 40, 40});
    EXPECT_EQ(Print(parent).At(20, 20), Print(over).At(5, 5));
}

TEST_F(TPictureTest, RefusesWhatHasNoPicture) {
    const TBitmap untouched{1, 1, {{1, 2, 3}}};
    TBitmap picture = untouched;
    constexpr int low = std::numeric_limits<int>::min(), high = std::numeric_limits<int>::max();
    HCustomForm& form = Load("object Form1: TForm1 Width = 32768 Height = 32768 Caption = 'x' end");
    EXPECT_FALSE(Screen().PrintWindow(form.Handle(), picture));
    form.SetBounds({10, 10, 10, 50});
    for (const HWnd window : {form.Handle(), HWnd{0}, HWnd{12345}})
        EXPECT_FALSE(Screen().PrintWindow(window, picture));
    for (const TRect& place : {TRect{}, TRect{5, 5, 5, 9}, TRect{9, 9, 3, 3}, TRect{low, low, high, high},
                               TRect{0, 0, 8193, 8192}, TRect{high, high, low, low}})
        EXPECT_FALSE(Screen().CopyScreen(place, picture));
    EXPECT_EQ(picture.Pixels, untouched.Pixels);
    for (const TRect& place : {TRect{low, low, low + 3, low + 3}, TRect{high - 3, high - 3, high, high}})
        EXPECT_EQ(Copy(place).Pixels, std::vector<TColor>(9));
}

TEST_F(TPictureTest, SurvivesWhatAFormFileMayClaim) {
    HCustomForm& form = Load(R"(object Form1: TForm1 ClientWidth = 300 ClientHeight = 200 Caption = 'x'
  object Grid: TStringGrid Width = 90 Height = 90 ColCount = 2147483647 RowCount = -2147483647
    DefaultColWidth = 2147483647 FixedCols = 2147483647 FixedRows = -5 end
  object Gauge: TGauge Left = 90 Width = 90 Height = 20 MinValue = 2147483647 MaxValue = -2147483647 end
  object Track: TTrackBar Left = 90 Top = 30 Width = 90 Height = 20 Max = -5 Position = 2147483647 end
  object Bar: TStatusBar Top = 180 Width = 300 Height = 19 Panels = <item Width = -5 end item Width = 2147483647 end> end
  object Flat: TPageControl Left = 180 Width = 1 Height = 1 object Page: TTabSheet Caption = 'x' end end
  object Tall: TImage Left = -32768 Top = -32768 Width = 32768 Height = 32770 end
  object List: TListBox Left = 180 Top = 50 Width = 90 Height = 40 Color = 16777215 end
end)");
    const TBitmap picture = Print(form.Handle());
    EXPECT_EQ(picture.At(200, 100), (TColor{255, 255, 255}));
}

TEST_F(TPictureTest, DeepAndCrowdedWindowsComeToAnEnd) {
    const HWnd top = Native("#32770", 0, {0, 0, 800, 600});
    HWnd deep = top;
    for (int i = 0; i < 5000; ++i) deep = Native("#32770", deep, {0, 0, 800 - i / 10, 600});
    Native("Edit", deep, {2, 2, 100, 100});
    EXPECT_EQ(Print(top).At(50, 50), (TColor{255, 255, 255}));
    for (int i = 0; i < 5000; ++i) Native("Edit", top, {i % 700, i % 500, 800, 600});
    EXPECT_EQ(Print(top).Width, 800);
}

}  // namespace rux::test
