#include "platform/headless/toolkit/HListItemBytes.h"

#include <cstddef>
#include <cstdint>

#include "rtl/CodePage.h"

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

class TReader {
 public:
    explicit TReader(std::string_view bytes) : FRest(bytes) {}
    bool Skip(std::size_t count) {
        if (FRest.size() < count) return false;
        FRest.remove_prefix(count);
        return true;
    }
    /// Little endian, of one to four bytes.
    bool Number(std::size_t size, std::uint32_t& value) {
        if (FRest.size() < size) return false;
        value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(FRest[i])) << (8 * i);
        return Skip(size);
    }
    bool Text(bool wide, std::string& text) {
        std::uint32_t length = 0;
        if (!Number(1, length)) return false;
        return wide ? WideText(length, text) : AnsiText(length, text);
    }

 private:
    bool AnsiText(std::size_t length, std::string& text) {
        if (FRest.size() < length) return false;
        text = FRest.substr(0, length);
        return Skip(length);
    }
    bool WideText(std::size_t length, std::string& text) {
        std::u16string units;
        for (std::uint32_t unit = 0; units.size() < length; units += static_cast<char16_t>(unit))
            if (!Number(2, unit)) return false;
        text = WideToAnsi(units);
        return true;
    }
    std::string_view FRest;
};

bool ReadItem(TReader& reader, const TShape& shape, HStoredListItem& item) {
    constexpr std::size_t number = 4;
    std::uint32_t state = 0, subItems = 0;
    // Around the two: the images of the item and of what lies over it, its group, what it means to the
    // application.
    if (!reader.Skip(number) || !reader.Number(number, state) || !reader.Skip(number)) return false;
    if (!reader.Number(number, subItems) || !reader.Skip(shape.Groups ? 2 * number : number)) return false;
    if (!reader.Text(shape.Wide, item.Caption)) return false;
    item.Checked = state == CheckedState;
    // The count is only believed as far as there are bytes.
    for (std::uint32_t i = 0; i < subItems; ++i) {
        std::string text;
        if (!reader.Text(shape.Wide, text) || !reader.Skip(shape.BehindSubItem)) return false;
        item.SubItems.push_back(std::move(text));
    }
    return true;
}

std::vector<HStoredListItem> ReadItems(TReader& reader, const TShape& shape) {
    std::vector<HStoredListItem> items;
    std::uint32_t size = 0, count = 0;
    // The size is wrong in the UTF-16 versions, and nobody needs it.
    if (!reader.Number(4, size) || !reader.Number(4, count)) return items;
    for (std::uint32_t i = 0; i < count; ++i) {
        HStoredListItem item;
        if (!ReadItem(reader, shape, item)) break;
        items.push_back(std::move(item));
    }
    return items;
}

}  // namespace

std::vector<HStoredListItem> ReadAnsiListItems(std::string_view bytes) {
    TReader reader(bytes);
    return ReadItems(reader, {});
}

std::vector<HStoredListItem> ReadWideListItems(std::string_view bytes) {
    TReader reader(bytes);
    std::uint32_t version = 0;
    if (!reader.Number(1, version)) return {};
    const std::size_t behind = version >= 4 ? 4 : 0;
    return ReadItems(reader, {.Wide = true, .Groups = version >= 2, .BehindSubItem = behind});
}

}  // namespace rux
