#include "platform/headless/toolkit/HEdits.h"

#include <cmath>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/CodePage.h"

namespace rux {

HCustomEdit::HCustomEdit(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FTabStop = true;
    FCaptureMouse = false;
}

HInsets HCustomEdit::Insets() const {
    return {HClientEdge, HClientEdge, HClientEdge, HClientEdge};
}

void HCustomEdit::SetText(const std::string& text) {
    if (FText == text) return;
    FText = text;
    FSelStart = FCaret = 0;
    if (!Loading()) Fire(Kit().Names().OnChange);
}

void HCustomEdit::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            // Without a font to measure by: edits are wider than their text, so a click lands behind it.
            FSelStart = FCaret = FText.size();
            Kit().Desktop().SetCapture(Window());
            Kit().Desktop().SetFocus(Window());
            return;
        case WM_LBUTTONUP:
            if (Kit().Desktop().GetCapture() == Window()) Kit().Desktop().ReleaseCapture();
            return;
        case WM_CHAR:
            if (!FReadOnly) TypeCharacter(static_cast<char>(message.W));
            return;
        default:
            With::DefaultHandler(message);
    }
}

void HCustomEdit::TypeCharacter(char character) {
    if (character == 8)
        DeleteBack();
    else if (static_cast<unsigned char>(character) >= 32)
        Insert(std::string(1, character));
}

bool HCustomEdit::SelectsOnEnter() {
    TPropValue value;
    return !GetProp(FindName("AutoSelect"), value) || value.Ordinal != 0;
}

void HCustomEdit::DoEnter() {
    if (SelectsOnEnter() && !LeftButtonDown()) {
        FSelStart = 0;
        FCaret = FText.size();
    }
    With::DoEnter();
}

void HCustomEdit::Insert(const std::string& text) {
    const std::size_t start = std::min(FSelStart, FText.size()), end = std::min(FCaret, FText.size());
    const std::size_t rest = FText.size() - (end - start);
    if (FMaxLength > 0 && rest + text.size() > static_cast<std::size_t>(FMaxLength)) return;
    FText.replace(start, end - start, text);
    FSelStart = FCaret = start + text.size();
    Fire(Kit().Names().OnChange);
}

void HCustomEdit::DeleteBack() {
    const std::size_t end = std::min(FCaret, FText.size());
    std::size_t start = std::min(FSelStart, end);
    if (start == end) {
        // The start of the character before the caret is found by stepping from the front.
        for (TTextCursor at(FText); !at.AtEnd() && at.Pos() < end; at.Next()) start = at.Pos();
        if (end == 0) return;
    }
    FText.erase(start, end - start);
    FSelStart = FCaret = start;
    Fire(Kit().Names().OnChange);
}

HCustomMemo::HCustomMemo(HToolkit& kit, const HClassDef& def, std::string_view stringsClass)
    : HCustomEdit(kit, def) {
    auto lines = std::make_unique<HTextLines>(kit, *kit.ClassDefs().FindDef(stringsClass));
    lines->Attach([this] { return FText; }, [this](const std::string& text) { SetText(text); });
    FLines = lines.get();
    Adopt(std::move(lines));
}

bool HCustomMemo::WantsKey(unsigned key) {
    return ((key == VK_RETURN || key == VK_ESCAPE) && FWantReturns) || (key == VK_TAB && FWantTabs);
}

void HCustomMemo::TypeCharacter(char character) {
    if (character == 13 && FWantReturns)
        Insert("\r\n");
    else
        HCustomEdit::TypeCharacter(character);
}

HDateTimePicker::HDateTimePicker(HToolkit& kit, const HClassDef& def)
    : With(kit, def), FValue(kit.Clock().Now()) {
    FTabStop = true;
}

void HDateTimePicker::SetDateValue(double value) {
    FValue = std::trunc(value) + (FValue - std::trunc(FValue));
}

void HDateTimePicker::SetTimeValue(double value) {
    FValue = std::trunc(FValue) + (value - std::trunc(value));
}

TDateTime HDateTimePicker::Date() {
    return std::trunc(FValue);
}

}  // namespace rux
