// Form files that stand on each other, point at each other, and ask for more than there is.
#include <gtest/gtest.h>

#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HDump.h"
#include "tests/headless/DesktopStage.h"

namespace rux::test {

namespace {

constexpr const char* Inherited =
    "inherited F: TDerived Caption = 'derived' inherited OK: TButton Caption = 'mine' OnEnter = nil end "
    "inherited Im: TImage Picture.Data = {02} end E:TEdit end end "
    "| object Base: TBase Caption = 'base' ClientWidth = 200 ClientHeight = 100 "
    "OK:TButton@1,2,30,40 Caption = 'ok' Hint = 'kept' ~Click ~Enter end "
    "Im:TImage Picture.Data = {01} end end";

}  // namespace

TEST(Loader, FilesThatStandOnOthers) {
    TStage derived(Inherited, "", "TDerived=TBase");
    EXPECT_EQ(
        derived.Play(
            "get F.Caption; get F.ClientWidth; get OK.Caption; get OK.Hint; rect OK; get OK.OnEnter; "
            "get OK.OnClick; get E.Text; get Base.OK.Caption; get Base.OK.OnEnter"),
        "F.Caption=derived; F.ClientWidth=200; OK.Caption=mine; OK.Hint=kept; 5,25-35,65; OK.OnEnter=?; "
        "OK.OnClick=X; E.Text=; Base.OK.Caption=ok; Base.OK.OnEnter=X");
    TPropValue picture;
    ASSERT_TRUE(derived.Find("Im")->GetProp(FindName("Picture"), picture));
    const std::string* bytes = dynamic_cast<HObject&>(*picture.Object).Blob(FindName("Data"));
    ASSERT_TRUE(bytes);
    EXPECT_EQ(*bytes, "\x02");

    PlayAll(R"(
form Caption = 'f' inline R1: TFrame1 Left = 10 Top = 20 inherited E: TEdit Text = 'first' end end inline
    R2: TFrame1 Left = 10 Top = 120 end L:TLabel FocusControl = R2.E end | object Frame1: TFrame1 Left = 0
    Top = 0 Width = 100 Height = 90 TabOrder = 0 L:TLabel FocusControl = E end E:TEdit@5,5,50,20 Text =
    'frame' OnChange = Typed end end
Typed: say typed >> get R1.E.Text; get R2.E.Text; rect R2.E; set R2.E.Text x; get Frame1.E.Text =>
    R1.E.Text=first; R2.E.Text=frame; 19,148-69,168; R2.E.Change; typed; Frame1.E.Text=frame
Typed: say typed >> get L.FocusControl; get R2.L.FocusControl; free R2; get L.FocusControl; get
    R1.L.FocusControl => L.FocusControl=F.R2.E; R2.L.FocusControl=F.R2.E; L.FocusControl=nil;
    R1.L.FocusControl=F.R1.E)");
    // Without what they stand on.
    TStage bare(
        "inherited F: TDerived inherited OK: TButton Caption = 'mine' end inline R: TFrame9 Left = 1 Top = 1 "
        "Width = 9 Height = 9 inherited E: TEdit end end Q:TThing end W:TKnown@1,2,3,4 end end",
        "", "TKnown=TMine|TMine=TEdit");
    EXPECT_EQ(
        DumpComponents(bare.Roots, [&](const HComponent& c) { return bare.Loader.LacksAncestor(c); }),
        "TDerived F parent=- rect=(0,0)-(320,240) visible=False enabled=True caption='' "
        "[unknown class, served as TForm] [no ancestor]\n"
        "  TButton OK parent=F rect=(4,23)-(4,23) visible=True enabled=True caption='mine'\n"
        "  TFrame9 R parent=F rect=(5,24)-(14,33) visible=True enabled=True caption='' "
        "[unknown class, served as TFrame] [no ancestor]\n"
        "    TEdit E parent=R rect=(5,24)-(5,24) visible=True enabled=True caption=''\n"
        "  TThing Q parent=F rect=- visible=- enabled=- caption='' [unknown class, served as TComponent]\n"
        "  TKnown W parent=F rect=(5,25)-(8,29) visible=True enabled=True caption='' "
        "[unknown class, served as TEdit]\n");
    // What unknown controls store takes effect.
    EXPECT_EQ(
        TStage("object F: TForm W:TWin@1,2,9,9 Visible = False Caption = 'w' TabOrder = 0 end "
               "G:TGraph@1,2,9,9 Enabled = False Text = 'g' end V:TWin@1,2,9,9 end end")
            .Play("get W.Visible; get W.Caption; set W.Caption x; get W.Caption; get G.Enabled; get G.Text; "
                  "get G.Visible; get G.Caption; get V.Visible; get V.Caption; get V.Text"),
        "W.Visible=False; W.Caption=w; W.Caption=x; G.Enabled=False; G.Text=g; G.Visible=True; G.Caption=?; "
        "V.Visible=True; V.Caption=; V.Text=?");
}

TEST(Loader, References) {
    PlayAll(R"(
form L:TLabel FocusControl = E end L2:TLabel FocusControl = G.E end L3:TLabel FocusControl = Nobody end
    L4:TLabel FocusControl = G.Nobody end L5:TLabel FocusControl = F end E:TEdit PopupMenu = G.M end |
    object G: TForm E:TEdit end M:TPopupMenu end end
get L.FocusControl; get L2.FocusControl; get L3.FocusControl; get L4.FocusControl; get L5.FocusControl; get
    E.PopupMenu; free G; get L2.FocusControl; get E.PopupMenu => L.FocusControl=F.E; L2.FocusControl=G.E;
    L3.FocusControl=Nobody; L4.FocusControl=G.Nobody; L5.FocusControl=F; E.PopupMenu=G.M;
    L2.FocusControl=nil; E.PopupMenu=nil
# Values of every kind, where a class publishes them and where it does not.
form A:TButton Anchors = [akRight, akLeft, akNone9] ModalResult = mrOk Cursor = crHandPoint Odd = [b, a]
    Code = #65 Real = 1.5 Flag = True Name2 = 'x' Nothing = nil Who = odEnum Font.Style = [fsBold]
    Font.Nowhere.Deep = 3 Big = 123456789012 Color = 8388608 end M:TMemo Lines.Strings = ('a' 'b') end
    B:TButton ModalResult = 'text' Enabled = 5 Caption = 7 Left = 'x' end
get A.Anchors; get A.ModalResult; get A.Cursor; get A.Odd; get A.Code; get A.Real; get A.Flag; get A.Name2;
    get A.Nothing; get A.Who; get A.Font.Style; get A.Font.Nowhere.Deep; get A.Big; get M.Lines.Count; get
    M.Lines; get B.ModalResult; get B.Enabled; get B.Caption => A.Anchors=akRight,akLeft,akNone9;
    A.ModalResult=1; A.Cursor=-21; A.Odd=b,a; A.Code=A; A.Real=1.5; A.Flag=True; A.Name2=x; A.Nothing=nil;
    A.Who=odEnum; A.Font.Style=fsBold; A.Font.Nowhere.Deep=3; A.Big=123456789012; M.Lines.Count=2;
    M.Lines=TMemoStrings; B.ModalResult=0; B.Enabled=True; B.Caption=)");
}

TEST(Loader, TimersRunWhoseCodeTheHookBrings) {
    TStage stage("A:TEdit end");
    stage.Loader.SetRootHook([&](HComponent& root) {
        root.DefineMethod("Tick", [&](HObject&, HEventArgs&) { stage.Record("tick"); });
    });
    stage.Loader.Load({ParseFormFile("g.dfm",
                                     "object G: TForm object T: TTimer Interval = 10 OnTimer = Tick end "
                                     "object U: TTimer OnTimer = X end end")});
    EXPECT_EQ(stage.Play("wait 9; wait 1"), "G.T.Timer; tick");
}

TEST(Loader, LimitsAreErrorsWithNames) {
    std::string bomb = "inline A: TLevel end | object L: TLevel Width = 1 Height = 1 TabOrder = 0 ";
    for (int level = 1; level < 7; ++level) {
        const std::string next = "TLevel" + std::to_string(level);
        for (int i = 0; i < 10; ++i) bomb += "inline R" + std::to_string(i) + ": " + next + " end ";
        bomb +=
            "end | object L" + std::to_string(level) + ": " + next + " Width = 1 Height = 1 TabOrder = 0 ";
    }
    const std::pair<std::string, const char*> rows[] = {
        {bomb + " end", "The forms hold too many objects"},
        {"inline A: TSelf end | object S: TSelf TabOrder = 0 inline A: TSelf end end",
         "test.dfm:1: forms and frames stand on each other too deep"},
        {"inherited F: TOne end", "classes.txt: the parents of TONE form a circle"},
        {"A:TEdit end | object X: TFont end", "test.dfm:1: a TFont cannot be the root of a form file"},
    };
    for (const auto& [forms, error] : rows) {
        std::string raised = "nothing";
        try {
            const TStage stage(forms, "", forms.find("TOne") == forms.npos ? "" : "TOne=tone");
        } catch (const Exception& failure) {
            raised = failure.Message();
        }
        EXPECT_EQ(raised, error);
    }
}

TEST(Loader, DeepAndWideForms) {
    std::string deep = "object F: TForm ClientWidth = 400 ClientHeight = 300 ", wide = deep;
    constexpr int depth = 20000, width = 100000;
    for (int i = 0; i < depth; ++i)
        deep += "object P" + std::to_string(i) + ": TPanel Left = 1 Top = 1 Width = 9 Height = 9 ";
    deep += "OnClick = X";
    for (int i = 0; i <= depth; ++i) deep += " end";
    const char* const classes[] = {"TButton", "TLabel"};
    for (int i = 0; i < width; ++i)
        wide += std::string("object ") + "C" + std::to_string(i) + ": " + classes[i % 2] + " end ";
    wide += "M:TMainMenu ";
    for (int i = 0; i < width / 2; ++i) wide += "object I" + std::to_string(i) + ": TMenuItem end ";
    wide += "end Q:TPageControl ";
    for (int i = 0; i < width / 4; ++i) wide += "object S" + std::to_string(i) + ": TTabSheet end ";
    wide += "end end";
    EXPECT_EQ(
        TStage(deep).Play("click P19999; rect P19999; set P0.Left 2; set P0.Visible False; free P0; where"),
        "P19999.Click; 20004,20023-20013,20032; focus F");
    EXPECT_EQ(TStage(wide).Play("focus C99998; free M; free Q; where; free F"), "focus C99998");
}

}  // namespace rux::test
