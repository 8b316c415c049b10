// Programs as child processes, and folders of their own for them.
#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace rux::test {

namespace fs = std::filesystem;
using TArgs = std::vector<std::string>;

inline TArgs operator+(TArgs first, const TArgs& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

class TTempFolder {
 public:
    TTempFolder() : FPath(mkdtemp((fs::temp_directory_path() / "rux-programs-XXXXXX").string().data())) {}
    TTempFolder(const TTempFolder&) = delete;
    TTempFolder& operator=(const TTempFolder&) = delete;
    ~TTempFolder() { fs::remove_all(FPath); }
    std::string Path(std::string_view name) const { return (FPath / name).string(); }
    /// Writes a file and gives its path.
    std::string File(std::string_view name, std::string_view bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }

 private:
    const fs::path FPath;
};

/// `text` with what stands between each `begin` and the next `end` replaced.
inline std::string Masked(std::string text, std::string_view begin, std::string_view end,
                          std::string_view by = "#") {
    for (std::size_t at = text.find(begin); at != text.npos; at = text.find(begin, at + by.size())) {
        at += begin.size();
        text.replace(at, std::min(text.find(end, at), text.size()) - at, by);
    }
    return text;
}

/// A child process, killed when this object goes, or when this process ends however it ends.
class TProgram {
 public:
    /// The first argument is a program of this build or one of the system.
    explicit TProgram(TArgs args, std::string_view input = "") {
        if (const std::string own = RUX_BINARY_DIR "/" + args[0]; fs::exists(own)) args[0] = own;
        std::vector<char*> pointers;
        for (std::string& arg : args) pointers.push_back(arg.data());
        pointers.push_back(nullptr);
        const int in = memfd_create("input", MFD_CLOEXEC);
        int out[2];
        EXPECT_EQ(pipe2(out, O_CLOEXEC), 0);
        EXPECT_EQ(pwrite(in, input.data(), input.size(), 0), static_cast<ssize_t>(input.size()));
        FProcess = fork();
        if (FProcess == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            dup2(in, 0), dup2(out[1], 1), dup2(FErrors, 2);
            execvp(pointers[0], pointers.data());
            _exit(127);
        }
        close(in), close(out[1]);
        FOut = out[0];
    }
    TProgram(const TProgram&) = delete;
    TProgram& operator=(const TProgram&) = delete;
    ~TProgram() {
        if (FProcess > 0) Signal(SIGKILL);
        Outcome();
        close(FOut), close(FErrors);
    }

    /// Nothing for a program that has ended: -1 would be everybody.
    void Signal(int number) {
        if (FProcess > 0) kill(FProcess, number);
    }
    /// The next line of the standard output that begins with `text`; those before it are dropped. The
    /// outcome, when there is none.
    std::string WaitForLine(std::string_view text) {
        for (;;) {
            std::size_t end;
            while ((end = FText.find('\n')) == FText.npos)
                if (!Fill()) return Outcome();
            const std::string line = FText.substr(0, end);
            FText.erase(0, end + 1);
            if (line.starts_with(text)) return line;
        }
    }
    /// Waits for the end. What is left of the standard output, "! " and the standard error if there is any,
    /// "= " and the exit status, or the signal as a negative number.
    std::string Outcome() {
        while (Fill()) {
        }
        int status = 0;
        if (FProcess < 0 || waitpid(std::exchange(FProcess, -1), &status, 0) < 0) return "";
        const off_t size = lseek(FErrors, 0, SEEK_END);
        std::string errors(static_cast<std::size_t>(size), ' ');
        if (size > 0)
            errors.resize(static_cast<std::size_t>(pread(FErrors, errors.data(), errors.size(), 0)));
        const int result = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return FText + (size > 0 ? "! " : "") + errors + "= " + std::to_string(result);
    }

 private:
    bool Fill() {
        char piece[4096];
        const ssize_t got = read(FOut, piece, sizeof piece);
        if (got > 0) FText.append(piece, static_cast<std::size_t>(got));
        return got > 0;
    }

    pid_t FProcess = -1;
    int FOut = -1;
    const int FErrors = memfd_create("errors", MFD_CLOEXEC);
    std::string FText;
};

inline std::string OutcomeOf(TArgs args, std::string_view input = "") {
    return TProgram(std::move(args), input).Outcome();
}

/// A rux-host that listens.
class TStartedHost : public TProgram {
 public:
    TStartedHost(const TTempFolder& folder, const TArgs& args)
        : TProgram(TArgs{"rux-host", "--work-dir", folder.Path("")} + args) {
        const std::string begin = "rux-host: port ", line = WaitForLine(begin);
        if (line.starts_with(begin)) PortText = line.substr(begin.size(), line.find(',') - begin.size());
        EXPECT_EQ(line, begin + PortText + ", work folder " + folder.Path("RUX_" + PortText + "/"));
    }
    std::uint16_t Port() const { return static_cast<std::uint16_t>(std::atoi(PortText.c_str())); }
    std::string PortText;
};

}  // namespace rux::test
