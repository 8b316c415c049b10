// Edits, memos, labels, static texts, date pickers.
#pragma once

#include "platform/headless/toolkit/HStrings.h"
#include "platform/headless/toolkit/HWinControl.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

class HCustomEdit : public With<HWinControl, TCustomEdit> {
 public:
    HCustomEdit(HToolkit& kit, const HClassDef& def);
    bool ReadOnly() override { return FReadOnly; }
    void SetText(const std::string& text) override;
    bool IsReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool value) { FReadOnly = value; }
    int MaxLength() const { return FMaxLength; }
    void SetMaxLength(int value) { FMaxLength = value; }
    /// Selects the whole text, so that typing replaces it, unless a click brought the focus.
    void DoEnter() override;

 protected:
    void DefaultHandler(HMessage& message) override;
    virtual bool SelectsOnEnter();
    HInsets Insets() const override;
    /// Puts a typed character where the caret stands.
    virtual void TypeCharacter(char character);
    void Insert(const std::string& text);

 private:
    void DeleteBack();
    bool FReadOnly = false;
    int FMaxLength = 0;
    /// The selection; the caret stands at its end.
    std::size_t FSelStart = 0, FCaret = 0;
};

class HCustomMemo : public HCustomEdit {
 public:
    HCustomMemo(HToolkit& kit, const HClassDef& def, std::string_view stringsClass = "TMemoStrings");
    HObject* Lines() const { return FLines; }
    bool WantReturns() const { return FWantReturns; }
    void SetWantReturns(bool value) { FWantReturns = value; }
    bool WantTabs() const { return FWantTabs; }
    void SetWantTabs(bool value) { FWantTabs = value; }
    bool WantsKey(unsigned key) override;

 protected:
    bool SelectsOnEnter() override { return false; }
    void TypeCharacter(char character) override;

 private:
    HTextLines* FLines;
    bool FWantReturns = true, FWantTabs = false;
};

/// A date picker; the value carries date and time.
class HDateTimePicker : public With<HWinControl, TDateTimePicker> {
 public:
    HDateTimePicker(HToolkit& kit, const HClassDef& def);
    TDateTime Date() override;
    void SetDateTime(TDateTime value) override { FValue = value; }
    /// Date and time are read as the whole value; each sets its own part of it.
    double DateValue() const { return FValue; }
    void SetDateValue(double value);
    void SetTimeValue(double value);

 private:
    double FValue;
};

}  // namespace rux
