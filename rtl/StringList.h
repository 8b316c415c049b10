// The run-time library's string list.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace rux {

/// Splits as the run-time library's DelimitedText does with StrictDelimiter off: #1 to #32 separate as well
/// as `delimiter`, a quote counts at an item's start only, #0 ends the text. A quote that nothing closes
/// takes the rest of the text. By characters.
std::vector<std::string> SplitDelimited(std::string_view text, char delimiter, char quote = '"');
/// Joins; an item that holds #0 to #32, the quote or the delimiter is quoted, a list of one empty item is "".
std::string JoinDelimited(const std::vector<std::string>& items, char delimiter, char quote = '"');

class TStringList {
 public:
    char Delimiter = ',';
    char QuoteChar = '"';
    char NameValueSeparator = '=';

    std::size_t Add(std::string item);
    void Clear() { FItems.clear(); }
    /// Everything that takes an index raises EStringListError "List index out of bounds (<index>)".
    void Delete(std::size_t index);
    std::size_t Count() const { return FItems.size(); }
    const std::string& operator[](long long index) const;
    void Set(long long index, std::string item);
    const std::vector<std::string>& Items() const { return FItems; }

    /// First item equal to `item` when case is ignored (AnsiSameText); -1 if none.
    long long IndexOf(std::string_view item) const;
    /// Text before the first separator; empty without one.
    std::string Name(long long index) const;
    /// The item less its name and one character more, so `abc` gives `bc`.
    std::string ValueFromIndex(long long index) const;
    /// Text behind the separator of the first item of that name, untrimmed; empty if there is none.
    std::string Value(std::string_view name) const;

    std::string DelimitedText() const { return JoinDelimited(FItems, Delimiter, QuoteChar); }
    void SetDelimitedText(std::string_view text) { FItems = SplitDelimited(text, Delimiter, QuoteChar); }
    /// Every item with CR LF behind it.
    std::string Text() const;
    /// Breaks at CR, LF or CR LF; a final break adds no item; #0 ends the text.
    void SetText(std::string_view text);

 private:
    /// `index` as an offset into the items; raises when there is none.
    std::size_t Place(long long index) const;
    /// 1-based; 0 when the item has no separator.
    std::size_t SeparatorPos(std::string_view item) const;
    std::vector<std::string> FItems;
};

}  // namespace rux
