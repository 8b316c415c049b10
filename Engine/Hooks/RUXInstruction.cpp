#include "Engine/Hooks/RUXInstruction.h"

#include <algorithm>
#include <array>

namespace rux {

namespace {

enum TOpcodeFlag : std::uint8_t {
    ModRm = 0x01,
    Imm8 = 0x02,
    Imm16 = 0x04,
    Imm32 = 0x08,
    ImmOperand = 0x10,  // of the operand size
    TwoBytes = 0x20,    // the x87 escapes
    Relative = 0x40,
};

struct TOpcodeRun {
    std::uint8_t First, Last, Flags;
};
using TOpcodeTable = std::array<std::uint8_t, 256>;

/// Opcodes outside of the runs have no flag.
template <std::size_t N>
constexpr TOpcodeTable MakeTable(const TOpcodeRun (&runs)[N]) {
    TOpcodeTable table{};
    for (const TOpcodeRun& run : runs)
        for (unsigned opcode = run.First; opcode <= run.Last; ++opcode) table[opcode] = run.Flags;
    return table;
}

constexpr TOpcodeTable OneByteTable = MakeTable({
    {0x00, 0x03, 0x01}, {0x04, 0x04, 0x02}, {0x05, 0x05, 0x10}, {0x08, 0x0B, 0x01}, {0x0C, 0x0C, 0x02},
    {0x0D, 0x0D, 0x10}, {0x10, 0x13, 0x01}, {0x14, 0x14, 0x02}, {0x15, 0x15, 0x10}, {0x18, 0x1B, 0x01},
    {0x1C, 0x1C, 0x02}, {0x1D, 0x1D, 0x10}, {0x20, 0x23, 0x01}, {0x24, 0x24, 0x02}, {0x25, 0x25, 0x10},
    {0x28, 0x2B, 0x01}, {0x2C, 0x2C, 0x02}, {0x2D, 0x2D, 0x10}, {0x30, 0x33, 0x01}, {0x34, 0x34, 0x02},
    {0x35, 0x35, 0x10}, {0x38, 0x3B, 0x01}, {0x3C, 0x3C, 0x02}, {0x3D, 0x3D, 0x10}, {0x62, 0x63, 0x01},
    {0x68, 0x68, 0x10}, {0x69, 0x69, 0x11}, {0x6A, 0x6A, 0x02}, {0x6B, 0x6B, 0x03}, {0x70, 0x7F, 0x02},
    {0x80, 0x80, 0x03}, {0x81, 0x81, 0x11}, {0x82, 0x83, 0x03}, {0x84, 0x8F, 0x01}, {0x9A, 0x9A, 0x14},
    {0xA0, 0xA3, 0x10}, {0xA8, 0xA8, 0x02}, {0xA9, 0xA9, 0x10}, {0xB0, 0xB7, 0x02}, {0xB8, 0xBF, 0x10},
    {0xC0, 0xC1, 0x03}, {0xC2, 0xC2, 0x04}, {0xC4, 0xC5, 0x01}, {0xC6, 0xC6, 0x03}, {0xC7, 0xC7, 0x11},
    {0xC8, 0xC8, 0x06}, {0xCA, 0xCA, 0x04}, {0xCD, 0xCD, 0x02}, {0xD0, 0xD3, 0x01}, {0xD4, 0xD5, 0x02},
    {0xD8, 0xDF, 0x20}, {0xE0, 0xE7, 0x02}, {0xE8, 0xE9, 0x50}, {0xEA, 0xEA, 0x14}, {0xEB, 0xEB, 0x02},
    {0xF6, 0xF7, 0x01}, {0xFE, 0xFE, 0x01}, {0xFF, 0xFF, 0x41},
});

/// Opcodes behind 0F.
constexpr TOpcodeTable EscapedTable = MakeTable({
    {0x00, 0x03, 0x01}, {0x0D, 0x0D, 0x01}, {0x0F, 0x0F, 0x03}, {0x10, 0x18, 0x01}, {0x20, 0x24, 0x01},
    {0x26, 0x26, 0x01}, {0x28, 0x2F, 0x01}, {0x40, 0x6F, 0x01}, {0x70, 0x73, 0x03}, {0x74, 0x76, 0x01},
    {0x7C, 0x7F, 0x01}, {0x80, 0x8F, 0x50}, {0x90, 0x9F, 0x01}, {0xA3, 0xA3, 0x01}, {0xA4, 0xA4, 0x03},
    {0xA5, 0xA5, 0x01}, {0xAB, 0xAB, 0x01}, {0xAC, 0xAC, 0x03}, {0xAD, 0xB7, 0x01}, {0xBA, 0xBA, 0x03},
    {0xBB, 0xC1, 0x01}, {0xC2, 0xC2, 0x03}, {0xC3, 0xC3, 0x01}, {0xC4, 0xC6, 0x03}, {0xC7, 0xC7, 0x01},
    {0xD0, 0xFE, 0x01},
});

constexpr std::uint8_t Escape = 0x0F, OperandSizePrefix = 0x66, AddressSizePrefix = 0x67;
constexpr std::size_t PrefixLimit = 16;
constexpr std::array<std::uint8_t, 11> Prefixes{0x26, 0x2E, 0x36, 0x3E, 0x64, 0x65,
                                                0x66, 0x67, 0xF0, 0xF2, 0xF3};

bool IsPrefix(std::uint8_t byte) {
    return std::find(Prefixes.begin(), Prefixes.end(), byte) != Prefixes.end();
}

/// Flags of the opcode that `code` starts with. False when it is cut short.
bool OpcodeFlags(TCodeBytes code, unsigned& flags) {
    const std::size_t size = !code.empty() && code[0] == Escape ? 2 : 1;
    if (code.size() < size) return false;
    flags = size == 2 ? EscapedTable[code[1]] : OneByteTable[code[0]];
    return true;
}

/// Bytes of the operand at `code`: ModRM, SIB, displacement. False when it is cut short within the first two.
bool OperandLength(TCodeBytes code, bool address16, std::size_t& length) {
    if (code.empty()) return false;
    const unsigned mod = code[0] >> 6, rm = code[0] & 7u;
    const bool sib = !address16 && rm == 4 && mod != 3;
    if (sib && code.size() < 2) return false;
    const std::size_t far = address16 ? 2 : 4;
    length = sib ? 2 : 1;
    if (mod == 1) length += 1;
    if (mod == 2) length += far;
    if (mod == 0 && (sib ? code[1] & 7u : rm) == (address16 ? 6u : 5u)) length += far;
    return true;
}

std::size_t ImmediateLength(unsigned flags, bool half) {
    std::size_t length = 0;
    if (flags & Imm8) length += 1;
    if (flags & Imm16) length += 2;
    if (flags & Imm32) length += 4;
    if (flags & ImmOperand) length += half ? 2 : 4;
    return length;
}

}  // namespace

std::size_t InstructionLength(TCodeBytes code, std::size_t& opcode) {
    bool operand16 = false, address16 = false;
    std::size_t at = 0;
    for (; at < code.size() && IsPrefix(code[at]); ++at) {
        operand16 |= code[at] == OperandSizePrefix;
        address16 |= code[at] == AddressSizePrefix;
    }
    opcode = at;
    unsigned flags = 0;
    if (at > PrefixLimit || !OpcodeFlags(code.subspan(at), flags)) return 0;
    const std::uint8_t first = code[at];
    at += first == Escape ? 2 : 1;
    if (flags & TwoBytes) ++at;
    if (flags & ModRm) {
        std::size_t operand = 0;
        if (!OperandLength(code.subspan(at), address16, operand)) return 0;
        // Of these groups only `test` has an immediate.
        const bool test = (code[at] >> 3 & 7) == 0;
        if (first == 0xF6 && test) flags |= Imm8;
        if (first == 0xF7 && test) flags |= ImmOperand;
        at += operand;
    }
    // What A0 to A3 have behind them is an address.
    const bool isAddress = first >= 0xA0 && first <= 0xA3;
    at += ImmediateLength(flags, isAddress ? address16 : operand16);
    return at <= code.size() ? at : 0;
}

bool IsRelativeInstruction(TCodeBytes code) {
    unsigned flags = 0;
    return OpcodeFlags(code, flags) && (flags & Relative);
}

}  // namespace rux
