#include "platform/headless/native/HNativeCombo.h"

#include "platform/headless/drawing/HFramePainter.h"

namespace rux {

namespace {

constexpr int ButtonWidth = 16;

bool ListOnly(const HWindow& combo) {
    return (combo.Style & 3) == HNativeCombo::CBS_DROPDOWNLIST;
}

}  // namespace

LResult HNativeCombo::WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    HWindow* combo = FDesktop.Find(window);
    if (!combo) return 0;
    switch (message) {
        case CB_ADDSTRING:
            return Add(reinterpret_cast<const char*>(lParam));
        case CB_GETCOUNT:
            return static_cast<LResult>(FItems.size());
        case CB_GETCURSEL:
            return FSelected;
        case CB_GETLBTEXT:
            return CopyItem(wParam, reinterpret_cast<char*>(lParam));
        case CB_GETLBTEXTLEN:
            return wParam < FItems.size() ? static_cast<LResult>(FItems[wParam].size()) : CB_ERR;
        case CB_SETCURSEL:
            return Select(*combo, static_cast<std::intptr_t>(wParam));
        case CB_RESETCONTENT:
            FItems.clear();
            Select(*combo, -1);
            return 0;
        case WM_SETTEXT:
            return ListOnly(*combo) ? CB_ERR : HNativeWindow::WndProc(window, message, wParam, lParam);
        case WM_CHAR:
            TypeInto(*combo, static_cast<char>(wParam));
            return 0;
        case WM_KEYDOWN:
            if (wParam == VK_UP || wParam == VK_DOWN) Step(*combo, wParam == VK_UP ? -1 : 1);
            return 0;
        case WM_LBUTTONDOWN:
            FDesktop.SetFocus(window);
            return 0;
        default:
            return HNativeWindow::WndProc(window, message, wParam, lParam);
    }
}

LResult HNativeCombo::Add(const char* text) {
    if (FItems.size() >= ItemLimit) return CB_ERRSPACE;
    FItems.emplace_back(text ? text : "");
    return static_cast<LResult>(FItems.size() - 1);
}

LResult HNativeCombo::CopyItem(WParam index, char* buffer) const {
    if (index >= FItems.size() || !buffer) return CB_ERR;
    const std::string& item = FItems[index];
    std::copy_n(item.c_str(), item.size() + 1, buffer);
    return static_cast<LResult>(item.size());
}

LResult HNativeCombo::Select(HWindow& combo, std::intptr_t index) {
    const bool known = index >= 0 && static_cast<std::size_t>(index) < FItems.size();
    FSelected = known ? index : CB_ERR;
    combo.Text = known ? FItems[static_cast<std::size_t>(index)] : std::string();
    return FSelected;
}

void HNativeCombo::Step(HWindow& combo, int by) {
    const std::intptr_t next = FSelected + by;
    if (next < 0 || static_cast<std::size_t>(next) >= FItems.size()) return;
    Select(combo, next);
    TellParent(combo.Handle, CBN_SELCHANGE);
}

void HNativeCombo::TypeInto(HWindow& combo, char character) {
    if (ListOnly(combo) || !HNativeEdit::Type(combo.Text, character)) return;
    FSelected = CB_ERR;
    TellParent(combo.Handle, CBN_EDITCHANGE);
}

void HNativeCombo::Paint(HCanvas& canvas, const HWindow& window) {
    const TRect client = window.ClientRect();
    canvas.Fill(client, clWindow);
    const int left = client.Right - 2 - ButtonWidth, bottom = client.Bottom - 2;
    canvas.Text({4, 2, left - 2, bottom}, window.Text, window.Enabled() ? clWindowText : clGrayText);
    PaintArrowButton(canvas, {left, 2, client.Right - 2, bottom}, HArrow::Down);
    canvas.Edge(client, HEdge::Sunken);
}

}  // namespace rux
