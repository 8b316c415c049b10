#include "platform/headless/toolkit/HFields.h"

#include <algorithm>

#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/Numbers.h"

namespace rux {

template <>
const HEnumInfo& HEnumOf<HLabelPosition>() {
    static const HEnumInfo info{"TLabelPosition", {"lpAbove", "lpBelow", "lpLeft", "lpRight"}};
    return info;
}

// ------------------------------------------------------------------------------------------ labeled edits

HLabeledEdit::HLabeledEdit(HToolkit& kit, const HClassDef& def) : HCustomEdit(kit, def) {
    auto label = kit.MakeAs<HControl>("TBoundLabel");
    label->SetName("SubLabel");
    FLabel = &static_cast<HControl&>(Own(std::move(label)));
}

void HLabeledEdit::SetParent(HWinControl* parent) {
    HCustomEdit::SetParent(parent);
    if (!FLabel->Dead()) FLabel->SetParent(parent);
}

void HLabeledEdit::SetBounds(const TRect& bounds) {
    HCustomEdit::SetBounds(bounds);
    if (!Loading()) PlaceLabel();
}

void HLabeledEdit::SetVisible(bool value) {
    HCustomEdit::SetVisible(value);
    FLabel->SetVisible(value);
}

void HLabeledEdit::SetEnabled(bool value) {
    HCustomEdit::SetEnabled(value);
    FLabel->SetEnabled(value);
}

void HLabeledEdit::SetLabelPosition(HLabelPosition value) {
    FLabelPosition = value;
    if (!Loading()) PlaceLabel();
}

void HLabeledEdit::SetLabelSpacing(int value) {
    FLabelSpacing = value;
    if (!Loading()) PlaceLabel();
}

void HLabeledEdit::Loaded() {
    HCustomEdit::Loaded();
    PlaceLabel();
}

void HLabeledEdit::PlaceLabel() {
    const int width = FLabel->Width(), height = FLabel->Height();
    TPoint at{Left(), Top() + (Height() - height) / 2};
    switch (FLabelPosition) {
        case HLabelPosition::lpAbove:
            at.Y = Top() - height - FLabelSpacing;
            break;
        case HLabelPosition::lpBelow:
            at.Y = Top() + Height() + FLabelSpacing;
            break;
        case HLabelPosition::lpLeft:
            at.X = Left() - width - FLabelSpacing;
            break;
        case HLabelPosition::lpRight:
            at.X = Left() + Width() + FLabelSpacing;
            break;
    }
    FLabel->SetBounds({at.X, at.Y, at.X + width, at.Y + height});
}

// ------------------------------------------------------------------------------------------ spin edits

HSpinEdit::HSpinEdit(HToolkit& kit, const HClassDef& def) : HCustomEdit(kit, def) {
    FText = "0";
}

int HSpinEdit::Value() const {
    return StrToIntDef(TextRef(), FMinValue);
}

void HSpinEdit::SetValue(int value) {
    if (FMaxValue > FMinValue) value = std::clamp(value, FMinValue, FMaxValue);
    SetText(IntToStr(value));
}

// ------------------------------------------------------------------------------------------ up and down

void HUpDown::SetPosition(int value) {
    // A form file may give the bounds behind the position.
    FPosition = Loading() ? value : std::clamp(value, std::min(FMin, FMax), std::max(FMin, FMax));
    if (!Loading()) ShowPosition();
}

HObject* HUpDown::Associate() const {
    return FAssociate ? dynamic_cast<HObject*>(Kit().ObjectOfProp(FAssociate)) : nullptr;
}

void HUpDown::SetAssociate(HObject* edit) {
    FAssociate = edit ? edit->RefNumber() : 0;
    ShowPosition();
}

void HUpDown::ShowPosition() {
    auto* edit = dynamic_cast<HCustomEdit*>(Associate());
    if (edit && !edit->Dead()) edit->SetText(IntToStr(FPosition));
}

}  // namespace rux
