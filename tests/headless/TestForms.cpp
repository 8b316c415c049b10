// Forms and what lives on them: modal loops, closing, errors in handlers, ends in the middle of something.
#include <gtest/gtest.h>

#include "tests/headless/DesktopStage.h"

namespace rux::test {

TEST(Forms, ModalFormsRunTheirOwnLoop) {
    PlayAll(R"(
form A:TButton@0,0,50,20 ~Click end E:TEdit ~Enter end | object D: TForm ~Show ~Hide ~Activate ~Deactivate
    OnCloseQuery = Ask OnClose = Done OK:TButton@0,0,50,20 ModalResult = 1 ~Click end X:TButton@0,20,50,20
    Cancel = True ModalResult = 2 end end | object G: TForm OK:TButton@0,0,50,20 ModalResult = 1 end end
modal D; where; click A; click D.OK; where => D.Show; D.Activate; focus D.OK; D.OK.Click; D.CloseQuery;
    D.Close; D.Deactivate; D.Hide; modal D=1; focus A
form A:TButton@0,0,50,20 ~Click end E:TEdit ~Enter end | object D: TForm ~Hide OnCloseQuery = Ask OnClose =
    Done OK:TButton@0,0,50,20 ModalResult = 1 ~Click end X:TButton@0,20,50,20 Cancel = True ModalResult = 2
    end end | object G: TForm OK:TButton@0,0,50,20 ModalResult = 1 end end
Ask: refuse >> modal D; key 27; get D.ModalResult; close D; get D.Visible => D.CloseQuery; D.ModalResult=0;
    D.CloseQuery; D.Visible=True
Done: answer 0 >> modal D; click D.OK; get D.Visible; modal D; show D => D.OK.Click; D.CloseQuery; D.Close;
    D.Visible=True; EInvalidOperation: Cannot make a visible window modal
Done: answer 2 >> modal D; click D.OK; get D.Visible => D.OK.Click; D.CloseQuery; D.Close; D.Hide; modal
    D=1; D.Visible=no object
modal D; modal G; click D.OK; click G.OK; close D; where => modal G=1; D.CloseQuery; D.Close; D.Hide; modal
    D=2; focus A
# A native box over a modal form; the form's own keys are the box's meanwhile.
modal D; box x; click D.OK; key 27; where; key 27 => box Box: x; focus D.OK; D.CloseQuery; D.Close; D.Hide;
    modal D=2
Done: raise no >> modal D; click D.OK; key 13; get D.ModalResult => D.OK.Click; D.CloseQuery; D.Close; box
    App: no.; D.ModalResult=0
modal D; free D; where => D.Hide; modal D=2; focus A
modal D; destroy D; where; close D; where => focus - active -; D.CloseQuery; D.Close; D.Hide; modal D=2;
    focus - active -)");
}

TEST(Forms, Closing) {
    PlayAll(R"(
form OnClose = Done ~Destroy A:TEdit end | object D: TForm ~Hide OnClose = Done ~Destroy B:TEdit end end
show D; close D; get D.Visible; where => D.Close; D.Hide; D.Visible=False; focus A
Done: answer 0 >> show D; close D; get D.Visible => D.Close; D.Visible=True
Done: answer 2 >> show D; close D; close D => D.Close; D.Hide; D.Destroy; no D
show D; close F; say never => F.Close
show D; free F; say never => F.Destroy
show D; release D; release D; free B; where; pump; where => D.Hide; D.Destroy; no D; no B; focus A; focus A
form OnCloseQuery = Ask | object D: TForm OnCloseQuery = Ask OnClose = Die end
Ask: say asked | Die: free D >> show D; close D; close F => D.CloseQuery; asked; D.Close; F.CloseQuery; asked
form A:TEdit end | object D: TForm OnShow = Loud OnHide = Loud  end
Loud: raise no >> show D; key 13; hide D; key 13; get D.Visible => D.Show; box App: no.; D.Hide; box App:
    no.; D.Visible=False
form A:TEdit end | object D: TForm OnShow = Again end
Again: hide D >> show D; key 13; get D.Visible => D.Show; box App: Cannot change Visible in OnShow or
    OnHide.; D.Visible=True
form A:TEdit end | object D: TForm OnShow = Die end
Die: free D >> show D; where => D.Show; focus A
form A:TEdit end | object D: TForm OnActivate = Die end
Die: free D >> show D; where => D.Activate; focus A)");
}

TEST(Forms, ErrorsGoToTheReportAndTheDesktopLivesOn) {
    PlayAll(R"(
form A:TButton@0,0,50,20 OnClick = Go ~MouseUp end B:TButton@0,20,50,20 ~Click end
Go: raise no >> click A; where; click B; key 13; click B; where => A.Click; box App: no.; focus Button;
    A.MouseUp; B.Click; focus B
Go: abort >> click A; where => A.Click; A.MouseUp; focus A
Go: raise (no) >> down A; up A => A.Click; box App: (no)
Go: click B; raise no; say never >> click A; key 27 => A.Click; B.Click; box App: no.; A.MouseUp)");
}

TEST(Forms, EventsThatCauseThemselvesEndInAnError) {
    // A click within its own click.
    TStage clicks("A:TButton@0,0,50,20 OnClick = Go end", "Go: click A");
    const std::string journal = clicks.Play("click A; key 13; say alive");
    EXPECT_NE(journal.find("box App: Stack overflow."), journal.npos);
    EXPECT_TRUE(journal.ends_with("alive"));
    // A timer that fires under the box of its own last error.
    TStage timer("T:TTimer Interval = 1 OnTimer = Go end", "Go: wait 1; raise no");
    timer.Desktop.Journal().SetSink(static_cast<unsigned>(HEntry::Box), [&](HEntry, std::string_view line) {
        if (line == "box App: Stack overflow.") timer.Kit.App().Terminate();
    });
    timer.Do("wait 1; pump");
    EXPECT_TRUE(timer.Kit.App().Terminated());
}

TEST(Forms, EndsInTheMiddle) {
    PlayAll(R"(
form A:TEdit end | object D: TForm ~Destroy OnKeyPress = Key KeyPreview = True P:TPanel@0,0,200,100
    B:TButton@0,0,50,20 OnMouseDown = Down OnClick = Go OnExit = Left ~MouseUp end S:TSpeedButton@50,0,50,20
    OnMouseDown = Down OnClick = Go ~MouseUp end E:TEdit@100,0,50,20 OnChange = Typed end end M:TPopupMenu
    OnPopup = Go end end
Go: free D.B >> show D; click D.B; where => D.B.MouseDown; D.B.Click; focus D
Go: free D.S >> show D; click D.S; where => D.S.MouseDown; D.S.MouseUp; D.S.Click; focus D.B
Go: free D.P >> show D; click D.S; where; click D.B => D.S.MouseDown; D.S.MouseUp; D.S.Click; focus D; no D.B
Go: free D >> show D; click D.B; where => D.B.MouseDown; D.B.Click; D.Destroy; focus A
Go: release D >> show D; click D.B; where => D.B.MouseDown; D.B.Click; D.B.MouseUp; D.Destroy; focus A
Down: free D >> show D; click D.S; where => D.S.MouseDown; D.Destroy; focus A
Down: free D.P >> show D; click D.B; where => D.B.MouseDown; focus D
Key: free D.E | Typed: say never >> show D; focus D.E; type x; where => D.B.Exit; D.KeyPress; focus D
Typed: free D >> show D; focus D.E; type xy; where => D.B.Exit; D.KeyPress; D.E.Change; D.Destroy; focus A
Left: free D.E >> show D; focus D.E; where => D.B.Exit; focus D
Left: free D >> show D; focus D.E; where => D.B.Exit; D.Destroy; focus A
Go: free D.M >> show D; set D.P.PopupMenu D.M; rclick D.E; get D.P.PopupMenu => D.M.Popup; D.P.PopupMenu=nil
show D; down D.S; destroy D.P; up D.S; where => D.S.MouseDown; D.S.MouseUp; D.S.Click; focus - active D
form T:TTimer Interval = 10 OnTimer = Tick end A:TButton@0,0,50,20 OnClick = Ask end | object D: TForm end
Tick: free T; say ticked | Ask: modal D >> click A; wait 9; wait 1; wait 10; close D => A.Click; T.Timer;
    ticked; modal D=2
form T:TTimer Interval = 10 OnTimer = Tick end | object D: TForm end
Tick: set T.Enabled False; modal D >> wait 10; where; set T.Enabled True; close D; wait 10 => T.Timer; focus
    D; modal D=2; T.Timer)");
}

TEST(Forms, References) {
    PlayAll(R"(
form Menu = M A:TButton@0,0,50,20 Action = Act end C:TCheckBox@0,20,90,20 Action = Act end L:TLabel
    FocusControl = A end M:TMainMenu I:TMenuItem Action = Act end end Act:TAction Caption = 'Do' AutoCheck =
    True OnExecute = Go end
get A.Caption; set Act.Caption New; get A.Caption; get I.Caption; set A.Caption own; set Act.Caption x; get
    A.Caption; set Act.Enabled False; get A.Enabled; get I.Enabled; get C.Enabled => A.Caption=Do;
    A.Caption=New; I.Caption=New; A.Caption=own; A.Enabled=False; I.Enabled=False; C.Enabled=False
click A; get Act.Checked; get C.Checked; get I.Checked; click C; get Act.Checked; get C.Checked =>
    Act.Execute; Act.Checked=True; C.Checked=True; I.Checked=True; Act.Execute; Act.Checked=False;
    C.Checked=False
Go: free Act >> click A; get A.Action; get A.Caption; click A; get I.Action => Act.Execute; A.Action=nil;
    A.Caption=Do; I.Action=nil
get L.FocusControl; free A; get L.FocusControl; free Act; get I.Action; get C.Action; free M; get F.Menu =>
    L.FocusControl=F.A; L.FocusControl=nil; I.Action=nil; C.Action=nil; F.Menu=nil
form P:TPageControl@0,0,200,200 ActivePage = T2 T1:TTabSheet end T2:TTabSheet B:TEdit@5,6,50,20 end end end
    U:TUpDown Associate = B end
rect B; get U.Associate; get T1.Visible; set P.ActivePage T1; where; get T2.Visible; free T1; get
    P.ActivePage; free T2; get U.Associate; get P.ActivePage => 13,53-63,73; U.Associate=F.B;
    T1.Visible=False; focus P; T2.Visible=False; P.ActivePage=F.T2; U.Associate=nil; P.ActivePage=nil
form Left = 100 Top = 50 P:TPanel@10,10,100,100 Q:TPanel@10,20,50,50 L:TLabel@1,2,3,4 end end end
rect L; set P.Left 20; rect L; rect Q; set F.Left 0; rect L; set F.ClientWidth 300; get F.Width; get
    F.ClientWidth; set F.BorderStyle bsNone; rect L; get F.ClientHeight => 125,105-128,109; 135,105-138,109;
    134,103-184,153; 35,105-38,109; F.Width=308; F.ClientWidth=300; 31,82-34,86; F.ClientHeight=327)");
}

}  // namespace rux::test
