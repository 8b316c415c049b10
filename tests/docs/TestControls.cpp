// docs/controls.md: its tables are made from the code. With RUX_UPDATE_DOCS=1 they are written anew, else
// they must be what the code says.
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "Engine/Adapters/RUXInterface.h"
#include "Engine/Registry/RUXDefaultGroups.h"
#include "Engine/Registry/RUXIntfDefine.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "host/InputFile.h"
#include "rtl/Text.h"
#include "support/EngineFixture.h"

namespace rux::test {

namespace {

const std::string Manual = std::string(RUX_SOURCE_DIR) + "/docs/controls.md";
constexpr std::string_view BlockBegin = "<!-- generated: ", BlockName = " -->\n", BlockEnd = "<!-- end -->";

std::string Code(std::string_view text) {
    return text.empty() ? std::string() : "`" + std::string(text) + "`";
}

/// What the rows say about one word, in its order; a table may come back to a word, and repeat itself.
std::string IdentsOf(std::span<const TGroupRows> rows, std::string_view word) {
    std::string text;
    for (const TGroupRows& row : rows) {
        std::istringstream idents(SameText(row.Section, word) ? std::string(row.Idents) : std::string());
        for (std::string ident; idents >> ident;)
            if ((text + " ").find(" " + ident + " ") == text.npos) text += " " + ident;
    }
    return text.substr(text.empty() ? 0 : 1);
}

class TControlsManual : public TEngineTest {
 protected:
    std::vector<std::string> Words() const {
        std::vector<std::string> words;
        for (const TGroupRows& row : DefaultClassRows())
            if (std::find(words.begin(), words.end(), row.Section) == words.end())
                words.emplace_back(row.Section);
        return words;
    }
    std::string WordTable() const {
        std::string text = "| Word | Classes | Refused while disabled |\n|---|---|---|\n";
        for (const std::string& word : Words())
            text += "| `" + word + "` | " + IdentsOf(DefaultClassRows(), word) + " | " +
                    Code(IdentsOf(DefaultMethodRows(), word)) + " |\n";
        return text;
    }
    std::string AdapterTable() const {
        std::string text = "| Class | Interface |\n|---|---|\n";
        for (const TAdapterEntry& entry : Engine.Registry->Adapters())
            text += "| `" + std::string(entry.ControlClass) + "` | `" + std::string(entry.Interface->Name) +
                    "` |\n";
        return text;
    }
    std::string Drives(std::string_view interface) const {
        std::string text;
        for (const TAdapterEntry& entry : Engine.Registry->Adapters())
            if (entry.Interface->Name == interface)
                text += (text.empty() ? "" : ", ") + Code(entry.ControlClass);
        return (text.empty() ? "No class is driven yet." : "Driven: " + text + ".") + "\n";
    }
    /// What the report tells of a word, without what every control has.
    std::string MethodTable(const std::string& word) const {
        const TRUXIntfDefine* define = Engine.IntfDefines->FindDefine("I" + word);
        if (!define) return "No interface of its own.\n";
        TRUXIntfDefineList common;
        common.AddInterface(IControl::Info);
        std::string rows;
        for (const TRUXMethodDefine& method : define->Items()) {
            const auto isCommon = [&](const TRUXMethodDefine& m) { return m.Name == method.Name; };
            const auto& shared = common.Items().front().Items();
            if (word != "Control" && std::any_of(shared.begin(), shared.end(), isCommon)) continue;
            std::string params;
            for (const TRUXParamDefine& param : method.Items())
                params += (params.empty() ? "" : ", ") + Code(param.Name) + " " + param.Kind;
            rows += "| `" + method.Name + "` | " + params + " | " + method.ReturnType + " |\n";
        }
        if (rows.empty()) return "Nothing beyond the methods of every control.\n";
        return "| Method | Arguments | Result |\n|---|---|---|\n" + rows;
    }
    std::string Block(const std::string& name) {
        if (name == "words") return WordTable();
        if (name == "classes") return AdapterTable();
        if (name == "Control") {
            // It is in no report: made known for this table alone.
            Engine.IntfDefines->AddInterface(IControl::Info);
            return MethodTable(name);
        }
        return Drives("I" + name) + "\n" + MethodTable(name);
    }
    /// The manual with every block as the code has it.
    std::string Rewritten(const std::string& text) {
        std::string result;
        std::size_t done = 0;
        for (std::size_t at; (at = text.find(BlockBegin, done)) != text.npos;) {
            const std::size_t name = at + BlockBegin.size(), begin = text.find(BlockName, name);
            const std::size_t end = text.find(BlockEnd, begin);
            if (begin == text.npos || end == text.npos) throw std::runtime_error("a block does not end");
            result += text.substr(done, begin + BlockName.size() - done) + "\n" +
                      Block(text.substr(name, begin - name)) + "\n";
            done = end;
        }
        return result + text.substr(done);
    }
};

}  // namespace

TEST_F(TControlsManual, TablesAreThoseOfTheCode) {
    const std::string text = ReadInputFile(Manual), wanted = Rewritten(text);
    if (std::getenv("RUX_UPDATE_DOCS"))
        std::ofstream(Manual, std::ios::binary) << wanted;
    else
        EXPECT_EQ(text, wanted) << "RUX_UPDATE_DOCS=1 build/test_docs writes the tables anew";
    for (const std::string& word : Words())
        EXPECT_TRUE(text.find(std::string(BlockBegin) + word + " ") != text.npos ||
                    !Engine.IntfDefines->FindDefine("I" + word))
            << word << " has no section";
    // Every refusal of an adapter stands there with its whole text.
    const std::regex literal("\"([^\"\\n]*[\\x80-\\xff][^\"\\n]*)\"");
    int refusals = 0;
    for (const auto& file :
         std::filesystem::directory_iterator(std::string(RUX_SOURCE_DIR) + "/Engine/Adapters")) {
        const std::string code = ReadInputFile(file.path().string());
        for (std::sregex_iterator at(code.begin(), code.end(), literal), end; at != end; ++at, ++refusals)
            EXPECT_NE(text.find((*at)[1]), text.npos) << file.path().filename() << ": " << (*at)[1];
    }
    EXPECT_GE(refusals, 8);
}

}  // namespace rux::test
