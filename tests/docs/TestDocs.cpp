// The documents tell the truth: their examples are played, their tables are held against the code.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <future>
#include <iostream>
#include <map>
#include <memory>
#include <regex>
#include <set>

#include "Engine/Core/RUXConsts.h"
#include "Engine/Core/RUXLimits.h"
#include "host/InputFile.h"
#include "host/call/Script.h"
#include "host/sample/Orders.h"
#include "support/LiveHost.h"
#include "support/RawClient.h"

namespace rux::test {

namespace {

/// A fenced block: the word behind its fence, the line of the fence from 1, what stands in it.
struct TDocBlock {
    std::string Info;
    std::size_t Line = 0;
    std::vector<std::string> Lines;
};

/// A file of the project by lines. Raises std::runtime_error when it cannot be read.
std::vector<std::string> LinesOf(const std::string& name) {
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
std::vector<TDocument> AllDocuments() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(std::string(RUX_SOURCE_DIR) + "/docs"))
        if (entry.path().extension() == ".md") names.push_back("docs/" + entry.path().filename().string());
    std::sort(names.begin(), names.end());
    names.insert(names.begin(), "README.md");
    return {names.begin(), names.end()};
}

std::string Joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

std::string ReadForm(const std::string& name) {
    std::string text = Joined(LinesOf(name));
    if (text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);
    return text;
}

/// Plays the blocks of one document, in order, against the host that a line of theirs names.
class TPlayer {
 public:
    explicit TPlayer(const TDocument& document) : FDocument(document) {}

    /// `request => status text`, as scripts have it. All three answer how many requests were played.
    int PlayScript(const TDocBlock& block) {
        if (!block.Lines.empty()) EnterHost(block.Lines.front());
        const std::vector<TScriptStep> steps = ReadScript(FDocument.Place(block.Line), Joined(block.Lines));
        for (const TScriptStep& step : steps) {
            const std::string place = FDocument.Place(block.Line + static_cast<std::size_t>(step.Line));
            if (!step.Status) throw std::runtime_error(place + ": no status is expected");
            const THttpReply reply = Ask(place, step.Request);
            if (reply.Status != *step.Status || (step.Text && reply.Body != *step.Text))
                throw std::runtime_error(place + ": got " + TLiveHost::Show(reply));
        }
        return static_cast<int>(steps.size());
    }

    /// What ruxcall printed: "> request", then status, comment and text.
    int PlaySession(const TDocBlock& block) {
        int played = 0;
        for (std::size_t i = 0; i < block.Lines.size(); ++i) {
            const std::string& line = block.Lines[i];
            if (EnterHost(line) || !line.starts_with("> ")) continue;
            const std::string place = FDocument.Place(block.Line + i + 1);
            std::string expected;
            while (i + 1 < block.Lines.size() && !block.Lines[i + 1].starts_with("> "))
                expected += (expected.empty() ? "" : "\n") + block.Lines[++i];
            const std::string answer = TLiveHost::Show(Ask(place, line.substr(2)));
            if (answer != expected) throw std::runtime_error(place + ": got " + answer);
            ++played;
        }
        return played;
    }

    /// "> " is sent, "< " comes back. Figures of the run and blanks at the end of a line do not count.
    int PlayBytes(const TDocBlock& block) {
        std::string sent, expected;
        for (const std::string& line : block.Lines)
            (line[0] == '>' ? sent : expected) += line.substr(std::min<std::size_t>(2, line.size())) + "\r\n";
        TRawClient client(Host().Port());
        client.Send(sent);
        client.EndSending();
        const auto masked = [](std::string bytes) {
            // Behind a text comes no line's end, as behind every line of the block.
            if (!bytes.ends_with("\r\n")) bytes += "\r\n";
            bytes = std::regex_replace(bytes, std::regex("(RunTime:|MemoryUsage:|Date: )[^\r]*"), "$1");
            return std::regex_replace(bytes, std::regex(" +\r"), "\r");
        };
        const std::string answer = masked(client.ReadAll());
        if (answer != masked(expected))
            throw std::runtime_error(FDocument.Place(block.Line) + ": got " + answer);
        return 1;
    }

 private:
    /// True when the line says "rux-host FORM" or "rux-host --sample orders": that host stands from now on.
    bool EnterHost(const std::string& line) {
        static const std::regex start("^(# |\\$ build/)rux-host (--sample orders|[^ ]+\\.dfm).*");
        std::smatch found;
        if (!std::regex_match(line, found, start)) return false;
        FHost.reset();  // one engine at a time in a process
        const bool sample = found[2] == "--sample orders";
        if (sample)
            FForms = {ReadForm("examples/orders/OrdersForm.dfm"),
                      ReadForm("examples/orders/CustomerForm.dfm"), ReadForm("examples/orders/LogForm.dfm")};
        else
            FForms = {ReadForm(found[2])};
        FHost = std::make_unique<TLiveHost>(std::vector<std::string_view>(FForms.begin(), FForms.end()));
        const auto attach = [&] {
            for (const char* const root : {"OrdersForm", "LogForm"}) AttachOrdersCode(FHost->Form(root));
        };
        if (sample) FHost->Run(attach);
        return true;
    }
    TLiveHost& Host() {
        if (!FHost) throw std::runtime_error(FDocument.Name + ": no line tells which forms are meant");
        return *FHost;
    }
    THttpReply Ask(const std::string& place, const std::string& request) {
        // An answer that never comes is found by the last line of the output.
        std::cout << place << ' ' << request << std::endl;
        auto answer = std::async(std::launch::async,
                                 [&] { return THttpClient("127.0.0.1", Host().Port()).Get(request); });
        // The host's time stands still; what an answer waits for comes about by letting it pass.
        while (answer.wait_for(std::chrono::milliseconds(200)) != std::future_status::ready)
            Host().Clock().Advance(100);
        return answer.get();
    }

