// An ini file in memory, with the run-time library's habits: comments are lost, names are compared without
// case, presence is what counts. Reading and writing files is the caller's.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace rux {

class TMemIniFile {
 public:
    /// Replaces everything by what `text` says. Lines are trimmed; empty lines, lines that begin with `;` and
    /// lines before the first section are dropped.
    void Load(std::string_view text);
    /// `[section]`, its lines and an empty line each, all with CR LF: the bytes that a save writes.
    std::string Save() const;

    /// Section names in file order.
    std::vector<std::string> ReadSections() const;
    /// Idents of a section in order; a line without `=` gives an empty one.
    std::vector<std::string> ReadSection(std::string_view section) const;
    bool ValueExists(std::string_view section, std::string_view ident) const;
    std::string ReadString(std::string_view section, std::string_view ident, std::string_view fallback) const;
    /// Creates the section at the end if it is absent. An existing ident's line is replaced in place, with
    /// the new spelling of the ident; the section keeps its old one.
    void WriteString(std::string_view section, std::string_view ident, std::string_view value);
    /// True when some line of some section equals `line` as a whole, without case.
    bool HasLine(std::string_view line) const;

 private:
    struct TSection {
        std::string Name;
        std::vector<std::string> Lines;
        /// Folded ident to its place in Lines; the first of a repeated ident.
        std::unordered_map<std::string, std::size_t> Idents;
        void Append(std::string line);
        const std::string* Find(std::string_view ident) const;
    };
    const TSection* Find(std::string_view section) const;
    TSection& AddSection(std::string_view name);
    std::vector<TSection> FSections;
    /// Folded name to its place in FSections; the last of a repeated section, which queries see.
    std::unordered_map<std::string, std::size_t> FIndex;
};

}  // namespace rux
