// Real functions patched in a real process: a 32-bit program that is built from live/ and run.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace rux::test {

namespace {

namespace fs = std::filesystem;

class TLive : public testing::Test {
 protected:
    void SetUp() override {
        std::string name = (fs::temp_directory_path() / "live-XXXXXX").string();
        ASSERT_TRUE(mkdtemp(name.data()));
        FFolder = name;
    }
    void TearDown() override {
        if (!FFolder.empty()) fs::remove_all(FFolder);
    }

    /// Exit code; what the command prints is in Output().
    int Run(const std::string& command) {
        const int status =
            std::system(("cd \"" + FFolder.string() + "\" && " + command + " >output 2>&1").c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::string Output() const {
        std::stringstream text;
        text << std::ifstream(FFolder / "output").rdbuf();
        return text.str();
    }
    void Write(const char* file, const char* text) { std::ofstream(FFolder / file) << text; }

 private:
    fs::path FFolder;
};

}  // namespace

TEST_F(TLive, FunctionsArePatchedAndRestored) {
    Write("probe.cpp", "#include <string>\nint main() { return std::string(\"x\").size() - 1; }\n");
    if (Run("c++ -m32 probe.cpp -o probe && ./probe") != 0)
        GTEST_SKIP() << "no 32-bit program can be built and run here: " << Output();
    const std::string source = RUX_SOURCE_DIR;
    const std::string compiler = "c++ -m32 -std=c++20 -O1 -Wall -Wextra -Wshadow -Werror -no-pie -fno-pie";
    ASSERT_EQ(
        Run(compiler + " -I\"" + source + "\" \"" + source + "\"/tests/hooks/live/*.cpp \"" + source +
            "\"/Engine/Hooks/SolviHookUtils.cpp \"" + source + "\"/Engine/Hooks/RUXInstruction.cpp -o live"),
        0)
        << Output();
    EXPECT_EQ(Run("./live"), 0) << Output();
    EXPECT_NE(Output().find("ok LiveRegister: nothing to restore any more\n"), std::string::npos);
}

}  // namespace rux::test