    const TDocument& FDocument;
    std::vector<std::string> FForms;
    std::unique_ptr<TLiveHost> FHost;
};

/// The options that lines begin with, behind `before`.
std::set<std::string> Options(const std::vector<std::string>& lines, const std::string& before) {
    const std::regex option("^" + before + "(-[-a-z]+).*");
    std::set<std::string> options;
    std::smatch found;
    for (const std::string& line : lines)
        if (std::regex_match(line, found, option)) options.insert(found[1]);
    return options;
}

/// A number with a comma behind each three digits.
std::string Grouped(unsigned long long number) {
    std::string text = std::to_string(number);
    for (std::size_t i = text.size(); i > 3; i -= 3) text.insert(i - 3, ",");
    return text;
}

}  // namespace

TEST(TDocs, ExamplesHold) {
    std::map<std::string, int> played;
    for (const TDocument& document : AllDocuments()) {
        TPlayer player(document);
        for (const TDocBlock& block : document.Blocks) {
            int& count = played[document.Name + " " + block.Info];
            if (block.Info == "rux") count += player.PlayScript(block);
            if (block.Info == "console") count += player.PlaySession(block);
            if (block.Info == "http") count += player.PlayBytes(block);
        }
    }
    // So that nothing passes because nothing was found.
    for (const auto& [kind, least] : std::map<std::string, int>{{"README.md console", 4},
                                                                {"docs/locator-language.md rux", 30},
                                                                {"docs/wire-format.md rux", 10},
                                                                {"docs/wire-format.md http", 2}})
        EXPECT_GE(played[kind], least) << kind;
}

TEST(TDocs, LinksLeadSomewhere) {
    const std::regex link("\\]\\(([^)#]+)(#[^)]*)?\\)");
    int links = 0;
    for (const TDocument& document : AllDocuments()) {
        const auto folder = (std::filesystem::path(RUX_SOURCE_DIR) / document.Name).parent_path();
        const std::string text = Joined(document.Lines);
        for (std::sregex_iterator at(text.begin(), text.end(), link), end; at != end; ++at, ++links) {
            const std::string target = (*at)[1];
            const bool outside = target.find("://") != target.npos;
            EXPECT_TRUE(outside || std::filesystem::exists(folder / target))
                << document.Name << ": " << target;
        }
    }
    EXPECT_GE(links, 6);
}

TEST(TDocs, OptionsAreThoseOfTheHelp) {
    const TDocument running("docs/running.md");
    for (const auto& [heading, source] : {std::pair{"## rux-host", "host/app/HostOptions.cpp"},
                                          std::pair{"## ruxcall", "host/call/ruxcall.cpp"}}) {
        const std::set<std::string> help = Options(LinesOf(source), "  ");
        EXPECT_GE(help.size(), 5u) << source;
        EXPECT_EQ(Options(running.Section(heading), "\\| `"), help) << heading;
    }
}

TEST(TDocs, NumbersAreThoseOfTheCode) {
    std::vector<std::string> rows = {"| 213 | |", "| 504 | |"};
    for (const TReturnCodeRow& row : ReturnCodeComments)
        rows.push_back("| " + std::to_string(ReturnCodeToStatus(row.Code)) + " | " +
                       std::string(row.Comment) + " |");
    const std::pair<std::string, unsigned long long> limits[] = {
        {"HttpHeadLimit", HttpHeadLimit},
        {"HttpBodyLimit", HttpBodyLimit},
        {"HttpReceiveTimeout", HttpReceiveTimeout},
        {"RequestNestingLimit", RequestNestingLimit},
        {"RequestStackReserve", RequestStackReserve},
        {"RequestWaitTimeout", RequestWaitTimeout},
        {"LocatorStepLimit", LocatorStepLimit},
        {"LocatorPositionLimit", LocatorPositionLimit},
    };
    for (const auto& [name, value] : limits) rows.push_back("| `" + name + "` | " + Grouped(value) + " |");
    const std::string wire = Joined(TDocument("docs/wire-format.md").Lines);
    for (const std::string& row : rows) EXPECT_NE(wire.find("\n" + row), wire.npos) << row;
}

}  // namespace rux::test
