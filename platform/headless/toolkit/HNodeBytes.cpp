#include "platform/headless/toolkit/HNodeBytes.h"

#include <cstdint>

#include "platform/headless/HLimits.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// How one version lays out a node: a size, pictures and application data, the number of children, more, the
/// text behind its length in a byte.
struct TNodeLayout {
    std::size_t BeforeCount, AfterCount, CharSize;
};
constexpr TNodeLayout AnsiLayout{24, 0, 1}, WideLayout{24, 0, 2}, WideLayout3{28, 1, 2};

std::uint8_t ByteAt(std::string_view bytes, std::size_t place) {
    return static_cast<std::uint8_t>(bytes[place]);
}

/// Takes bytes off the front; once there are too few it gives nothing any more.
class TByteReader {
 public:
    explicit TByteReader(std::string_view bytes) : FRest(bytes) {}
    bool Failed() const { return FFailed; }
    std::string_view Take(std::size_t count) {
        FFailed = FFailed || count > FRest.size();
        if (FFailed) return {};
        const std::string_view taken = FRest.substr(0, count);
        FRest.remove_prefix(count);
        return taken;
    }
    /// A number below zero, like one that is not there, is no number of nodes.
    std::uint32_t TakeCount() {
        const std::string_view bytes = Take(4);
        std::uint32_t value = 0;
        for (std::size_t i = bytes.size(); i-- > 0;) value = value << 8 | ByteAt(bytes, i);
        return value > INT32_MAX ? 0 : value;
    }
    std::uint8_t TakeByte() {
        const std::string_view bytes = Take(1);
        return bytes.empty() ? 0 : ByteAt(bytes, 0);
    }

 private:
    std::string_view FRest;
    bool FFailed = false;
};

std::string TextOf(std::string_view bytes, std::size_t charSize) {
    if (charSize == 1) return std::string(bytes);
    std::u16string wide;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        wide += static_cast<char16_t>(ByteAt(bytes, i) | ByteAt(bytes, i + 1) << 8);
    return WideToAnsi(wide);
}

void ReadNodes(TByteReader& reader, const TNodeLayout& layout, std::vector<HNodeLine>& lines) {
    // For each level, how many nodes are still to come.
    std::vector<std::uint32_t> open{reader.TakeCount()};
    while (!open.empty() && lines.size() < HTreeNodeLimit && open.size() <= HTreeDepthLimit) {
        if (open.back() == 0) {
            open.pop_back();
            continue;
        }
        --open.back();
        reader.Take(layout.BeforeCount);
        const std::uint32_t children = reader.TakeCount();
        reader.Take(layout.AfterCount);
        const std::string_view text = reader.Take(reader.TakeByte() * layout.CharSize);
        if (reader.Failed()) return;
        lines.push_back({open.size() - 1, TextOf(text, layout.CharSize)});
        open.push_back(children);
    }
}

}  // namespace

bool DecodeTreeNodes(std::string_view property, std::string_view bytes, std::vector<HNodeLine>& lines) {
    TByteReader reader(bytes);
    if (SameText(property, "Data")) {
        ReadNodes(reader, AnsiLayout, lines);
        return true;
    }
    if (!SameText(property, "NodeData")) return false;
    const std::uint8_t version = reader.TakeByte();
    if (version != 1 && version != 3) return false;
    ReadNodes(reader, version == 1 ? WideLayout : WideLayout3, lines);
    return true;
}

}  // namespace rux
