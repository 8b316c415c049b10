// List views.
#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HListView.h"

namespace rux {

namespace {

constexpr int TextMargin = 2;

class TViewPainter {
 public:
    TViewPainter(HCustomListView& view, HCanvas& canvas)
        : FView(view), FCanvas(canvas), FLayout(view.Layout()), FInk(LookInk(view)) {
        FFocused = view.Focused();
        FShowsSelection = FFocused || LookInt(view, "HideSelection") == 0;
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
            FCanvas.Text({left + 4, 0, right - 3, FLayout.HeaderHeight}, FView.ColumnCaption(i), FInk);
            left = right;
        }
    }

    void PaintItem(int index) {
        HListItem& item = FView.ItemAt(index);
        const TRect label = FLayout.Label(index, HCanvas::TextWidth(item.CaptionRef()));
        const bool chosen = item.IsSelected() && FShowsSelection;
        const TColor ink = chosen && FFocused ? clHighlightText : FInk;
        if (chosen) FCanvas.Fill(label, FFocused ? clHighlight : clBtnFace);
        FCanvas.Text({label.Left + TextMargin, label.Top, label.Right, label.Bottom}, item.CaptionRef(), ink);
        if (FLayout.CheckBoxes) PaintCheckBox(FLayout.CheckBox(index), item.IsChecked());
        if (FLayout.Icons || FLayout.Style == TViewStyle::Icon) PaintIcon(FLayout.Icon(index));
        if (FLayout.Style == TViewStyle::Report) PaintSubItems(item, FLayout.Bounds(index));
    }

    void PaintSubItems(HListItem& item, const TRect& row) {
        const std::vector<std::string>& texts = item.SubItems().Lines();
        int left = row.Left + FLayout.FirstColumn;
        for (int i = 1; i < FView.ColumnCount() && left < FLayout.ClientWidth; ++i) {
            const int right = left + FView.ColumnWidth(i);
            const auto place = static_cast<std::size_t>(i - 1);
            if (place < texts.size())
                FCanvas.Text({left + TextMargin, row.Top, right, row.Bottom}, texts[place], FInk);
            left = right;
        }
    }

    void PaintCheckBox(const TRect& place, bool checked) {
        const TRect box{place.Left + 1, place.Top + 1, place.Right - 2, place.Bottom - 2};
        FCanvas.Frame(box, clBtnShadow);
        if (checked) FCanvas.Fill({box.Left + 3, box.Top + 3, box.Right - 3, box.Bottom - 3}, FInk);
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
    bool FFocused = false, FShowsSelection = false;
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
