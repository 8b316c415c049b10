// What a class answers where its form file is silent, and where it stands in the toolkit.
#include <gtest/gtest.h>

#include <sstream>

#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"
#include "tests/support/PropertyText.h"

namespace rux::test {

namespace {

/// Of each class, and in the last two of every control.
constexpr const char* Defaults =
    R"(TEdit: TabStop=True ReadOnly=False Text= MaxLength=0 PasswordChar=0 AutoSelect=True Color=-16777211
  BorderStyle=bsSingle CharCase=ecNormal HideSelection=True ImeMode=imDontCare TabOrder=-1 Caption=? Align=?
  Action=?
TMemo: TabStop=True Lines.Count=0 Lines=TMemoStrings ScrollBars=ssNone WantReturns=True WantTabs=False
  WordWrap=True Text=?
TRichEdit: Lines=TRichEditStrings PlainText=False HideScrollBars=True
TMaskEdit: EditMask= ReadOnly=False OEMConvert=?
TSpinEdit: Value=0 MinValue=0 MaxValue=0 Increment=1 EditorEnabled=True ReadOnly=False
TLabeledEdit: EditLabel=TBoundLabel EditLabel.Caption= LabelPosition=lpAbove LabelSpacing=3
TLabel: Caption= Alignment=taLeftJustify AutoSize=True ShowAccelChar=True Layout=tlTop Visible=True
  Enabled=True FocusControl=nil Transparent=False WordWrap=False TabStop=? TabOrder=?
TStaticText: BorderStyle=sbsNone TabStop=False AutoSize=True
TPanel: Alignment=taCenter BevelOuter=bvRaised BevelInner=bvNone BevelWidth=1 BorderStyle=bsNone TabStop=False
  Color=-16777201 ParentColor=False Align=alNone FullRepaint=True
TGroupBox: TabStop=False ParentColor=True Caption= ParentBackground=True
TButton: ModalResult=0 Default=False Cancel=False TabStop=True WordWrap=False Align=?
TBitBtn: Kind=bkCustom Layout=blGlyphLeft Margin=-1 Spacing=4 NumGlyphs=1 Style=bsAutoDetect Glyph=TBitmap
  Default=False
TSpeedButton: Down=False GroupIndex=0 AllowAllUp=False Flat=False Transparent=True Spacing=4
TCheckBox: Checked=False State=cbUnchecked AllowGrayed=False Alignment=taRightJustify TabStop=True
TRadioButton: Checked=False TabStop=True State=?
TRadioGroup: ItemIndex=-1 Columns=1 Items=TStringList Items.Count=0 TabStop=False
TListBox: Items=TListBoxStrings MultiSelect=False ExtendedSelect=True Sorted=False Columns=0 ItemHeight=16
  Style=lbStandard IntegralHeight=False AutoComplete=True ItemIndex=?
TCheckListBox: AllowGrayed=False Flat=True HeaderColor=-16777193 MultiSelect=?
TComboBox: Style=csDropDown ItemIndex=-1 Text= DropDownCount=8 Sorted=False Items=TComboBoxStrings
  AutoDropDown=False MaxLength=0 TabStop=True Align=?
TColorBox: Style=cbStandardColors,cbExtendedColors,cbSystemColors Selected=0
TFileListBox: Mask=*.* FileType=ftNormal
TScrollBar: Min=0 Max=100 Position=0 Kind=sbHorizontal LargeChange=1 TabStop=True
TScrollBox: BorderStyle=bsSingle AutoScroll=True TabStop=False VertScrollBar.Visible=True
  HorzScrollBar.Increment=8
TImage: Stretch=False Center=False Proportional=False Picture=TPicture BiDiMode=?
TShape: Shape=stRectangle Width=65 Height=65 Brush.Color=16777215 Pen.Width=1 Pen.Mode=pmCopy
TBevel: Shape=bsBox Style=bsLowered Enabled=True
TSplitter: Align=alLeft Width=3 MinSize=30 ResizeStyle=rsPattern AutoSnap=True Cursor=-14
TTimer: Enabled=True Interval=1000
TPageControl: ActivePage=nil TabIndex=-1 TabPosition=tpTop Style=tsTabs MultiLine=False TabStop=True
TTabSheet: TabVisible=True ImageIndex=0 PageIndex=-1 Highlighted=False
TTabControl: TabIndex=-1 Tabs=TTabStrings MultiSelect=False
TTabSet: TabIndex=-1 Tabs=TTabList TabHeight=20 StartMargin=5 Style=tsStandard TabStop=?
TNotebook: PageIndex=0 ActivePage= Pages=TPageAccess Pages.Count=0
TStatusBar: Align=alBottom SimplePanel=False SimpleText= SizeGrip=True Panels.Count=0 TabOrder=?
TToolBar: Align=alTop ButtonWidth=23 ButtonHeight=22 Height=32 EdgeBorders=ebTop Flat=True ShowCaptions=False
  Wrapable=True TabStop=False
TToolButton: Style=tbsButton Down=False Grouped=False ImageIndex=-1 AllowAllUp=False Indeterminate=False
  DropdownMenu=nil Wrap=False Anchors=?
TCoolBar: Align=alTop Bands.Count=0 BandMaximize=bmClick ShowText=True
TControlBar: BevelKind=bkTile RowSize=26 DockSite=True AutoDrag=True
TTreeView: ReadOnly=False HideSelection=True ShowLines=True Indent=19 SortType=stNone Items=TTreeNodes
  MultiSelectStyle=msControlSelect BorderStyle=bsSingle TabStop=True
TListView: ViewStyle=vsIcon Columns=TListColumns Columns.Count=0 Items=TListItems Checkboxes=False
  MultiSelect=False HoverTime=-1 RowSelect=False ReadOnly=False ShowColumnHeaders=True
THeaderControl: Align=alTop Sections=THeaderSections FullDrag=True Style=hsButtons
TTrackBar: Min=0 Max=10 Position=0 Frequency=1 PageSize=2 TickStyle=tsAuto Orientation=trHorizontal
TProgressBar: Min=0 Max=100 Position=0 Step=10 Smooth=False TabStop=False
TUpDown: Min=0 Max=100 Position=0 Increment=1 Associate=nil AlignButton=udRight Thousands=True
THotKey: HotKey=32833 Modifiers=hkAlt InvalidKeys=hcNone,hcShift
TAnimate: Active=False CommonAVI=aviNone StartFrame=1 Transparent=True
TDateTimePicker: Kind=dtkDate Checked=True ShowCheckbox=False DateMode=dmComboBox Format= MinDate=0
TMonthCalendar: ShowToday=True MaxSelectRange=31 FirstDayOfWeek=dowLocaleDefault
TStringGrid: ColCount=5 RowCount=5 FixedCols=1 DefaultColWidth=64 ScrollBars=ssBoth
  Options=goFixedVertLine,goFixedHorzLine,goVertLine,goHorzLine,goRangeSelect TabStop=True
TDBGrid: ReadOnly=False Columns=TDBGridColumns Columns.Count=0 DataSource=nil FixedColor=-16777201
TMenuItem: Caption= Checked=False Default=False RadioItem=False GroupIndex=0 ShortCut=0 ImageIndex=-1
  Break=mbNone AutoHotkeys=maParent Visible=True Enabled=True AutoCheck=False Action=nil
TPopupMenu: AutoPopup=True Alignment=paLeft TrackButton=tbRightButton MenuAnimation= Left=?
TMainMenu: AutoHotkeys=maAutomatic AutoMerge=False Images=nil OwnerDraw=False
TAction: Caption= Enabled=True Visible=True Checked=False AutoCheck=False ImageIndex=-1 ShortCut=0 Category=
  GroupIndex=0
TActionList: State=asNormal Images=nil
TImageList: Width=16 Height=16 Masked=True BkColor=536870911 AllocBy=4
TOpenDialog: FilterIndex=1 Options=ofHideReadOnly,ofEnableSizing FileName= Title=
TFontDialog: Device=fdScreen Options=fdEffects Font.Size=8
TTrayIcon: Visible=False IconIndex=0 AnimateInterval=1000
TGridPanel: ExpandStyle=emAddRows RowCollection.Count=0 Alignment=taCenter
TFlowPanel: AutoWrap=True FlowStyle=fsLeftRightTopBottom
TButtonGroup: Items=TGrpButtonItems ItemIndex=-1 ButtonOptions=gboShowCaptions
TCategoryButtons: Categories.Count=0 ButtonFlow=cbfVertical
TDBNavigator: ConfirmDelete=True Flat=False
TDataSource: AutoEdit=True Enabled=True DataSet=nil Tag=0
TBevel: Cursor=0 Hint= Tag=0 HelpContext=0 HelpType=htContext Anchors=akLeft,akTop ShowHint=False
  ParentShowHint=True Constraints.MaxWidth=0 Margins.Left=3 AlignWithMargins=False
TButton: Font.Name=MS_Sans_Serif Font.Size=8 Font.Height=-11 Font.Style= Font.Color=-16777208 Font.Charset=1
  Font.Pitch=fpDefault ParentFont=True DragMode=dmManual DragCursor=-12)";

class TCatalogueTest : public ::testing::Test {
 protected:
    static void SetUpTestSuite() { SetAnsiCodePage(LoadCodePage(936)); }

