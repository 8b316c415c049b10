// Menus without windows: keys, checks, popping up.
#include <gtest/gtest.h>

#include "DesktopStage.h"

namespace rux::test {

TEST(Menus, KeysReachTheirItems) {
    PlayAll(R"(
form Menu = M E:TEdit ~KeyDown PopupMenu = P end M:TMainMenu File:TMenuItem ~Click S:TMenuItem ShortCut =
    16467 ~Click end end Off:TMenuItem Enabled = False Deep:TMenuItem ShortCut = 16468 ~Click end end
    Alt:TMenuItem ShortCut = 32883 ~Click end end P:TPopupMenu C:TMenuItem ShortCut = 16451 AutoCheck = True
    ~Click end end
# The items above are clicked first; a key of a disabled branch is used up.
keydown 17; key 83; key 67; get C.Checked; key 84; key 90; keyup 17 => E.KeyDown; File.Click; S.Click; C.Click;
    C.Checked=True; E.KeyDown
key 83; keydown 18; key 115; keyup 18 => E.KeyDown; E.KeyDown; Alt.Click
form Menu = M E:TEdit end M:TMainMenu File:TMenuItem OnClick = Die S:TMenuItem ShortCut = 16467 ~Click end end
    end
Die: say open; free File >> keydown 17; key 83; key 83; keyup 17 => File.Click; open)");
}

TEST(Menus, ChecksAndPopups) {
    PlayAll(R"(
form PopupMenu = N P:TPanel@0,0,90,90 PopupMenu = M end N:TPopupMenu ~Popup end M:TPopupMenu AutoPopup = False
    ~Popup A:TMenuItem RadioItem = True GroupIndex = 1 Checked = True end B:TMenuItem RadioItem = True
    GroupIndex = 1 end C:TMenuItem RadioItem = True GroupIndex = 2 Checked = True end D:TMenuItem
    GroupIndex = 1 Checked = True end end
rclick P; set M.AutoPopup True; rclick P => N.Popup; M.Popup
set B.Checked True; get A.Checked; get C.Checked; get D.Checked; set C.GroupIndex 1; get B.Checked =>
    A.Checked=False; C.Checked=True; D.Checked=True; B.Checked=False)");
}

}  // namespace rux::test
