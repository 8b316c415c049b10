#include "platform/headless/toolkit/HNodeBytes.h"

#include <cstdint>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HByteReader.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// How one version lays out a node: a size, pictures and application data, the number of children, more, the
/// text.
struct TNodeLayout {
    std::size_t BeforeCount, AfterCount;
    bool Wide;
};
constexpr TNodeLayout AnsiLayout{24, 0, false}, WideLayout{24, 0, true}, WideLayout3{28, 1, true};

/// A number below zero is no number of nodes.
std::uint32_t TakeCount(HByteReader& reader) {
    const std::uint32_t value = reader.Number(4);
    return value > INT32_MAX ? 0 : value;
}

void ReadNodes(HByteReader& reader, const TNodeLayout& layout, std::vector<HNodeLine>& lines) {
    // For each level, how many nodes are still to come.
    std::vector<std::uint32_t> open{TakeCount(reader)};
    while (!open.empty() && lines.size() < HTreeNodeLimit && open.size() <= HTreeDepthLimit) {
        if (open.back() == 0) {
            open.pop_back();
            continue;
        }
        --open.back();
        reader.Take(layout.BeforeCount);
        const std::uint32_t children = TakeCount(reader);
        reader.Take(layout.AfterCount);
        std::string text = reader.Text(layout.Wide);
        if (reader.Failed()) return;
        lines.push_back({open.size() - 1, std::move(text)});
        open.push_back(children);
    }
}

}  // namespace

bool DecodeTreeNodes(std::string_view property, std::string_view bytes, std::vector<HNodeLine>& lines) {
    HByteReader reader(bytes);
    if (SameText(property, "Data")) {
        ReadNodes(reader, AnsiLayout, lines);
        return true;
    }
    if (!SameText(property, "NodeData")) return false;
    const std::uint32_t version = reader.Number(1);
    if (version != 1 && version != 3) return false;
    ReadNodes(reader, version == 1 ? WideLayout : WideLayout3, lines);
    return true;
}

}  // namespace rux