    /// A dotted path of properties; `?` for one that there is none of, the class's name for an object.
    static std::string Read(HObject& object, std::string_view path) {
        const std::size_t dot = path.find('.');
        TPropValue value;
        if (!object.GetProp(FindName(path.substr(0, dot)), value)) return "?";
        if (dot == path.npos) return PropertyText(value);
        auto* part = dynamic_cast<HObject*>(value.Object);
        return part ? Read(*part, path.substr(dot + 1)) : "nil";
    }

    TManualClock Clock;
    TPosixKernel Kernel{Clock, {}};
    TPosixSockets Sockets{Clock, {}};
    TPosixFiles FileSystem;
    THeadlessPlatform Desktop{Kernel, Clock, Sockets, FileSystem};
    const HClassParents Parents{};
};

TEST_F(TCatalogueTest, DefaultsOfSilentFiles) {
    std::istringstream words(Defaults);
    HComponent* made = nullptr;
    for (std::string word; words >> word;) {
        if (!word.ends_with(':')) {
            const std::string path = word.substr(0, word.find('='));
            EXPECT_EQ(path + "=" + ReplaceAll(Read(*made, path), " ", "_"), word) << made->ClassName();
            continue;
        }
        word.pop_back();
        const TFormFile form = ParseFormFile(
            "test.dfm",
            "object F: TForm ClientWidth = 400 ClientHeight = 300 object C: " + word + " end end");
        made = HFormLoader(Desktop.Toolkit(), Parents).Load({form}).front()->FindComponent("C");
        EXPECT_EQ(made->ClassName(), word);
        EXPECT_TRUE(made->Def().Known) << word;
    }
}

}  // namespace

}  // namespace rux::test
