// What mouse and keyboard do to the toolkit's controls, event by event.
#include <gtest/gtest.h>

#include "tests/headless/DesktopStage.h"

namespace rux::test {

TEST(Input, PushButtons) {
    PlayAll(R"(
form A:TButton@10,10,50,20 ~Click ~MouseDown ~MouseUp end E:TEdit ~Enter end
click A; where => A.MouseDown; A.Click; A.MouseUp; focus A
down A; where; up A 60,5; where => A.MouseDown; focus A capture A; A.MouseUp; focus A
up A; down A; up A; dbl A; up A => A.MouseUp; A.MouseDown; A.Click; A.MouseUp; A.MouseDown; A.Click;
    A.MouseUp
# What takes the mouse away in the middle makes it no click.
down A; focus E; up A => A.MouseDown; E.Enter; A.MouseUp
down A; set A.Enabled False; up A; where => A.MouseDown; A.MouseUp; focus F
set A.Enabled False; click A; where => A.MouseUp; focus F
down A; box x; key 13; up A => A.MouseDown; box Box: x; A.MouseUp)");
}

TEST(Input, ControlsWithoutWindow) {
    PlayAll(R"(
form P:TPanel@50,50,200,100 ~Click ~MouseUp L1:TLabel@10,10,50,50 ~Click ~MouseUp ~DblClick end
    L2:TLabel@30,30,50,50 ~Click end B:TBevel@100,0,50,50 end L3:TLabel@0,0,200,100 Visible = False ~Click
    end S:TSpeedButton@0,0,200,100 Enabled = False ~Click end end
click P 15,15; click P 40,40; click P 5,5 => L1.Click; L1.MouseUp; L2.Click; P.Click; P.MouseUp
click P 110,10; free B; click P 110,10 => P.Click; P.MouseUp
# The mouse stays with whom it was pressed on.
down P 15,15; move P 5,5; up P 5,5; where => L1.MouseUp; focus F
down P 5,5; up P 15,15 => P.Click; P.MouseUp
down L1; free L1; up P 15,15; where => P.MouseUp; focus F
down L1; up L1; dbl L1; up L1 => L1.Click; L1.MouseUp; L1.DblClick; L1.MouseUp
down L1; free P; where => focus F)");
}

TEST(Input, CheckedControls) {
    PlayAll(R"(
form C:TCheckBox@0,0,90,20 AllowGrayed = True ~Click end
click C; get C.State; click C; get C.State; click C; get C.State; set C.State cbUnchecked => C.Click;
    C.State=cbGrayed; C.Click; C.State=cbChecked; C.Click; C.State=cbUnchecked
form R1:TRadioButton@0,0,90,20 Checked = True ~Click ~DblClick end R2:TRadioButton@0,20,90,20 ~Click end
    P:TPanel R3:TRadioButton Checked = True ~Click end end
click R2; get R1.Checked; get R1.TabStop; get R3.Checked; click R2; set R1.Checked True; get R2.Checked; dbl
    R1; up R1 => R2.Click; R1.Checked=False; R1.TabStop=False; R3.Checked=True; R1.Click; R2.Checked=False;
    R1.DblClick
form G:TRadioGroup@0,0,100,100 ItemIndex = 1 Items.Strings = ('a' 'b' 'c') ~Click end
get G.ItemIndex; set G.ItemIndex 2; set G.ItemIndex 2; get G.ItemIndex; set G.ItemIndex 7; get G.ItemIndex
    => G.ItemIndex=1; G.Click; G.ItemIndex=2; G.ItemIndex=2
form S1:TSpeedButton@0,0,20,20 GroupIndex = 1 Down = True ~Click ~DblClick end S2:TSpeedButton@20,0,20,20
    GroupIndex = 1 ~Click end S3:TSpeedButton@40,0,20,20 GroupIndex = 2 AllowAllUp = True ~Click end
    S4:TSpeedButton@60,0,20,20 Down = True ~Click end
get S4.Down; click S2; get S1.Down; click S2; get S2.Down; click S3; get S3.Down; click S3; get S3.Down;
    down S1; up S1 30,5; get S1.Down; set S1.Down True; dbl S1; up S1 => S4.Down=False; S2.Click;
    S1.Down=False; S2.Click; S2.Down=True; S3.Click; S3.Down=True; S3.Click; S3.Down=False; S1.Down=False;
    S1.DblClick; S1.Click
form T:TToolBar@0,0,200,30 B1:TToolButton@0,0,20,20 Style = tbsCheck Grouped = True Down = True ~Click end
    B2:TToolButton@20,0,20,20 Style = tbsCheck Grouped = True ~Click end B3:TToolButton@40,0,8,20 Style =
    tbsSeparator ~Click end B4:TToolButton@48,0,20,20 Style = tbsCheck Grouped = True Down = True ~Click end
    end
click B2; get B1.Down; get B4.Down; click B2; get B2.Down; click B3 => B2.Click; B1.Down=False;
    B4.Down=True; B2.Click; B2.Down=True)");
}

TEST(Input, RightButton) {
    PlayAll(R"(
form PopupMenu = M M:TPopupMenu ~Popup end N:TPopupMenu ~Popup end P:TPanel@0,0,200,200 L:TLabel@0,0,50,50
    PopupMenu = N ~Click end E:TEdit@60,0,50,20 OnContextPopup = No end end
No: say asked; refuse >> rclick L; rclick P 100,100; rclick E; rup L => N.Popup; M.Popup; E.ContextPopup;
    asked; N.Popup
No: say asked >> rclick E; set L.Enabled False; rclick L; free N; rup P; rup E 500,500 => E.ContextPopup;
    asked; M.Popup; M.Popup; M.Popup)");
}

TEST(Input, Focus) {
    PlayAll(R"(
form A:TEdit ~Enter ~Exit end P:TPanel ~Enter ~Exit E:TEdit ~Enter ~Exit end end B:TEdit ~Enter ~Exit end
focus E; focus B; where => A.Enter; A.Exit; P.Enter; E.Enter; E.Exit; P.Exit; B.Enter; focus B
focus E; set P.Visible False; where => A.Enter; A.Exit; P.Enter; E.Enter; E.Exit; P.Exit; focus F
# Nobody hears from what is being freed.
focus E; free E; where; focus B => A.Enter; A.Exit; P.Enter; E.Enter; P.Exit; focus F; B.Enter
focus E; free P; where; get F.ActiveControl; focus B => A.Enter; A.Exit; P.Enter; E.Enter; focus F;
    F.ActiveControl=nil; B.Enter
set P.Enabled False; focus E; set B.Visible False; focus B; focus F; focus A => A.Enter; EInvalidOperation:
    Cannot focus a disabled or invisible window; EInvalidOperation: Cannot focus a disabled or invisible
    window
form A:TEdit ~Enter OnExit = Back end B:TEdit ~Enter ~Exit end
Back: focus A >> focus B; where => A.Enter; A.Exit; A.Enter; focus A
form A:TEdit ~Enter OnExit = Kill end B:TEdit ~Enter end C:TEdit ~Enter end
Kill: free B >> focus B; where => A.Enter; A.Exit; focus F
form A:TEdit ~Exit end B:TEdit OnEnter = Boom end
Boom: raise no >> focus B; key 13; where => A.Exit; B.Enter; box App: no.; focus B)");
}

TEST(Input, DialogKeys) {
    PlayAll(R"(
form A:TEdit TabOrder = 2 ~Enter end P:TPanel TabOrder = 0 B:TEdit ~Enter end end C:TEdit TabOrder = 1
    TabStop = False ~Enter end D:TEdit TabOrder = 3 Enabled = False ~Enter end M:TMemo TabOrder = 4 ~Enter
    ~KeyDown end
key 9; key 9; key 9; keydown 16; key 9; keyup 16 => B.Enter; A.Enter; M.Enter; B.Enter; M.Enter
keydown 17; key 9; keyup 17; where => B.Enter; focus B
form A:TEdit TabOrder = 0 ~KeyDown end M:TMemo ~KeyDown end O:TButton Default = True ~Click end C:TButton
    Cancel = True ~Click end N:TButton ~Click end
key 13; key 27; key 65; focus N; key 13; focus M; key 13; key 27 => O.Click; C.Click; A.KeyDown; N.Click;
    M.KeyDown; M.KeyDown
set O.Enabled False; key 13; set C.Visible False; key 27 => A.KeyDown; A.KeyDown
form A:TButton ~Click ~KeyDown ~KeyUp end
keydown 32; keyup 32; keydown 32; click A 200,2; keyup 32 => A.KeyDown; A.KeyUp; A.Click; A.KeyDown; A.KeyUp
form A:TButton ~Click end B:TEdit end
keydown 32; focus B; keyup 32; focus A; keyup 32 => )");
}

TEST(Input, Typing) {
    PlayAll(R"(
form A:TEdit Text = 'old' ~Change ~KeyPress end
key 65; keydown 16; key 66; keyup 16; get A.Text; key 8; get A.Text; set A.Text a; set A.Text b =>
    A.KeyPress; A.Change; A.KeyPress; A.Change; A.Text=aB; A.KeyPress; A.Change; A.Text=a; A.Change
form A:TEdit Text = 'old' ReadOnly = True ~Change ~KeyPress end
type x; get A.Text; set A.Text y => A.KeyPress; A.Text=old; A.Change
form A:TEdit MaxLength = 2 ~Change end
type abc; get A.Text => A.Change; A.Change; A.Text=ab
form KeyPreview = True OnKeyPress = Eat A:TEdit ~KeyPress ~KeyDown end
Eat: answer 0 >> key 65; get A.Text => A.KeyDown; F.KeyPress; A.Text=
form OnKeyPress = Eat A:TEdit OnKeyPress = Star end
Eat: answer 0 | Star: answer 42 >> key 65; get A.Text => A.KeyPress; A.Text=*
form A:TEdit OnChange = Die ~KeyUp end
Die: free A >> key 65; key 66; where => A.Change; focus F
# A character of two bytes goes whole.
form A:TEdit end
type x中; get A.Text; key 8; get A.Text; key 8; key 8; get A.Text => A.Text=x中; A.Text=x; A.Text=
form M:TMemo WantTabs = True end
type a; key 13; type b; get M.Lines.Count; key 9; where => M.Lines.Count=2; focus M
form A:TEdit ~KeyDown ~Change end
keydown 18; key 65; keyup 18; get A.Text => A.KeyDown; A.KeyDown; A.Text=)");
}

}  // namespace rux::test
