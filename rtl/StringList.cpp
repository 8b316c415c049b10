#include "rtl/StringList.h"

#include <algorithm>

#include "rtl/Chars.h"
#include "rtl/CodePage.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {
namespace {

bool AtBlank(const TTextCursor& at) {
    return at.Length() == 1 && static_cast<unsigned char>(at.Char()[0]) <= ' ';
}

void SkipBlanks(TTextCursor& at) {
    while (AtBlank(at)) at.Next();
}

/// Reads from an opening quote to behind the closing one, or to the end of the text.
std::string TakeQuoted(TTextCursor& at, char quote) {
    std::string item;
    for (at.Next(); !at.AtEnd(); at.Next()) {
        if (at.Is(quote)) {
            at.Next();
            if (!at.Is(quote)) break;
        }
        item.append(at.Char());
    }
    return item;
}

std::string TakePlain(TTextCursor& at, std::string_view text, char delimiter) {
    const std::size_t start = at.Pos();
    while (!at.AtEnd() && !AtBlank(at) && !at.Is(delimiter)) at.Next();
    return std::string(text.substr(start, at.Pos() - start));
}

bool NeedsQuotes(std::string_view item, char delimiter, char quote) {
    for (TTextCursor at(item); !at.AtEnd(); at.Next()) {
        if (AtBlank(at) || at.Is(delimiter) || at.Is(quote)) return true;
    }
    return false;
}

std::string Quoted(std::string_view item, char quote) {
    std::string out(1, quote);
    for (TTextCursor at(item); !at.AtEnd(); at.Next()) {
        if (at.Is(quote)) out += quote;
        out.append(at.Char());
    }
    return out + quote;
}

}  // namespace

std::vector<std::string> SplitDelimited(std::string_view text, char delimiter, char quote) {
    text = UpToNul(text);
    std::vector<std::string> items;
    TTextCursor at(text);
    SkipBlanks(at);
    while (!at.AtEnd()) {
        items.push_back(at.Is(quote) ? TakeQuoted(at, quote) : TakePlain(at, text, delimiter));
        SkipBlanks(at);
        if (!at.Is(delimiter)) continue;
        at.Next();
        if (at.AtEnd()) items.emplace_back();
        SkipBlanks(at);
    }
    return items;
}

std::string JoinDelimited(const std::vector<std::string>& items, char delimiter, char quote) {
    // One empty item must differ from no item at all.
    if (items.size() == 1 && items[0].empty()) return std::string(2, quote);
    std::string out;
    for (const std::string& item : items) {
        if (&item != &items.front()) out += delimiter;
        out += NeedsQuotes(item, delimiter, quote) ? Quoted(item, quote) : item;
    }
    return out;
}

std::size_t TStringList::Add(std::string item) {
    FItems.push_back(std::move(item));
    return FItems.size() - 1;
}

void TStringList::Delete(std::size_t index) {
    FItems.erase(FItems.begin() + static_cast<std::ptrdiff_t>(Place(static_cast<long long>(index))));
}

const std::string& TStringList::operator[](long long index) const {
    return FItems[Place(index)];
}

void TStringList::Set(long long index, std::string item) {
    FItems[Place(index)] = std::move(item);
}

long long TStringList::IndexOf(std::string_view item) const {
    for (std::size_t i = 0; i < FItems.size(); ++i) {
        if (AnsiSameText(FItems[i], item)) return static_cast<long long>(i);
    }
    return -1;
}

std::string TStringList::Name(long long index) const {
    const std::string& item = (*this)[index];
    const std::size_t separator = SeparatorPos(item);
    return separator ? item.substr(0, separator - 1) : std::string();
}

std::string TStringList::ValueFromIndex(long long index) const {
    const std::string& item = (*this)[index];
    return Copy(item, static_cast<long long>(Name(index).size()) + 2, static_cast<long long>(item.size()));
}

std::string TStringList::Value(std::string_view name) const {
    for (const std::string& item : FItems) {
        const std::size_t separator = SeparatorPos(item);
        if (separator && AnsiSameText(std::string_view(item).substr(0, separator - 1), name)) {
            return item.substr(separator);
        }
    }
    return {};
}

std::string TStringList::Text() const {
    std::string out;
    for (const std::string& item : FItems) out.append(item).append("\r\n");
    return out;
}

void TStringList::SetText(std::string_view text) {
    text = UpToNul(text);
    FItems.clear();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        FItems.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        text.remove_prefix(text.starts_with("\r\n") ? 2 : text.empty() ? 0 : 1);
    }
}

std::size_t TStringList::Place(long long index) const {
    if (index < 0 || static_cast<unsigned long long>(index) >= FItems.size()) {
        throw EStringListError("List index out of bounds (" + std::to_string(index) + ")");
    }
    return static_cast<std::size_t>(index);
}

std::size_t TStringList::SeparatorPos(std::string_view item) const {
    return AnsiPos(std::string_view(&NameValueSeparator, 1), item);
}

}  // namespace rux
