// The window class ComboBox.
#pragma once

#include <vector>

#include "platform/headless/native/HNativeWindow.h"

namespace rux {

/// A row of texts and the chosen one of them. Its window text is what was typed or the chosen item; with
/// CBS_DROPDOWNLIST nothing can be typed or set. The list never drops down: a person chooses with the arrow
/// keys. An index that there is not answers CB_ERR.
class HNativeCombo final : public HNativeWindow {
 public:
    enum TComboMessage : unsigned {
        CB_ADDSTRING = 0x143,
        CB_GETCOUNT = 0x146,
        CB_GETCURSEL = 0x147,
        CB_GETLBTEXT = 0x148,
        CB_GETLBTEXTLEN = 0x149,
        CB_RESETCONTENT = 0x14B,
        /// -1 chooses nothing. Unlike a person's choice it is not told to the parent.
        CB_SETCURSEL = 0x14E,
    };
    static constexpr LResult CB_ERR = -1, CB_ERRSPACE = -2;
    static constexpr unsigned CBN_SELCHANGE = 1, CBN_EDITCHANGE = 5;
    static constexpr std::uint32_t CBS_DROPDOWNLIST = 3;
    static constexpr std::size_t ItemLimit = 100'000;

    HNativeCombo(HDesktop& desktop, unsigned id) : HNativeWindow(desktop, "ComboBox", id) {}
    LResult WndProc(HWnd window, unsigned message, WParam wParam, LParam lParam) override;
    void Paint(HCanvas& canvas, const HWindow& window) override;

 private:
    LResult Add(const char* text);
    LResult CopyItem(WParam index, char* buffer) const;
    LResult Select(HWindow& combo, std::intptr_t index);
    void Step(HWindow& combo, int by);
    void TypeInto(HWindow& combo, char character);

    std::vector<std::string> FItems;
    std::intptr_t FSelected = -1;
};

}  // namespace rux
