// A row of tabs: where each one lies, and which one lies at a point.
#pragma once

#include <string>
#include <vector>

#include "platform/Types.h"

namespace rux {

/// Tabs stand next to each other, each as wide as its text asks for; those that find no more room go on
/// beyond the control's right edge. All in client coordinates of the control.
class HTabRow {
 public:
    /// Lays the tabs out between two heights. The marks of accelerators are not shown and take no room.
    void Arrange(const std::vector<std::string>& texts, int top, int bottom);
    /// What the row was arranged for has changed; who owns the row arranges it anew before it looks at it.
    void MarkStale() { FStale = true; }
    bool Stale() const { return FStale; }

    int Count() const { return static_cast<int>(FTabs.size()); }
    /// As it is shown; the index lies within.
    const std::string& Caption(int index) const { return FTabs[static_cast<std::size_t>(index)].Caption; }
    /// Empty for an index outside.
    TRect Rect(int index) const;
    /// -1 for none.
    int At(TPoint point) const;

 private:
    struct TTab {
        std::string Caption;
        TRect Rect;
    };
    std::vector<TTab> FTabs;
    bool FStale = true;
};

}  // namespace rux
