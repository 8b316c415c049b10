#include "platform/headless/toolkit/HListItemBytes.h"

#include <cstddef>
#include <cstdint>

#include "platform/headless/toolkit/HByteReader.h"

namespace rux {

namespace {

/// State image of a box that is checked, less one.
constexpr std::uint32_t CheckedState = 1;

/// What each version has beyond the first one.
struct TShape {
    bool Wide = false;
    bool Groups = false;
    /// Bytes behind each sub-item.
    std::size_t BehindSubItem = 0;
};

HStoredListItem ReadItem(HByteReader& reader, const TShape& shape) {
    constexpr std::size_t number = 4;
    HStoredListItem item;
    // Around the two: the images of the item and of what lies over it, its group, what it means to the
    // application.
    reader.Take(number);
    item.Checked = reader.Number(number) == CheckedState;
    reader.Take(number);
    const std::uint32_t subItems = reader.Number(number);
    reader.Take(shape.Groups ? 2 * number : number);
    item.Caption = reader.Text(shape.Wide);
    // The count is only believed as far as there are bytes.
    for (std::uint32_t i = 0; i < subItems && !reader.Failed(); ++i) {
        item.SubItems.push_back(reader.Text(shape.Wide));
        reader.Take(shape.BehindSubItem);
    }
    return item;
}

std::vector<HStoredListItem> ReadItems(HByteReader& reader, const TShape& shape) {
    std::vector<HStoredListItem> items;
    // The size is wrong in the UTF-16 versions, and nobody needs it.
    reader.Take(4);
    const std::uint32_t count = reader.Number(4);
    for (std::uint32_t i = 0; i < count; ++i) {
        HStoredListItem item = ReadItem(reader, shape);
        if (reader.Failed()) break;
        items.push_back(std::move(item));
    }
    return items;
}

}  // namespace

std::vector<HStoredListItem> ReadAnsiListItems(std::string_view bytes) {
    HByteReader reader(bytes);
    return ReadItems(reader, {});
}

std::vector<HStoredListItem> ReadWideListItems(std::string_view bytes) {
    HByteReader reader(bytes);
    const std::uint32_t version = reader.Number(1);
    const std::size_t behind = version >= 4 ? 4 : 0;
    return ReadItems(reader, {.Wide = true, .Groups = version >= 2, .BehindSubItem = behind});
}

}  // namespace rux
