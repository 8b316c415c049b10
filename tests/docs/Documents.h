// README.md and docs/*.md as the tests read them.
#pragma once

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "host/InputFile.h"

namespace rux::test {

/// A fenced block: the word behind its fence, the line of the fence from 1, what stands in it.
struct TDocBlock {
    std::string Info;
    std::size_t Line = 0;
    std::vector<std::string> Lines;
};

/// A file of the project by lines. Raises std::runtime_error when it cannot be read.
inline std::vector<std::string> LinesOf(const std::string& name) {
    const std::string text = ReadInputFile(std::string(RUX_SOURCE_DIR) + "/" + name);
    std::vector<std::string> lines;
    for (std::size_t at = 0, end; at < text.size(); at = end + 1) {
        end = std::min(text.find('\n', at), text.size());
        lines.push_back(text.substr(at, end - at));
    }
    return lines;
}

struct TDocument {
    explicit TDocument(const std::string& name) : Name(name), Lines(LinesOf(name)) {
        bool open = false;
        for (std::size_t i = 0; i < Lines.size(); ++i) {
            if (!Lines[i].starts_with("```")) {
                if (open) Blocks.back().Lines.push_back(Lines[i]);
                continue;
            }
            if (!open) Blocks.push_back({Lines[i].substr(3), i + 1, {}});
            open = !open;
        }
        if (open) throw std::runtime_error(Place(Blocks.back().Line) + ": the block is not closed");
    }
    std::string Place(std::size_t line) const { return Name + ":" + std::to_string(line); }
    /// The lines from that heading up to the next one of its level.
    std::vector<std::string> Section(const std::string& heading) const {
        const auto start = std::find(Lines.begin(), Lines.end(), heading);
        if (start == Lines.end()) throw std::runtime_error(Name + " has no " + heading);
        const std::string level = heading.substr(0, heading.find(' ') + 1);
        return {start, std::find_if(start + 1, Lines.end(), [&](auto& l) { return l.starts_with(level); })};
    }

    std::string Name;
    std::vector<std::string> Lines;
    std::vector<TDocBlock> Blocks;
};

/// README.md first, then docs/*.md by name.
inline std::vector<TDocument> AllDocuments() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(RUX_SOURCE_DIR) + "/docs"))
        if (entry.path().extension() == ".md") names.push_back("docs/" + entry.path().filename().string());
    std::sort(names.begin(), names.end());
    names.insert(names.begin(), "README.md");
    return {names.begin(), names.end()};
}

}  // namespace rux::test
