// Where the items of a list view lie, in its four styles. All in client coordinates.
#pragma once

#include "platform/Types.h"
#include "platform/toolkit/ComCtrls.h"

namespace rux {

/// Items fill lines: rows from left to right, columns from the top down in the style of a list. The view
/// scrolls by lines. A snapshot: good until the view changes.
struct HListLayout {
    TViewStyle Style = TViewStyle::Icon;
    int ClientWidth = 0, ClientHeight = 0;
    /// Room of the column headers; 0 but in reports.
    int HeaderHeight = 0;
    /// The first line that is shown.
    int FirstLine = 0;
    bool CheckBoxes = false, Icons = false;
    /// Reports: widths of the first column and of all of them.
    int FirstColumn = 0, AllColumns = 0;

    /// At least 1.
    int ItemsPerLine() const;
    /// Lines that there is room for, at least 1; with `partial` the one that is cut off counts.
    int LinesShown(bool partial) const;
    int LineOf(int index) const { return index / ItemsPerLine(); }
    /// Everything that belongs to the item.
    TRect Bounds(int index) const;
    /// Empty without check boxes.
    TRect CheckBox(int index) const;
    /// Without width where there are no images; icons of the large style are there always.
    TRect Icon(int index) const;
    /// As wide as the text there is room for.
    TRect Label(int index, int textWidth) const;
    TRect Place(int index, TDisplayCode code, int textWidth) const;
    /// The index that the point's place belongs to, -1 outside; there may be fewer items.
    int IndexAt(TPoint point) const;

 private:
    bool DownFirst() const { return Style == TViewStyle::List; }
    int CellWidth() const;
    int CellHeight() const;
};

}  // namespace rux
