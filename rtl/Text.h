// Trimming, comparing, searching and replacing, as the run-time library does them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace rux {

/// Strip every character with a code of 32 or below, and nothing else (not the full-width blank).
std::string_view Trim(std::string_view text);
std::string_view TrimLeft(std::string_view text);
std::string_view TrimRight(std::string_view text);
/// Nothing but white space in the sense of Trim.
inline bool IsBlank(std::string_view text) {
    return Trim(text).empty();
}
/// Removes code 32 everywhere it is a character; tabs and line ends stay.
std::string RemoveBlanks(std::string_view text);

/// ASCII only and byte by byte: a trail byte that looks like a letter is folded too, as in the target.
std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
bool SameText(std::string_view a, std::string_view b);
/// Order of the upper-cased texts; negative, 0 or positive.
int CompareText(std::string_view a, std::string_view b);
/// Upper case in all scripts of the code page, by characters; a letter whose capital the page lacks stays.
std::string AnsiUpperCase(std::string_view text);
/// Equal when case is ignored in all scripts of the code page, by characters.
bool AnsiSameText(std::string_view a, std::string_view b);

/// Byte search: 1-based place of `sub`, 0 if it is absent or empty.
std::size_t Pos(std::string_view sub, std::string_view text);
/// The same by characters: a hit never starts or ends inside one. Both texts end at their first #0.
std::size_t AnsiPos(std::string_view sub, std::string_view text);

/// Replaces every occurrence from left to right, found as by AnsiPos; the inserted text is not searched.
/// What stands behind a #0 is kept and not searched.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

/// 1-based part of a text: an index below 1 counts as 1, what lies beyond the end is cut.
std::string Copy(std::string_view text, long long index, long long count);

/// The three functions for what a socket brought go byte by byte: that text may still be UTF-8, where
/// stepping by characters of the code page would swallow a delimiter.
///
/// Text before the first `delimiter`; `text` keeps what stands behind it. Both lose code 32 at their ends.
/// Without a delimiter: the whole text, and `text` becomes empty.
std::string Fetch(std::string& text, char delimiter);
/// What stands behind the first `delimiter`; the whole text when there is none.
std::string SeparateRight(std::string_view text, char delimiter);
/// Percent sequences to bytes. A plus stays; a bad sequence keeps its '%' and scanning goes on behind it;
/// with fewer than two characters behind a '%', it and the rest are cut; '%' and a line break is dropped.
std::string DecodeURL(std::string_view url);

/// The path up to and including the last backslash or colon; empty without one.
std::string ExtractFilePath(std::string_view path);
std::string ExtractFileName(std::string_view path);
/// Replaces the extension (from the last '.' of the file name), or appends one.
std::string ChangeFileExt(std::string_view path, std::string_view extension);
std::string IncludeTrailingPathDelimiter(std::string_view path);

}  // namespace rux
