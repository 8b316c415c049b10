// Edits with something beside them: a label, a pair of arrows.
#pragma once

#include "platform/headless/toolkit/HEdits.h"

namespace rux {

enum class HLabelPosition { lpAbove, lpBelow, lpLeft, lpRight };
template <>
const HEnumInfo& HEnumOf<HLabelPosition>();

/// An edit with a label that is part of it and stands beside it on the same parent.
class HLabeledEdit : public HCustomEdit {
 public:
    HLabeledEdit(HToolkit& kit, const HClassDef& def);
    HObject* EditLabel() const { return FLabel; }
    HLabelPosition LabelPosition() const { return FLabelPosition; }
    void SetLabelPosition(HLabelPosition value);
    /// In pixels.
    int LabelSpacing() const { return FLabelSpacing; }
    void SetLabelSpacing(int value);
    void SetParent(HWinControl* parent) override;
    void SetBounds(const TRect& bounds) override;
    void SetVisible(bool value) override;
    void SetEnabled(bool value) override;
    void Loaded() override;

 private:
    void PlaceLabel();
    HControl* FLabel;
    HLabelPosition FLabelPosition = HLabelPosition::lpAbove;
    int FLabelSpacing = 3;
};

/// An edit for a whole number.
class HSpinEdit : public HCustomEdit {
 public:
    HSpinEdit(HToolkit& kit, const HClassDef& def);
    /// The text as a number, MinValue if it is none.
    int Value() const;
    void SetValue(int value);
    int MinValue() const { return FMinValue; }
    void SetMinValue(int value) { FMinValue = value; }
    /// Equal bounds are no bounds.
    int MaxValue() const { return FMaxValue; }
    void SetMaxValue(int value) { FMaxValue = value; }

 private:
    int FMinValue = 0, FMaxValue = 0;
};

/// Two arrows that count in the edit they stand at.
class HUpDown : public HWinControl {
 public:
    using HWinControl::HWinControl;
    int Position() const { return FPosition; }
    /// Kept within the bounds; the edit shows it.
    void SetPosition(int value);
    int Min() const { return FMin; }
    void SetMin(int value) { FMin = value; }
    int Max() const { return FMax; }
    void SetMax(int value) { FMax = value; }
    HObject* Associate() const;
    void SetAssociate(HObject* edit);

 private:
    void ShowPosition();
    int FPosition = 0, FMin = 0, FMax = 100;
    /// By number: the edit may go first.
    std::uint64_t FAssociate = 0;
};

}  // namespace rux
