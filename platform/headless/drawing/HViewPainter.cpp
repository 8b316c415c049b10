// List views.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HButtons.h"
#include "platform/headless/toolkit/HListView.h"

namespace rux {

namespace {

constexpr int TextMargin = 2, HeaderMargin = 4;

class TViewPainter {
 public:
    TViewPainter(HCustomListView& view, HCanvas& canvas)
        : FView(view), FCanvas(canvas), FLayout(view.Layout()), FInk(LookInk(view)) {
        FFocused = view.Focused();
        FShowsSelection = FFocused || LookInt(view, "HideSelection") == 0;
        FRowSelect = FLayout.Style == TViewStyle::Report && LookInt(view, "RowSelect") != 0;
    }

    void Paint() {
        const int count = FView.Count(), perLine = FLayout.ItemsPerLine();
        const std::int64_t end = std::int64_t{FLayout.FirstLine} + FLayout.LinesShown(true);
        const auto last = static_cast<int>(std::min<std::int64_t>(count, end * perLine));
        for (int i = FLayout.FirstLine * perLine; i < last; ++i) PaintItem(i);
        if (FLayout.HeaderHeight > 0) PaintHeader();
    }

 private:
    void PaintHeader() {
        FCanvas.Fill({0, 0, FLayout.ClientWidth, FLayout.HeaderHeight}, clBtnFace);
        int left = 0;
        for (int i = 0; i < FView.ColumnCount() && left < FLayout.ClientWidth; ++i) {
            const int right = left + FView.ColumnWidth(i);
            FCanvas.Edge({left, 0, right, FLayout.HeaderHeight}, HEdge::Raised);
            FCanvas.Text({left + HeaderMargin, 0, right - HeaderMargin, FLayout.HeaderHeight},
                         FView.ColumnCaption(i), FInk, AlignmentOf(i));
            left = right;
        }
    }

    void PaintItem(int index) {
        HListItem& item = FView.ItemAt(index);
        const TRect row = FLayout.Bounds(index);
        const TRect label = FLayout.Label(index, HCanvas::TextWidth(item.CaptionRef()));
        const bool chosen = item.IsSelected() && FShowsSelection;
        const TColor ink = chosen && FFocused ? clHighlightText : FInk;
        const TRect marked{label.Left, label.Top, FRowSelect ? row.Right : label.Right, label.Bottom};
        if (chosen) FCanvas.Fill(marked, FFocused ? clHighlight : clBtnFace);
        FCanvas.Text({label.Left + TextMargin, label.Top, label.Right, label.Bottom}, item.CaptionRef(), ink);
        if (FLayout.CheckBoxes) PaintCheckBox(FLayout.CheckBox(index), item.IsChecked());
        if (FLayout.Icons || FLayout.Style == TViewStyle::Icon) PaintIcon(FLayout.Icon(index));
        if (FLayout.Style == TViewStyle::Report) PaintSubItems(item, row, FRowSelect ? ink : FInk);
    }

    void PaintSubItems(HListItem& item, const TRect& row, TColor ink) {
        const std::vector<std::string>& texts = item.SubItems().Lines();
        int left = row.Left + FLayout.FirstColumn;
        for (int i = 1; i < FView.ColumnCount() && left < FLayout.ClientWidth; ++i) {
            const int right = left + FView.ColumnWidth(i);
            const auto place = static_cast<std::size_t>(i - 1);
            if (place < texts.size())
                FCanvas.Text({left + TextMargin, row.Top, right - TextMargin, row.Bottom}, texts[place], ink,
                             AlignmentOf(i));
            left = right;
        }
    }

    /// The first column is always aligned to the left.
    HTextAlign AlignmentOf(int column) const {
        if (column == 0) return HTextAlign::Left;
        const auto& columns = dynamic_cast<const HCollection&>(*FView.ColumnsObject());
        return LookAlignment(*columns.Items()[static_cast<std::size_t>(column)], "Alignment",
                             HTextAlign::Left);
    }

    void PaintCheckBox(const TRect& place, bool checked) {
        const int top = (place.Top + place.Bottom - HMarkSize) / 2;
        HCanvas inside = FCanvas.Clipped(place);
        PaintCheckMark(inside, {place.Left + 1, top, place.Left + 1 + HMarkSize, top + HMarkSize},
                       checked ? HCheckBoxState::cbChecked : HCheckBoxState::cbUnchecked, FView.IsEnabled());
    }

    /// A sheet of paper: the pictures themselves are not kept.
    void PaintIcon(const TRect& place) {
        const int margin = place.Width() / 8;
        const TRect sheet{place.Left + 2 * margin, place.Top + margin, place.Right - 2 * margin,
                          place.Bottom - margin};
        FCanvas.Fill(sheet, clLightFace);
        FCanvas.Frame(sheet, clBtnShadow);
    }

    HCustomListView& FView;
    HCanvas& FCanvas;
    const HListLayout FLayout;
    const TColor FInk;
    bool FFocused = false, FShowsSelection = false, FRowSelect = false;
};

void PaintListView(HControl& control, HCanvas& canvas, const TRect& room) {
    canvas.Fill(room, LookColor(control, clWindow));
    if (auto* view = dynamic_cast<HCustomListView*>(&control)) TViewPainter(*view, canvas).Paint();
}

}  // namespace

std::span<const HPainter> ViewPainters() {
    static constexpr HPainter rows[] = {
        {"TCustomListView", PaintListView},
    };
    return rows;
}

}  // namespace rux
