// Lengths of instructions: rule by rule, and against a disassembler's over the 32-bit C library.
#include <gtest/gtest.h>

#include "CodeSupport.h"
#include "Engine/Hooks/RUXInstruction.h"

namespace rux::test {

namespace {

/// "length@opcode", with "r" for a relative one, of bytes with others behind them. Bytes that end within the
/// instruction must have no length, and the answer must not depend on what follows it.
std::string Measure(std::string_view hex) {
    std::vector<std::uint8_t> code = FromHex(hex);
    code.insert(code.end(), 8, 0xFF);
    std::size_t opcode = 99, ignored = 0;
    const std::size_t length = InstructionLength(code, opcode);
    for (std::size_t size = 0; size < code.size(); ++size) {
        // Of its own, so that a sanitizer sees a byte read behind it.
        const std::vector<std::uint8_t> cut(code.data(), code.data() + size);
        if (InstructionLength(cut, ignored) != (size < length ? 0 : length))
            return "cut at " + std::to_string(size);
    }
    const bool relative = IsRelativeInstruction(TCodeBytes(code).subspan(opcode));
    return std::to_string(length) + "@" + std::to_string(opcode) + (relative ? "r" : "");
}

constexpr const char* Rules = R"(
plain: 55 = 1@0; 8B EC = 2@0; 83 EC 10 = 3@0;
prefixes of each kind: 26 2E 36 3E 64 65 F0 F2 F3 90 = 10@9;
as many as are allowed: 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90 = 17@16;
one more: 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90 = 0@17;
immediate of the operand size: 05 11 22 33 44 = 5@0; 66 05 11 22 = 4@1; 67 05 11 22 33 44 = 6@1;
    68 11 22 33 44 = 5@0; 81 C0 11 22 33 44 = 6@0; 66 69 C0 11 22 = 5@1; C7 05 11 22 33 44 55 66 77 88 = 10@0;
of one size always, and two: 6B C0 11 = 3@0; C2 11 22 = 3@0; 66 C2 11 22 = 4@1; C8 11 22 33 = 4@0;
    9A 11 22 33 44 55 66 = 7@0; 66 EA 11 22 33 44 = 6@1;
an address instead: A1 11 22 33 44 = 5@0; 66 A3 11 22 33 44 = 6@1; 67 A0 11 22 = 4@1;
    and behind those none: A9 11 22 33 44 = 5@0; 66 A9 11 22 = 4@1;
32-bit addresses: 8B 00 = 2@0; 8B 05 11 22 33 44 = 6@0; 8B 45 11 = 3@0; 8B 85 11 22 33 44 = 6@0; 8B C5 = 2@0;
with a SIB byte: 8B 04 24 = 3@0; 8B 04 25 11 22 33 44 = 7@0; 8B 44 25 11 = 4@0; 8B 84 25 11 22 33 44 = 7@0;
    and with a register none: 8B C4 = 2@0;
16-bit addresses: 67 8B 05 = 3@1; 67 8B 06 11 22 = 5@1; 67 8B 04 = 3@1; 67 8B 46 11 = 4@1;
    67 8B 84 11 22 = 5@1; 67 8B C6 = 3@1;
first member of a group: F6 C0 11 = 3@0; F6 45 22 11 = 4@0; F7 04 24 11 22 33 44 = 7@0; 66 F7 C1 11 22 = 5@1;
    another: F6 D8 = 2@0; F7 F9 = 2@0;
the same numbers behind 0F: 0F F6 C0 = 3@0; 0F F7 C0 = 3@0; 0F A1 = 2@0; 67 0F A3 C0 = 4@1;
behind 0F: 0F B6 45 11 = 4@0; 0F BA E0 11 = 4@0; 66 0F 70 C0 11 = 5@1; 0F A2 = 2@0; 0F C2 04 24 11 = 5@0;
relative: E8 11 22 33 44 = 5@0r; 66 E9 11 22 = 4@1r; 0F 84 11 22 33 44 = 6@0r; 66 0F 8F 11 22 = 5@1r;
    not the short ones: EB 11 = 2@0; 74 11 = 2@0;
    all of FF, whose operand is none: FF 15 11 22 33 44 = 6@0r; FF D0 = 2@0r;
too coarse: D9 45 = 2@0; DD D8 = 2@0; 0F 1F = 2@0; 0F 38 = 2@0; C5 F8 = 2@0; C4 44 24 11 = 4@0; F3 0F B8 = 3@1)";

}  // namespace

TEST(TestInstruction, LengthsByRule) {
    std::istringstream rules(Rules);
    for (std::string row; std::getline(rules, row, ';');) {
        const std::size_t start = row.find_first_not_of(" \n", row.find(':') + 1), end = row.find(" = ");
        EXPECT_EQ(Measure(row.substr(start, end - start)), row.substr(end + 3)) << row;
    }
    std::size_t opcode = 0;
    EXPECT_EQ(InstructionLength({}, opcode), 0u);
    EXPECT_FALSE(IsRelativeInstruction({}));
    EXPECT_FALSE(IsRelativeInstruction(FromHex("0F")));
}

TEST(TestInstruction, LengthsAgreeWithADisassemblersButForTheTables) {
    std::FILE* const pipe = popen(
        "library=$(readlink -f \"$(c++ -m32 -print-file-name=libc.so.6)\") && "
        "objdump -f \"$library\" | grep -q elf32-i386 && objdump -d -w --insn-width=16 \"$library\"",
        "r");
    std::stringstream lines;
    char part[4096];
    while (const std::size_t size = pipe ? std::fread(part, 1, sizeof part, pipe) : 0)
        lines.write(part, static_cast<std::streamsize>(size));
    if (pipe) pclose(pipe);
    std::size_t compared = 0;
    std::map<std::string, std::string> found;  // and a line for each
    // "  address:\tbytes \tinstruction"
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(":\t"), end = line.find('\t', colon + 2);
        if (colon == std::string::npos || end == std::string::npos) continue;
        if (line.find("(bad)", end) != std::string::npos) continue;
        std::vector<std::uint8_t> code = FromHex(std::string_view(line).substr(colon + 2, end - colon - 2));
        const std::size_t real = code.size();
        code.resize(real + InstructionSizeLimit, 0x90);
        std::size_t opcode = 0;
        const std::size_t length = InstructionLength(code, opcode);
        ++compared;
        if (length == real) continue;
        const bool escaped = code[opcode] == 0x0F, x87 = (code[opcode] & 0xF8) == 0xD8;
        const std::string name = x87 ? "x87" : ToHex(TCodeBytes(code).subspan(opcode, escaped ? 2 : 1));
        found[name + " " + std::to_string(length - opcode) + " of " + std::to_string(real - opcode)] = line;
    }
    std::printf("%zu instructions compared\n", compared);
    EXPECT_GE(compared, 50000u);
    std::string differences;
    for (const auto& [difference, line] : found) differences += difference + "\n";
    EXPECT_EQ(differences,
              "0F 1E 2 of 3\n"  // endbr32: an opcode without flags, whose ModRM byte is not counted
              "0F 38 2 of 4\n"  // a third opcode byte and ModRM, neither of which is known
              "0F 3A 2 of 5\n"  // and an immediate
              "0F 3A 2 of 6\n"  // and a short displacement
              // Two bytes are counted, whatever SIB byte and displacement the operand has.
              "x87 2 of 3\nx87 2 of 4\nx87 2 of 6\nx87 2 of 7\n")
        << testing::PrintToString(found);
}

}  // namespace rux::test
