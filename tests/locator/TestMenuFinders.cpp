// Menus in a search: what is listed, in which order, and where it is said to be.
#include "LocatorTestSupport.h"

namespace rux::test {

namespace {

constexpr std::string_view FormText =
    R"(object Main: TForm Left = 100 Top = 200 Width = 501 Height = 301 BorderStyle = bsNone PopupMenu = pop
  object edt: TEdit Left = 10 Top = 10 Width = 50 Height = 20 PopupMenu = pop end
  object pop: TPopupMenu
    object one: TMenuItem Caption = '复制' end
    object line: TMenuItem Caption = '-' object behind: TMenuItem Caption = '线后' end end
    object sub: TMenuItem Caption = '更多'
      object deep: TMenuItem Caption = '复制' end
      object dim: TMenuItem Caption = '灰' Enabled = False end
    end
    object unseen: TMenuItem Visible = False object under: TMenuItem Caption = '看不见' end end
    object hinted: TMenuItem Hint = '提示' end
    object nothing: TMenuItem end
  end
  object bar: TMainMenu object top: TMenuItem Caption = '文件' end end
end)";

}  // namespace

TEST_F(TLocatorTest, MenusAreSearchedClosed) {
    Load(FormText);
    const std::pair<const char*, const char*> rows[] = {
        // Once, before the controls, though two have it; a form's main menu is not looked at.
        {"", "Main pop one sub deep dim hinted nothing edt "},
        {"复制", "one deep "},
        {"更多/复制", "deep "},
        {"pop/?TMenuItem", "one sub deep dim hinted nothing "},
        {"灰?PopupMenu", "dim "},
        {"提示", "hinted "},
        {"TMenuItem", "nothing "},
        {"nothing", ""},
        {"看不见", ""},
        {"线后", ""},
        {"文件", ""},
        // The later item of a level comes first. This is kept: scripts count so.
        {"复制#1", "one "},
        {"复制#$", "deep "},
        {"pop/#1", "nothing "},
        {"pop/#2", "hinted "},
        {"pop/#3", "sub "},
    };
    for (const auto& [locator, expected] : rows) EXPECT_EQ(Locate(locator), expected) << locator;

    const auto boundsOf = [&](std::string_view name) {
        TSolviLocatorParser parser(&Kit().Application(), false);
        return parser.Locate(Ansi(name))->GetItem(0)->GetBounds();
    };
    EXPECT_EQ(boundsOf("更多"), (TRect{350, 30, 360, 20}));
}

}  // namespace rux::test
