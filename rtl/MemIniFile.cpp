#include "rtl/MemIniFile.h"

#include <algorithm>

#include "rtl/CodePage.h"
#include "rtl/StringList.h"
#include "rtl/Text.h"

namespace rux {
namespace {

/// What `[name]` names; nothing for any other line. The closing bracket may not be a trail byte.
bool IsSectionLine(std::string_view line, std::string_view& name) {
    if (line.size() < 2 || line.front() != '[') return false;
    TTextCursor last(line);
    for (TTextCursor at(line); !at.AtEnd(); at.Next()) last = at;
    if (!last.Is(']')) return false;
    name = Trim(line.substr(1, line.size() - 2));
    return true;
}

/// Text before the first `=`; empty for a line that has none.
std::string_view IdentOf(std::string_view line) {
    const std::size_t end = AnsiPos("=", line);
    return end ? line.substr(0, end - 1) : std::string_view();
}

std::string Assignment(std::string_view ident, std::string_view value) {
    return std::string(ident).append("=").append(value);
}

/// The line as it is kept: nothing around the ident and the value.
std::string NormalLine(std::string_view line) {
    const std::size_t separator = AnsiPos("=", line);
    if (!separator) return std::string(line);
    return Assignment(Trim(line.substr(0, separator - 1)), Trim(line.substr(separator)));
}

}  // namespace

void TMemIniFile::TSection::Append(std::string line) {
    if (AnsiPos("=", line)) Idents.try_emplace(AnsiUpperCase(IdentOf(line)), Lines.size());
    Lines.push_back(std::move(line));
}

const std::string* TMemIniFile::TSection::Find(std::string_view ident) const {
    const auto found = Idents.find(AnsiUpperCase(ident));
    return found == Idents.end() ? nullptr : &Lines[found->second];
}

void TMemIniFile::Load(std::string_view text) {
    FSections.clear();
    FIndex.clear();
    TStringList lines;
    lines.SetText(text);
    for (const std::string& item : lines.Items()) {
        const std::string_view line = Trim(item);
        std::string_view name;
        if (line.empty() || line.front() == ';') continue;
        if (IsSectionLine(line, name)) {
            AddSection(name);
        } else if (!FSections.empty()) {
            FSections.back().Append(NormalLine(line));
        }
    }
}

std::string TMemIniFile::Save() const {
    std::string out;
    for (const TSection& section : FSections) {
        out.append("[").append(section.Name).append("]\r\n");
        for (const std::string& line : section.Lines) out.append(line).append("\r\n");
        out.append("\r\n");
    }
    return out;
}

std::vector<std::string> TMemIniFile::ReadSections() const {
    std::vector<std::string> names;
    for (const TSection& section : FSections) names.push_back(section.Name);
    return names;
}

std::vector<std::string> TMemIniFile::ReadSection(std::string_view section) const {
    std::vector<std::string> idents;
    const TSection* found = Find(section);
    if (!found) return idents;
    for (const std::string& line : found->Lines) idents.emplace_back(IdentOf(line));
    return idents;
}

bool TMemIniFile::ValueExists(std::string_view section, std::string_view ident) const {
    const TSection* found = Find(section);
    if (!found) return false;
    if (!ident.empty()) return found->Find(ident) != nullptr;
    return std::any_of(found->Lines.begin(), found->Lines.end(),
                       [](const std::string& line) { return IdentOf(line).empty(); });
}

std::string TMemIniFile::ReadString(std::string_view section, std::string_view ident,
                                    std::string_view fallback) const {
    const TSection* found = Find(section);
    const std::string* line = found ? found->Find(ident) : nullptr;
    return std::string(line ? std::string_view(*line).substr(AnsiPos("=", *line)) : fallback);
}

void TMemIniFile::WriteString(std::string_view section, std::string_view ident, std::string_view value) {
    const auto known = FIndex.find(AnsiUpperCase(section));
    TSection& target = known == FIndex.end() ? AddSection(section) : FSections[known->second];
    const auto place = target.Idents.find(AnsiUpperCase(ident));
    std::string line = Assignment(ident, value);
    if (place == target.Idents.end()) return target.Append(std::move(line));
    target.Lines[place->second] = std::move(line);
}

bool TMemIniFile::HasLine(std::string_view line) const {
    return std::any_of(FSections.begin(), FSections.end(), [line](const TSection& section) {
        return std::any_of(section.Lines.begin(), section.Lines.end(),
                           [line](const std::string& item) { return AnsiSameText(item, line); });
    });
}

const TMemIniFile::TSection* TMemIniFile::Find(std::string_view section) const {
    const auto found = FIndex.find(AnsiUpperCase(section));
    return found == FIndex.end() ? nullptr : &FSections[found->second];
}

TMemIniFile::TSection& TMemIniFile::AddSection(std::string_view name) {
    FIndex[AnsiUpperCase(name)] = FSections.size();
    FSections.emplace_back().Name = name;
    return FSections.back();
}

}  // namespace rux
