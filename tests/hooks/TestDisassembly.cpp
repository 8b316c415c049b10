// Lengths of instructions against a disassembler's, over the code of the 32-bit C library.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <functional>

#include "Engine/Hooks/RUXInstruction.h"
#include "HexText.h"

namespace rux::test {

namespace {

/// Calls `line` with each line that a command prints.
void ForEachLine(const std::string& command, const std::function<void(std::string_view)>& line) {
    std::FILE* const pipe = popen((command + " 2>/dev/null").c_str(), "r");
    if (!pipe) return;
    char* text = nullptr;
    std::size_t room = 0;
    for (ssize_t size; (size = getline(&text, &room, pipe)) > 0;)
        line({text, static_cast<std::size_t>(size - (text[size - 1] == '\n'))});
    std::free(text);
    pclose(pipe);
}

std::string FirstLine(const std::string& command) {
    std::string first;
    ForEachLine(command, [&](std::string_view line) {
        if (first.empty()) first = line;
    });
    return first;
}

/// The bytes of "  address:\tbytes \tinstruction"; none for other lines, and for bytes that are no code.
std::vector<std::uint8_t> BytesOf(std::string_view line) {
    const std::size_t colon = line.find(":\t"), end = line.find('\t', colon + 2);
    if (colon == std::string_view::npos || end == std::string_view::npos) return {};
    if (line.find("(bad)", end) != std::string_view::npos) return {};
    return FromHex(line.substr(colon + 2, end - colon - 2));
}

/// What the flag tables are coarse about. Lengths are counted from the opcode.
struct TKnownDifference {
    bool Escaped;
    std::uint8_t First, Last;
    std::size_t Length, RealLength;
    const char* Why;
    bool Met = false;
};

}  // namespace

TEST(TestDisassembly, LengthsAgreeButForTheTables) {
    std::vector<TKnownDifference> known = {
        {false, 0xD8, 0xDF, 2, 3, "x87 operand with a SIB byte: two bytes are counted"},
        {false, 0xD8, 0xDF, 2, 4, "x87 operand with a SIB byte and a short displacement"},
        {false, 0xD8, 0xDF, 2, 6, "x87 operand with a displacement"},
        {false, 0xD8, 0xDF, 2, 7, "x87 operand with a SIB byte and a displacement"},
        {true, 0x1E, 0x1E, 2, 3, "endbr32: an opcode without flags, whose ModRM byte is not counted"},
        {true, 0x38, 0x38, 2, 4, "a third opcode byte and ModRM, neither of which is known"},
        {true, 0x3A, 0x3A, 2, 5, "a third opcode byte, ModRM and an immediate"},
        {true, 0x3A, 0x3A, 2, 6, "the same with a short displacement"},
    };
    if (FirstLine("objdump --version").empty()) GTEST_SKIP() << "no objdump on this machine";
    const std::string library = FirstLine("readlink -f \"$(c++ -m32 -print-file-name=libc.so.6)\"");
    if (FirstLine("objdump -f \"" + library + "\" | grep elf32-i386").empty())
        GTEST_SKIP() << "no 32-bit C library on this machine";

    std::size_t compared = 0, unexpected = 0;
    ForEachLine("objdump -d -w --insn-width=16 \"" + library + "\"", [&](std::string_view line) {
        std::vector<std::uint8_t> code = BytesOf(line);
        if (code.empty()) return;
        ++compared;
        const std::size_t real = code.size();
        code.resize(real + InstructionSizeLimit, 0x90);
        std::size_t opcode = 0;
        const std::size_t length = InstructionLength(code, opcode);
        if (length == real) return;
        const bool escaped = code[opcode] == 0x0F;
        const std::uint8_t byte = code[opcode + escaped];
        for (TKnownDifference& row : known)
            if (row.Escaped == escaped && row.First <= byte && byte <= row.Last &&
                row.Length + opcode == length && row.RealLength + opcode == real) {
                row.Met = true;
                return;
            }
        if (++unexpected <= 20) ADD_FAILURE() << length << " instead of " << real << ": " << line;
    });
    std::printf("%zu instructions compared, %zu differ unexpectedly\n", compared, unexpected);
    EXPECT_GE(compared, 50000u);
    for (const TKnownDifference& row : known) EXPECT_TRUE(row.Met) << "never met: " << row.Why;
}

}  // namespace rux::test
