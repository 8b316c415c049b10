// Lengths of instructions, rule by rule.
#include <gtest/gtest.h>

#include "Engine/Hooks/RUXInstruction.h"
#include "HexText.h"

namespace rux::test {

namespace {

/// "length@opcode", with "r" for a relative one, of bytes with others behind them. Bytes that end within the
/// instruction must have no length, and the answer must not depend on what follows it.
std::string Measure(std::string_view hex) {
    const std::vector<std::uint8_t> code = FromHex(hex);
    std::vector<std::uint8_t> longer = code;
    longer.insert(longer.end(), {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF});
    std::size_t opcode = 99;
    const std::size_t length = InstructionLength(longer, opcode);
    for (std::size_t size = 0; size < longer.size(); ++size) {
        // Of its own, so that a sanitizer sees a byte read behind it.
        const std::vector<std::uint8_t> cut(longer.begin(),
                                            longer.begin() + static_cast<std::ptrdiff_t>(size));
        std::size_t ignored = 0;
        const std::size_t expected = size < length ? 0 : length;
        if (InstructionLength(cut, ignored) != expected) return "cut at " + std::to_string(size);
    }
    const bool relative = IsRelativeInstruction(TCodeBytes(longer).subspan(opcode));
    return std::to_string(length) + "@" + std::to_string(opcode) + (relative ? "r" : "");
}

}  // namespace

TEST(TestInstruction, LengthsByRule) {
    // Bytes, and what is measured.
    const char* const rows[] = {
        "55 = 1@0", "8B EC = 2@0", "83 EC 10 = 3@0",
        // Prefixes of each kind, and as many as are allowed.
        "26 2E 36 3E 64 65 F0 F2 F3 90 = 10@9", "66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90 = 17@16",
        "66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 66 90 = 0@17",
        // An immediate of the operand size.
        "05 11 22 33 44 = 5@0", "66 05 11 22 = 4@1", "67 05 11 22 33 44 = 6@1", "68 11 22 33 44 = 5@0",
        "81 C0 11 22 33 44 = 6@0", "66 69 C0 11 22 = 5@1", "6B C0 11 = 3@0",
        "C7 05 11 22 33 44 55 66 77 88 = 10@0",
        // Immediates of one size always, and two of them.
        "C2 11 22 = 3@0", "66 C2 11 22 = 4@1", "C8 11 22 33 = 4@0", "9A 11 22 33 44 55 66 = 7@0",
        "66 EA 11 22 33 44 = 6@1",
        // An address instead of an immediate.
        "A1 11 22 33 44 = 5@0", "66 A3 11 22 33 44 = 6@1", "67 A0 11 22 = 4@1", "A9 11 22 33 44 = 5@0",
        "66 A9 11 22 = 4@1",
        // Displacements with 32-bit addresses, without a SIB byte and with one.
        "8B 00 = 2@0", "8B 05 11 22 33 44 = 6@0", "8B 45 11 = 3@0", "8B 85 11 22 33 44 = 6@0", "8B C4 = 2@0",
        "8B C5 = 2@0", "8B 04 24 = 3@0", "8B 04 25 11 22 33 44 = 7@0", "8B 44 25 11 = 4@0",
        "8B 84 25 11 22 33 44 = 7@0",
        // With 16-bit addresses.
        "67 8B 05 = 3@1", "67 8B 06 11 22 = 5@1", "67 8B 04 = 3@1", "67 8B 46 11 = 4@1",
        "67 8B 84 11 22 = 5@1", "67 8B C6 = 3@1",
        // Of the groups F6 and F7 only the first member has an immediate; behind 0F the numbers mean others.
        "F6 C0 11 = 3@0", "F6 45 22 11 = 4@0", "F6 D8 = 2@0", "F7 04 24 11 22 33 44 = 7@0",
        "66 F7 C1 11 22 = 5@1", "F7 F9 = 2@0", "0F F6 C0 = 3@0", "0F F7 C0 = 3@0", "0F A1 = 2@0",
        "67 0F A3 C0 = 4@1",
        // Relative ones.
        "E8 11 22 33 44 = 5@0r", "66 E9 11 22 = 4@1r", "EB 11 = 2@0", "74 11 = 2@0",
        "0F 84 11 22 33 44 = 6@0r", "66 0F 8F 11 22 = 5@1r", "FF 15 11 22 33 44 = 6@0r", "FF D0 = 2@0r",
        // Behind 0F.
        "0F B6 45 11 = 4@0", "0F BA E0 11 = 4@0", "66 0F 70 C0 11 = 5@1", "0F A2 = 2@0",
        "0F C2 04 24 11 = 5@0",
        // What the tables are coarse about.
        "D9 45 = 2@0", "DD D8 = 2@0", "0F 1F = 2@0", "0F 38 = 2@0", "C5 F8 = 2@0", "C4 44 24 11 = 4@0",
        "F3 0F B8 = 3@1"};
    for (const std::string row : rows) {
        const std::size_t end = row.find(" = ");
        EXPECT_EQ(Measure(row.substr(0, end)), row.substr(end + 3)) << row;
    }
    std::size_t opcode = 0;
    EXPECT_EQ(InstructionLength({}, opcode), 0u);
    EXPECT_FALSE(IsRelativeInstruction({}));
    EXPECT_FALSE(IsRelativeInstruction(FromHex("0F")));
}

}  // namespace rux::test
