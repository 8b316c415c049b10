// Real form files against counts of an independent reader, and forms of unusual size.
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "tests/forms/FormTestSupport.h"
#include "tests/support/SmallStack.h"

namespace rux::test {

namespace {

namespace fs = std::filesystem;

fs::path FormsFolder() {
    const char* folder = std::getenv("RUX_FORMS");
    return folder ? fs::path(folder) : fs::path(RUX_SOURCE_DIR) / "../shared/forms";
}

std::string ReadFile(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// What the columns of the table count, as comparing showed: `properties` and `strings` are those of objects
/// and of items on all levels; `listvalues` counts an inner list as one and its values too; a concatenation
/// is one string; `maxdepth` is 0 for a lone root.
class TFormCounter {
 public:
    std::string Row(const std::string& name, const TFormFile& file) {
        std::vector<int> depths;
        for (const TFormObject& object : file.Objects) {
            depths.push_back(object.Parent < 0 ? 0 : depths[static_cast<std::size_t>(object.Parent)] + 1);
            CountProperties(object.Properties);
        }
        std::ostringstream row;
        row << name << '\t' << file.Objects[0].ClassName << '\t' << file.Objects.size() << '\t' << FProperties
            << '\t' << FItems << '\t' << FListValues << '\t' << FStrings << '\t' << FBlobs << '\t'
            << FBlobBytes << '\t' << *std::max_element(depths.begin(), depths.end()) << '\t';
        return row.str();
    }

 private:
    void CountProperties(const std::vector<TFormProperty>& properties) {
        for (const TFormProperty& property : properties) {
            ++FProperties;
            Count(property.Value);
        }
    }

    void Count(const TFormValue& value) {
        if (value.As<TFormString>()) ++FStrings;
        if (const auto* binary = value.As<TFormBinary>()) {
            ++FBlobs;
            FBlobBytes += binary->Bytes.size();
        }
        if (const auto* list = value.As<TFormList>()) {
            FListValues += list->Values.size();
            for (const TFormValue& inner : list->Values) Count(inner);
        }
        if (const auto* collection = value.As<TFormCollection>()) {
            FItems += collection->Items.size();
            for (const TFormItem& item : collection->Items) CountProperties(item.Properties);
        }
    }

    std::size_t FProperties = 0, FItems = 0, FListValues = 0, FStrings = 0, FBlobs = 0, FBlobBytes = 0;
};

class FormFiles : public FormTest {
 protected:
    void SetUp() override {
        if (!fs::exists(FormsFolder() / "COUNTS.tsv")) GTEST_SKIP() << "no form files in " << FormsFolder();
    }
};

TEST_F(FormFiles, CountsAgree) {
    std::ifstream table(FormsFolder() / "COUNTS.tsv");
    std::string row;
    std::getline(table, row);
    ASSERT_EQ(
        row,
        "file\troot\tobjects\tproperties\titems\tlistvalues\tstrings\tblobs\tblobbytes\tmaxdepth\terror");
    int files = 0;
    for (; std::getline(table, row); ++files) {
        std::string name = row.substr(0, row.find('\t'));
        TFormFile file = ParseFormFile(name, ReadFile(FormsFolder() / name));
        EXPECT_EQ(TFormCounter().Row(name, file), row);
    }
    EXPECT_GT(files, 0);
}

TEST_F(FormFiles, SurviveWritingAndReading) {
    for (const fs::directory_entry& entry : fs::directory_iterator(FormsFolder())) {
        if (entry.path().extension() != ".dfm") continue;
        std::string bytes = ReadFile(entry.path());
        EXPECT_EQ(DumpOfWritten(bytes), DumpOf(bytes)) << entry.path();
    }
}

TEST_F(FormTest, DeepChainsAndDeepValuesNeedLittleStack) {
    OnSmallStack(1 << 20, [] {
        constexpr int depth = 20'000;
        std::string text;
        for (std::size_t i = 0; i < depth; ++i)
            text += "object P" + std::to_string(i) + ": TPanel\nTag = 1\n";
        for (std::size_t i = 0; i < depth; ++i) text += "end\n";
        TFormFile file = ParseFormFile("deep.dfm", text);
        ASSERT_EQ(file.Objects.size(), depth);
        EXPECT_EQ(file.Objects.back().Parent, static_cast<int>(depth) - 2);
        std::string written = WriteFormFile(file);
        // Indentation stops somewhere, or the text would have hundreds of megabytes.
        EXPECT_LT(written.size(), std::size_t{300} * depth);
        EXPECT_EQ(DumpOf(written), DumpFormFile(file));
        TFormFile copy = file;
        file = {};
        EXPECT_EQ(copy.Objects.size(), std::size_t{depth});
    });
    OnSmallStack(1 << 20, [] {
        std::string form = "object F: TF A = " + Repeat(32, "<item A = (") + Repeat(32, ") end>") + " end";
        EXPECT_EQ(DumpOfWritten(form), DumpOf(form));
    });
}

/// Each text is one that a careless reader takes quadratic time for.
TEST_F(FormTest, LargeFormsTakeLinearTime) {
    const int count = 100'000;
    const std::string forms[] = {
        "object F: TF A = 'x'" + Repeat(count, " +\n'x'") + " end",
        "object F: TF A = 'x'" + Repeat(count, "#20013''") + " end",
        "object F: TF A =\nb" + Repeat(count, ".c") + " = 1 end",
        "object F: TF " + Repeat(count, "A =\n") + "end",
        "object F: TF A = {" + Repeat(count, "00\n") + "} end",
        "object F: TF " + Repeat(count, "object TLabel end ") + "end",
    };
    for (const std::string& form : forms) {
        std::clock_t start = std::clock();
        std::string dump = DumpOf(form);
        EXPECT_TRUE(dump.starts_with("0: object F: TF\n")) << dump.substr(0, 200);
        EXPECT_EQ(DumpOfWritten(form), dump);
        EXPECT_LT((std::clock() - start) / CLOCKS_PER_SEC, 20) << form.substr(0, 40);
    }
}

}  // namespace

}  // namespace rux::test
