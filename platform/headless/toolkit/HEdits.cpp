#include "platform/headless/toolkit/HEdits.h"

#include <cmath>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HClasses.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/CodePage.h"

namespace rux {

HCustomEdit::HCustomEdit(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    FTabStop = true;
}

HInsets HCustomEdit::Insets() const {
    return {HClientEdge, HClientEdge, HClientEdge, HClientEdge};
}

void HCustomEdit::SetText(const std::string& text) {
    if (FText == text) return;
    FText = text;
    FCaret = 0;
    if (!Loading()) Fire(Kit().Names().OnChange);
}

void HCustomEdit::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_LBUTTONDOWN:
            Kit().Desktop().SetFocus(Handle());
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

void HCustomEdit::Insert(const std::string& text) {
    if (FMaxLength > 0 && FText.size() + text.size() > static_cast<std::size_t>(FMaxLength)) return;
    const std::size_t caret = std::min(FCaret, FText.size());
    FText.insert(caret, text);
    FCaret = caret + text.size();
    Fire(Kit().Names().OnChange);
}

void HCustomEdit::DeleteBack() {
    const std::size_t caret = std::min(FCaret, FText.size());
    // The start of the character before the caret is found by stepping from the front.
    std::size_t start = 0;
    for (TTextCursor at(FText); !at.AtEnd() && at.Pos() < caret; at.Next()) start = at.Pos();
    if (start >= caret) return;
    FText.erase(start, caret - start);
    FCaret = start;
    Fire(Kit().Names().OnChange);
}

HCustomMemo::HCustomMemo(HToolkit& kit, const HClassDef& def) : HCustomEdit(kit, def) {
    auto lines = std::make_unique<HTextLines>(kit, *kit.ClassDefs().FindDef("TMemoStrings"));
    lines->Attach([this] { return FText; }, [this](std::string text) { SetText(text); });
    FLines = lines.get();
    Adopt(std::move(lines));
}

bool HCustomMemo::WantsKey(unsigned key) {
    return (key == VK_RETURN && FWantReturns) || (key == VK_TAB && FWantTabs);
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

TDateTime HDateTimePicker::Date() {
    return std::trunc(FValue);
}

}  // namespace rux
