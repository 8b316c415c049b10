// The items of a list view as form files store them: bytes beside the published properties.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace rux {

struct HStoredListItem {
    std::string Caption;
    std::vector<std::string> SubItems;
    bool Checked = false;
};

/// `Items.Data`: texts in the code page of the application.
std::vector<HStoredListItem> ReadAnsiListItems(std::string_view bytes);
/// `Items.ItemData` of all versions: texts in UTF-16.
std::vector<HStoredListItem> ReadWideListItems(std::string_view bytes);
// Damaged bytes give the items in front of the damage.

}  // namespace rux
