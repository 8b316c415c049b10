#include "platform/headless/toolkit/HListLayout.h"

#include <algorithm>

namespace rux {

namespace {

/// The large icons' grid, and the icons in it.
constexpr int IconCell = 75, LargeIcon = 32, IconTop = 2;
constexpr int RowHeight = 16, SmallIcon = 16, BoxWidth = 16;
/// Width of an item in the styles of rows and columns with small icons.
constexpr int SmallCell = 160;
/// Room before and behind a text.
constexpr int TextMargin = 2;

}  // namespace

int HListLayout::CellWidth() const {
    if (Style == TViewStyle::Icon) return IconCell;
    return Style == TViewStyle::Report ? AllColumns : SmallCell;
}

int HListLayout::CellHeight() const {
    return Style == TViewStyle::Icon ? IconCell : RowHeight;
}

int HListLayout::ItemsPerLine() const {
    if (Style == TViewStyle::Report) return 1;
    return std::max(1, DownFirst() ? ClientHeight / CellHeight() : ClientWidth / CellWidth());
}

int HListLayout::LinesShown(bool partial) const {
    const int room = DownFirst() ? ClientWidth : ClientHeight - HeaderHeight;
    const int size = DownFirst() ? CellWidth() : CellHeight();
    return std::max(1, (room + (partial ? size - 1 : 0)) / size);
}

TRect HListLayout::Bounds(int index) const {
    const int line = LineOf(index) - FirstLine, place = index % ItemsPerLine();
    const int left = (DownFirst() ? line : place) * CellWidth();
    const int top = (DownFirst() ? place : line) * CellHeight() + HeaderHeight;
    return {left, top, left + CellWidth(), top + CellHeight()};
}

TRect HListLayout::CheckBox(int index) const {
    const TRect cell = Bounds(index);
    if (!CheckBoxes) return {cell.Left, cell.Top, cell.Left, cell.Top};
    const int right = std::min(cell.Left + BoxWidth, cell.Right);
    return {cell.Left, cell.Top, right, cell.Top + RowHeight};
}

TRect HListLayout::Icon(int index) const {
    const TRect cell = Bounds(index);
    if (Style == TViewStyle::Icon) {
        const int left = cell.Left + (IconCell - LargeIcon) / 2, top = cell.Top + IconTop;
        return {left, top, left + LargeIcon, top + LargeIcon};
    }
    const int left = CheckBox(index).Right;
    return {left, cell.Top, std::min(left + (Icons ? SmallIcon : 0), cell.Right), cell.Bottom};
}

TRect HListLayout::Label(int index, int textWidth) const {
    const TRect cell = Bounds(index), icon = Icon(index);
    const int wanted = textWidth + 2 * TextMargin;
    if (Style == TViewStyle::Icon) {
        const int width = std::min(wanted, IconCell), left = cell.Left + (IconCell - width) / 2;
        return {left, icon.Bottom + IconTop, left + width, icon.Bottom + IconTop + RowHeight};
    }
    const int end =
        Style == TViewStyle::Report ? cell.Left + FirstColumn : std::min(icon.Right + wanted, cell.Right);
    return {icon.Right, cell.Top, std::max(end, icon.Right), cell.Bottom};
}

TRect HListLayout::Place(int index, TDisplayCode code, int textWidth) const {
    if (code == TDisplayCode::Bounds) return Bounds(index);
    const TRect icon = Icon(index), label = Label(index, textWidth);
    if (code == TDisplayCode::Icon) return icon;
    if (code == TDisplayCode::Label) return label;
    return {std::min(icon.Left, label.Left), icon.Top, std::max(icon.Right, label.Right), label.Bottom};
}

int HListLayout::IndexAt(TPoint point) const {
    const TRect room{0, HeaderHeight, ClientWidth, ClientHeight};
    if (!room.Contains(point) || CellWidth() == 0) return -1;
    const int column = point.X / CellWidth(), row = (point.Y - HeaderHeight) / CellHeight();
    const int line = DownFirst() ? column : row, place = DownFirst() ? row : column;
    return place < ItemsPerLine() ? (FirstLine + line) * ItemsPerLine() + place : -1;
}

}  // namespace rux
