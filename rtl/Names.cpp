#include "rtl/Names.h"

#include <deque>
#include <mutex>
#include <shared_mutex>
#include <unordered_map>

#include "rtl/Text.h"

namespace rux {
namespace {

struct TFoldedHash {
    std::size_t operator()(std::string_view text) const {
        std::uint64_t hash = 0xCBF29CE484222325;
        for (const char c : text) {
            const auto byte = static_cast<unsigned char>(c >= 'A' && c <= 'Z' ? c + 0x20 : c);
            hash = (hash ^ byte) * 0x100000001B3;
        }
        return static_cast<std::size_t>(hash ^ hash >> 32);
    }
};

struct TFoldedEqual {
    bool operator()(std::string_view a, std::string_view b) const { return SameText(a, b); }
};

/// Spellings stay where they are while the deque grows; the keys look into them.
struct TNameTable {
    std::shared_mutex Guard;
    std::deque<std::string> Spellings;
    std::unordered_map<std::string_view, std::uint32_t, TFoldedHash, TFoldedEqual> Ids;

    TName Find(std::string_view text) const {
        const auto found = Ids.find(text);
        return {found == Ids.end() ? 0 : found->second};
    }
};

/// Made on first use, so that it goes after everything static that was made with names.
TNameTable& Table() {
    static TNameTable table;
    return table;
}

}  // namespace

TName FindName(std::string_view text) {
    TNameTable& table = Table();
    const std::shared_lock lock(table.Guard);
    return table.Find(text);
}

TName InternName(std::string_view text) {
    if (text.empty()) return {};
    if (const TName known = FindName(text)) return known;
    TNameTable& table = Table();
    const std::unique_lock lock(table.Guard);
    if (const TName known = table.Find(text)) return known;
    const std::string& spelling = table.Spellings.emplace_back(text);
    const auto id = static_cast<std::uint32_t>(table.Spellings.size());
    table.Ids.emplace(spelling, id);
    return {id};
}

const std::string& NameText(TName name) {
    static const std::string none;
    TNameTable& table = Table();
    const std::shared_lock lock(table.Guard);
    return name.Id && name.Id <= table.Spellings.size() ? table.Spellings[name.Id - 1] : none;
}

}  // namespace rux
