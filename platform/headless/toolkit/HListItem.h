// The items of list views.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/toolkit/HStrings.h"
#include "platform/toolkit/ComCtrls.h"

namespace rux {

class HCustomListView;

/// Lines without an object of their own: a view may hold tens of thousands of them.
class HSubItems final : public TStrings {
 public:
    int Count() override { return static_cast<int>(FLines.size()); }
    std::string Get(int index) override;
    int IndexOf(const std::string& text) override;
    const std::vector<std::string>& Lines() const { return FLines; }
    void SetLines(std::vector<std::string> lines) { FLines = std::move(lines); }

 private:
    std::vector<std::string> FLines;
};

/// Belongs to a view from its making on; once it is taken out of the view it is dead.
class HListItem : public With<HPersistent, TListItem> {
 public:
    using With::With;

    // TListItem
    std::string Caption() override { return FCaption; }
    HSubItems& SubItems() override { return FSubItems; }
    bool Checked() override { return FChecked; }
    void SetChecked(bool value) override;
    void SetSelected(bool value) override;
    void MakeVisible(bool partialOk) override;
    TRect DisplayRect(TDisplayCode code) override;

    const std::string& CaptionRef() const { return FCaption; }
    void SetCaption(std::string caption) { FCaption = std::move(caption); }
    bool IsChecked() const { return FChecked; }
    bool IsSelected() const { return FSelected; }
    /// Place in the view, -1 outside.
    int Index();
    /// Takes the item out of its view.
    void Delete();

    // For the view. Nothing fires.
    void Enter(HCustomListView& view, int place);
    void End();
    int Place() const { return FPlace; }
    void SetPlace(int place) { FPlace = place; }
    void KeepChecked(bool value) { FChecked = value; }
    void KeepSelected(bool value) { FSelected = value; }

 private:
    HCustomListView* FView = nullptr;
    int FPlace = -1;
    std::string FCaption;
    HSubItems FSubItems;
    bool FChecked = false;
    bool FSelected = false;
};

/// The published list of a view's items.
class HListItems : public HPersistent {
 public:
    using HPersistent::HPersistent;
    void SetView(HCustomListView& view) { FView = &view; }
    int Count() const;
    /// Data and ItemData give all items anew.
    void StoreBlob(TName name, std::string bytes) override;

 private:
    HCustomListView* FView = nullptr;
};

}  // namespace rux
