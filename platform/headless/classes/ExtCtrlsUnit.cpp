// Shapes, pictures, timers, labeled edits and what else the unit of additional controls has beside panels.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HFields.h"
#include "platform/headless/toolkit/HItems.h"
#include "platform/headless/toolkit/HPages.h"
#include "platform/headless/toolkit/HTimer.h"

namespace rux {

namespace {

/// A splitter stores its width only where it is another one.
std::unique_ptr<HObject> MakeSplitter(HToolkit& kit, const HClassDef& def) {
    std::unique_ptr<HObject> made = HMakeSized<HGraphicControl, 3, 100>(kit, def);
    static_cast<HGraphicControl&>(*made).SetAlign(HAlign::alLeft);
    return made;
}

void RegisterDrawings(HClasses& classes) {
    const HRows drawn = Join({Shown(), Anchored(), Aligned()});
    classes.Add(
        "TShape", "TGraphicControl", HMakeSized<HGraphicControl, 65, 65>,
        Join({drawn,
              Dragging(),
              {KeptPart("Brush", "TBrush"), KeptPart("Pen", "TPen"), KeptEnum("Shape", "TShapeType")}}));
    classes.Add("TPaintBox", "TGraphicControl", nullptr,
                Join({drawn, Dragging(), Lettered(), Coloured(HWindowColor, true)}));
    classes.Add(
        "TImage", "TGraphicControl", nullptr,
        Join({drawn,
              Dragging(),
              Bools({"AutoSize", "Center", "IncrementalDisplay", "Proportional", "Stretch", "Transparent"}),
              {KeptPart("Picture", "TPicture")}}));
    classes.Add("TBevel", "TGraphicControl", nullptr,
                Join({drawn, {KeptEnum("Shape", "TBevelShape"), KeptEnum("Style", "TBevelStyle")}}));
    classes.Add("TSplitter", "TGraphicControl", MakeSplitter,
                Join({drawn,
                      Coloured(HButtonColor, true),
                      Bools({"Beveled"}),
                      Bools({"AutoSnap"}, true),
                      {KeptInt("Cursor", -14), KeptInt("MinSize", 30),
                       KeptEnum("ResizeStyle", "TResizeStyle", "rsPattern")}}));
}

void RegisterNotebooks(HClasses& classes) {
    classes.Add("TPage", "TCustomControl", nullptr, Join({Shown(), Captioned(), Tabbed()}));
    classes.Add("TNotebook", "TCustomControl", HMake<HNotebook>,
                Join({Windowed(),
                      Aligned(),
                      Coloured(HWindowColor, true),
                      ThreeD(),
                      Bools({"AutoSize"}),
                      {HReadOnly<&HNotebook::ActivePage>("ActivePage"), HReadOnly<&HNotebook::Pages>("Pages"),
                       HProp<&HNotebook::PageIndex, &HNotebook::SetPageIndex>("PageIndex")}}));
    classes.Add("THeader", "TCustomControl", nullptr,
                Join({Windowed(),
                      Aligned(),
                      Bools({"AllowResize"}, true),
                      {KeptEnum("BorderStyle", "TBorderStyle", "bsSingle"),
                       KeptPart("Sections", "THeaderStrings")}}));
}

}  // namespace

void RegisterExtCtrlsUnit(HClasses& classes) {
    RegisterDrawings(classes);
    RegisterNotebooks(classes);
    classes.Add("TTimer", "TComponent", HMake<HTimer>,
                {HProp<&HTimer::Enabled, &HTimer::SetEnabled>("Enabled"),
                 HProp<&HTimer::Interval, &HTimer::SetInterval>("Interval")});
    classes.Add("TCustomTrayIcon", "TComponent");
    classes.Add(
        "TTrayIcon", "TCustomTrayIcon", nullptr,
        Join({Texts({"BalloonHint", "BalloonTitle", "Hint"}),
              Objects({"Icons", "PopupMenu"}),
              Bools({"Animate", "Visible"}),
              {KeptInt("AnimateInterval", 1000), KeptInt("BalloonTimeout", 10000),
               KeptEnum("BalloonFlags", "TBalloonFlags"), KeptPart("Icon", "TIcon"), KeptInt("IconIndex")}}));
    classes.Add("TCustomLabeledEdit", "TCustomEdit", HMake<HLabeledEdit>);
    classes.Add("TLabeledEdit", "TCustomLabeledEdit", nullptr,
                Join({FullEditRows(),
                      {HReadOnly<&HLabeledEdit::EditLabel>("EditLabel"),
                       HProp<&HLabeledEdit::LabelPosition, &HLabeledEdit::SetLabelPosition>("LabelPosition"),
                       HProp<&HLabeledEdit::LabelSpacing, &HLabeledEdit::SetLabelSpacing>("LabelSpacing")}}));
    classes.Add("TCustomRadioGroup", "TCustomGroupBox", HMake<HRadioGroup>);
    classes.Add("TRadioGroup", "TCustomRadioGroup", nullptr,
                Join({GroupBoxRows(),
                      Bools({"WordWrap"}),
                      {HReadOnly<&HItemsControl::ItemsObject>("Items"),
                       HProp<&HItemsControl::ItemIndex, &HItemsControl::SetItemIndex>("ItemIndex"),
                       HProp<&HRadioGroup::Columns, &HRadioGroup::SetColumns>("Columns")}}));
}

}  // namespace rux
