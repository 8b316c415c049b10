// Tabs and pages under mouse, keyboard and code.
#include <gtest/gtest.h>

#include "tests/headless/DesktopStage.h"

namespace rux::test {

TEST(Tabs, ChosenByTheUser) {
    PlayAll(R"(
form T:TTabControl@0,0,200,90 Tabs.Strings = ('a' 'b' 'c') ~Changing ~Change ~MouseDown ~Click end E:TEdit end
click T 10,10; click T 30,10; get T.TabIndex; click T 30,40; click T 100,10; focus T; key 37; key 37; key 39;
    get T.TabIndex; where => T.MouseDown; T.Changing; T.Change; T.MouseDown; T.TabIndex=1; T.MouseDown;
    T.MouseDown; T.Changing; T.Change; T.Changing; T.Change; T.TabIndex=1; focus T
# Code asks nobody and tells nobody.
set T.TabIndex 2; get T.TabIndex; set T.TabIndex 3; get T.TabIndex => T.TabIndex=2; T.TabIndex=2
form T:TTabControl@0,0,200,90 Tabs.Strings = ('a' 'b') TabIndex = 1 OnChanging = No ~Change end
No: refuse >> click T 10,10; get T.TabIndex => T.Changing; T.TabIndex=1
No: free T >> click T 10,10; where => T.Changing; focus F
form S:TTabSet@0,0,200,20 TabIndex = 0 Tabs.Strings = ('a' 'b') OnChange = No ~Click ~MouseDown end
click S 30,10; get S.TabIndex; set S.TabIndex 0; set S.TabIndex 0; set S.TabIndex 2; set S.TabIndex -1; get
    S.TabIndex => S.MouseDown; S.Change; S.Click; S.TabIndex=1; S.Change; S.Click; EListError: Tab index out
    of bounds; S.Change; S.Click; S.TabIndex=-1
No: refuse >> click S 30,10; get S.TabIndex => S.MouseDown; S.Change; S.TabIndex=0
form N:TTabbedNotebook@0,0,200,90 P:TTabPage Caption = 'a' end Q:TTabPage Caption = 'b' end end
click N 30,10; get N.ActivePage; get P.Visible; set P.Caption 'much wider'; click N 30,10; get N.PageIndex
    => N.ActivePage=b; P.Visible=False; N.PageIndex=0)");
}

TEST(Tabs, Pages) {
    PlayAll(R"(
form P:TPageControl@0,0,200,90 ~Changing ~Change A:TTabSheet Caption = 'a' ~Show ~Hide end B:TTabSheet Caption
    = 'b' TabVisible = False ~Show end C:TTabSheet Caption = 'c' ~Show ~Hide L:TEdit end end end
click P 30,10; get P.ActivePage; get P.TabIndex; rect C; get A.Visible => A.Show; P.Changing; C.Show; A.Hide;
    P.Change; P.ActivePage=F.C; P.TabIndex=1; 8,47-200,109; A.Visible=False
# The tab alone moves by its index; the page by ActivePage, both without an event of the control.
set P.TabIndex 1; get P.ActivePage; set P.ActivePage C; get P.TabIndex; set P.ActivePage nil; get
    P.TabIndex; get C.Visible => A.Show; P.ActivePage=F.A; C.Show; A.Hide; P.TabIndex=1; C.Hide; P.TabIndex=-1;
    C.Visible=False
# The tab in the gap comes up. Without any tab the page has all the room.
set A.TabVisible False; get P.ActivePage; set C.TabVisible False; get P.ActivePage; set P.ActivePage B; rect
    B; set C.TabVisible True; get P.ActivePage; rect B; get P.TabIndex => A.Show; C.Show; A.Hide;
    P.ActivePage=F.C; C.Hide; P.ActivePage=nil; B.Show; 4,23-204,113; P.ActivePage=F.B; 8,47-200,109; P.TabIndex=-1
free A; get P.ActivePage; free C; get P.ActivePage => A.Show; C.Show; P.ActivePage=F.C; P.ActivePage=nil
form P:TFlatPageControl@0,0,200,90 ~Changing ~Change A:TFlatTabSheet Caption = 'a' end B:TFlatTabSheet Caption
    = 'b' end end
get P.ActivePage; click P 30,10; get P.ActivePage; rect B; free B; get P.ActivePage => P.ActivePage=nil;
    P.Changing; P.Change; P.ActivePage=F.B; 8,47-200,109; P.ActivePage=nil
form P:TTBXPageControl@0,0,200,90 ShowTabs = 2 A:TTabSheet Caption = 'a' end end
rect A; set P.ShowTabs 1; rect A; get P.ActivePage => 4,23-204,113; 8,47-200,109; P.ActivePage=F.A)");
}

}  // namespace rux::test
