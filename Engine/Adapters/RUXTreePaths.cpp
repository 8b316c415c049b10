#include "Engine/Adapters/RUXTreePaths.h"

#include <optional>
#include <string_view>
#include <vector>

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "platform/toolkit/ComCtrls.h"
#include "rtl/CodePage.h"
#include "rtl/RegExpr.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// A path that is held against many nodes of one tree.
class TNodePattern {
 public:
    explicit TNodePattern(const std::string& path) : FPath(path), FOpenEnd(path.ends_with(".*")) {
        const std::string_view rest(path.data(), path.size() - (FOpenEnd ? 2 : 0));
        FPlain = rest.find_first_of(std::string_view("*+?{|()[.^$\\\0", 13)) == rest.npos;
        if (!FPlain) {
            Compile();
            return;
        }
        FBytes.append("/").append(rest);
        FBack = FBytes.size();
        if (!FOpenEnd) FBytes += '/';
    }

    /// `slashed` is the node's path between two slashes. Its first `known` bytes have been held against this
    /// pattern before, as the path of the node's parent.
    bool Matches(std::string_view text, std::string_view slashed, std::size_t known) {
        if (SameText(FPath, text) || SameText(FPath, slashed.substr(1, slashed.size() - 2))) return true;
        return FPlain ? PlainMatches(slashed, known) : ExpressionMatches(slashed);
    }

 private:
    void Compile() {
        try {
            FExpression.emplace("/" + FPath + "/");
        } catch (const Exception&) {
            // Texts may still equal it.
        }
    }

    /// What an expression without operators finds, or with `.*` at its end alone, at the price of a search
    /// for bytes: that end goes up to the last slash.
    bool PlainMatches(std::string_view slashed, std::size_t known) const {
        if (FOpenEnd) slashed.remove_suffix(1);
        const std::size_t start = known < FBack ? 0 : known - FBack;
        // Bytes may begin within a character; that is rare enough to ask again.
        return slashed.find(FBytes, start) != slashed.npos && AnsiPos(FBytes, slashed) > 0;
    }

    bool ExpressionMatches(std::string_view slashed) {
        if (!FExpression) return false;
        if (FExpression->Exec(slashed, FBudget)) return true;
        if (FExpression->BudgetExceeded()) GoneAstray();
        return false;
    }

    /// An expression that goes astray in one node does so in many, and they share the time of two.
    void GoneAstray() {
        if (FBudget == TreeNodeStepBudget) GetLogger().Warn("Tree path " + FPath + ": too many steps");
        FBudget /= 2;
    }

    const std::string FPath;
    const bool FOpenEnd;
    bool FPlain = false;
    /// Without operators: what is looked for, and how far before a known end a new place may begin.
    std::string FBytes;
    std::size_t FBack = 0;
    std::optional<TRegExpr> FExpression;
    std::uint64_t FBudget = TreeNodeStepBudget;
};

std::string Escaped(std::string path) {
    for (const char* bracket : {"(", ")", "[", "]"})
        path = ReplaceAll(path, bracket, std::string("\\") + bracket);
    return path;
}

std::string WithoutBlanksAtSlashes(std::string_view path) {
    std::string result;
    std::size_t blanks = 0;
    bool behindSlash = false;
    for (TTextCursor at(path); !at.AtEnd(); at.Next()) {
        if (at.Is(' ')) {
            if (!behindSlash) ++blanks;
            continue;
        }
        behindSlash = at.Is('/');
        if (!behindSlash) result.append(blanks, ' ');
        blanks = 0;
        result += at.Char();
    }
    return result.append(blanks, ' ');
}

}  // namespace

std::string GetNodePath(TObject* node) {
    std::vector<std::string> texts;
    for (; node; node = Cast<TTreeNode>(node).Parent()) texts.push_back(Cast<TTreeNode>(node).Text());
    std::string path;
    for (auto text = texts.rbegin(); text != texts.rend(); ++text)
        path += (text == texts.rbegin() ? "" : "/") + *text;
    return path;
}

TObject* SearchNode(TObject* first, const std::string& path) {
    if (!first) return nullptr;
    struct TLevel {
        TObject* Node;
        /// Of the path above it, and how much of that was tried.
        std::size_t Above, Known;
    };
    TNodePattern pattern(path);
    TObject* parent = Cast<TTreeNode>(first).Parent();
    std::string slashed = parent ? "/" + GetNodePath(parent) + "/" : "/";
    std::vector<TLevel> levels{{first, slashed.size(), 0}};
    while (!levels.empty()) {
        TLevel& level = levels.back();
        TObject* current = level.Node;
        if (!current) {
            levels.pop_back();
            continue;
        }
        auto& node = Cast<TTreeNode>(current);
        const std::string text = node.Text();
        slashed.resize(level.Above);
        slashed.append(text).push_back('/');
        if (pattern.Matches(text, slashed, level.Known)) return current;
        level.Node = node.GetNextSibling();
        if (TObject* child = node.GetFirstChild()) levels.push_back({child, slashed.size(), slashed.size()});
    }
    return nullptr;
}

TObject* FindNodeByPath(TObject* first, const std::string& path) {
    const std::string plain = WithoutBlanksAtSlashes(Escaped(path));
    const std::string rewritten = ReplaceAll(plain, "//", "/.*/");
    TObject* node = SearchNode(first, rewritten);
    // A beginning of a text is looked for in the path without its gaps: with `//` only whole texts count.
    if (!node) node = SearchNode(first, plain + ".*");
    if (!node) throw ERUXException(Ansi("找不到节点:") + rewritten);
    return node;
}

}  // namespace rux
