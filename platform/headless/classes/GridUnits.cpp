// Grids of strings and what stands on them: Grids, ValEdit, the samples' calendar and outline.
#include "platform/headless/classes/HClassTables.h"
#include "platform/headless/toolkit/HLists.h"

namespace rux {

namespace {

class HCustomGrid : public HBorderedControl {
 public:
    HCustomGrid(HToolkit& kit, const HClassDef& def) : HBorderedControl(kit, def) { FTabStop = true; }
};

}  // namespace

HRows GridRows() {
    return Join({Framed(),
                 Aligned(),
                 Bevelled(),
                 Bools({"DefaultDrawing"}, true),
                 Ints({"ColCount", "RowCount"}, 5),
                 Ints({"FixedCols", "FixedRows", "GridLineWidth"}, 1),
                 {KeptInt("DefaultColWidth", 64), KeptInt("DefaultRowHeight", 24),
                  KeptInt("FixedColor", HButtonColor),
                  KeptSet("Options", "TGridOption",
                          "goFixedVertLine,goFixedHorzLine,goVertLine,goHorzLine,goRangeSelect"),
                  KeptEnum("ScrollBars", "TScrollStyle", "ssBoth")}});
}

void RegisterGridUnits(HClasses& classes) {
    classes.Add("TCustomGrid", "TCustomControl", HMake<HCustomGrid>);
    classes.Add("TCustomDrawGrid", "TCustomGrid");
    classes.Add("TDrawGrid", "TCustomDrawGrid", nullptr, GridRows());
    classes.Add("TStringGrid", "TDrawGrid");
    classes.Add("TInplaceEdit", "TCustomMaskEdit");
    classes.Add("TValueListStrings", "TStringList");
    classes.Add(
        "TValueListEditor", "TCustomDrawGrid", nullptr,
        Join({Framed(),
              Aligned(),
              Ints({"FixedCols"}),
              Ints({"GridLineWidth"}, 1),
              {KeptInt("DefaultColWidth", 150), KeptInt("DefaultRowHeight", 18), KeptInt("DropDownRows", 8),
               KeptSet("DisplayOptions", "TDisplayOption", "doColumnTitles,doAutoColResize,doKeyColFixed"),
               KeptInt("FixedColor", HButtonColor), KeptSet("KeyOptions", "TKeyOption"),
               KeptSet("Options", "TGridOption",
                       "goFixedVertLine,goFixedHorzLine,goVertLine,goHorzLine,goColSizing,goEditing,"
                       "goAlwaysShowEditor,goThumbTracking"),
               KeptEnum("ScrollBars", "TScrollStyle", "ssBoth"), KeptPart("Strings", "TValueListStrings"),
               KeptPart("TitleCaptions", "TStringList")}}));
    classes.Add("TCalendar", "TCustomGrid", nullptr,
                Join({Framed(),
                      Aligned(),
                      Ints({"Day", "Month", "Year", "StartOfWeek"}),
                      Bools({"ReadOnly"}),
                      Bools({"UseCurrentDate"}, true),
                      {KeptInt("GridLineWidth", 1)}}));
    classes.Add("TCustomOutline", "TCustomGrid");
    AddChildren(classes, "TCustomOutline", {"TOutline", "TDirectoryOutline"});
}

}  // namespace rux
