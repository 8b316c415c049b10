#include "Engine/Hooks/SolviHookUtils.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "Engine/Hooks/RUXInstruction.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

using TBytes = std::vector<std::uint8_t>;

constexpr std::size_t PageSize = 4096;
constexpr std::uint8_t JumpOpcode = 0xE9;
/// The opcode and a displacement of four bytes from the jump's end.
constexpr std::size_t JumpSize = 5;
/// Target and count before the moved instructions.
constexpr std::size_t HeaderSize = 5;

/// Up to `size` bytes: as many as can be read.
TBytes ReadCode(TCodeService& code, TCodeAddress address, std::size_t size) {
    TBytes bytes(size);
    const std::size_t inPage = std::min<std::size_t>(size, PageSize - address % PageSize);
    std::size_t done = 0;
    try {
        code.ReadMemory(address, bytes.data(), inPage);
        done = inPage;
        const auto next = static_cast<TCodeAddress>(address + inPage);
        if (inPage < size) code.ReadMemory(next, bytes.data() + inPage, size - inPage);
        done = size;
    } catch (const EAccessViolation&) {
        // The function may stand at the end of what there is.
    }
    bytes.resize(done);
    return bytes;
}

/// Values lie in memory as the processor keeps them, low byte first; so does every machine that this runs on.
std::uint32_t Dword(TCodeBytes bytes, std::size_t at) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

void PutDword(std::span<std::uint8_t> bytes, std::size_t at, std::uint32_t value) {
    std::memcpy(bytes.data() + at, &value, sizeof value);
}

/// Adds `delta` to the displacement of the instruction whose opcode is at `opcode`, if it is marked as
/// relative. Answers the end of what was changed.
///
/// The place is the byte behind the opcode for all of them, and is kept so. Of 0F 8x it is one byte early:
/// the opcode itself changes, so that the copy does something else and is not known again when it is to be
/// put back. Of FF, and of a call or jump with a 16-bit displacement, it takes in bytes that are none, up to
/// three behind the instruction. A function that starts with one of these is not fit to be patched.
std::size_t AddToDisplacement(std::span<std::uint8_t> bytes, std::size_t opcode, std::uint32_t delta) {
    const std::size_t place = opcode + 1, end = place + 4;
    if (end > bytes.size() || !IsRelativeInstruction(bytes.subspan(opcode))) return 0;
    PutDword(bytes, place, Dword(bytes, place) + delta);
    return end;
}

/// The whole instructions that the first five bytes of `source` cut, for a place `delta` bytes before theirs.
/// Empty when one of them cannot be decoded. Short jumps are left as they are, and so jump to nowhere.
TBytes MoveInstructions(TCodeBytes source, std::uint32_t delta) {
    TBytes moved;
    std::size_t at = 0;
    while (at < JumpSize) {
        std::size_t opcode = 0;
        const std::size_t length = InstructionLength(source.subspan(at), opcode);
        if (length == 0) return {};
        moved.resize(at);
        moved.insert(moved.end(), source.begin() + at, source.begin() + at + length);
        // Room for the displacement that is none; the next instruction takes its place.
        moved.resize(at + length + 4);
        AddToDisplacement(moved, at + opcode, delta);
        at += length;
    }
    moved.resize(at);
    return moved;
}

/// Turns moved instructions at the start of `image` back into what they were. `end` becomes the end of what
/// was changed. Answers where the last instruction ends.
std::size_t RestoreInstructions(std::span<std::uint8_t> image, std::size_t count, std::uint32_t delta,
                                std::size_t& end) {
    std::size_t at = 0;
    end = count;
    while (at < count) {
        std::size_t opcode = 0;
        const std::size_t length = InstructionLength(image.subspan(at), opcode);
        if (length == 0) break;
        end = std::max(end, AddToDisplacement(image, at + opcode, 0 - delta));
        at += length;
    }
    return at;
}

/// Lets the first bytes of a function be written.
class TWritableCode {
 public:
    TWritableCode(TCodeService& code, TCodeAddress target) : FCode(code), FTarget(target) {
        FOpen = FCode.VirtualProtect(target, JumpSize, PAGE_EXECUTE_READWRITE, FOld);
    }
    ~TWritableCode() { PutBack(FTarget); }
    TWritableCode(const TWritableCode&) = delete;
    TWritableCode& operator=(const TWritableCode&) = delete;
    bool Open() const { return FOpen; }
    void PutBack(TCodeAddress address) {
        std::uint32_t ignored = 0;
        if (FOpen) FCode.VirtualProtect(address, JumpSize, FOld, ignored);
        FOpen = false;
    }

 private:
    TCodeService& FCode;
    const TCodeAddress FTarget;
    std::uint32_t FOld = 0;
    bool FOpen = false;
};

std::array<std::uint8_t, JumpSize> Jump(std::uint32_t displacement) {
    std::array<std::uint8_t, JumpSize> bytes{JumpOpcode};
    PutDword(bytes, 1, displacement);
    return bytes;
}

TBytes TrampolineBytes(TCodeAddress target, const TBytes& moved, std::uint32_t delta) {
    TBytes bytes(HeaderSize);
    PutDword(bytes, 0, target);
    bytes[4] = static_cast<std::uint8_t>(moved.size());
    bytes.insert(bytes.end(), moved.begin(), moved.end());
    // As far from the jump's end to the first byte that stayed as from the first moved byte to its old place,
    // less the jump itself.
    const auto back = Jump(delta - JumpSize);
    bytes.insert(bytes.end(), back.begin(), back.end());
    return bytes;
}

}  // namespace

bool HookCode(TCodeService& code, TCodeAddress target, TCodeAddress replacement, TCodeAddress& trampoline) {
    TWritableCode writable(code, target);
    if (!writable.Open()) return false;
    const auto jump = Jump(replacement - target - static_cast<std::uint32_t>(JumpSize));
    // Not tested, and kept so: without memory the block is at 0, where the first write raises.
    const TCodeAddress block = code.VirtualAlloc(PageSize, MEM_COMMIT, PAGE_EXECUTE_READWRITE);
    const TCodeAddress start = block + static_cast<TCodeAddress>(HeaderSize);
    const TBytes moved =
        MoveInstructions(ReadCode(code, target, JumpSize + InstructionSizeLimit), target - start);
    if (moved.empty()) {
        code.VirtualFree(block, MEM_RELEASE);
        return false;
    }
    const TBytes bytes = TrampolineBytes(target, moved, target - start);
    code.WriteMemory(block, bytes.data(), bytes.size());
    code.WriteMemory(target, jump.data(), jump.size());
    trampoline = start;
    return true;
}

bool UnhookCode(TCodeService& code, TCodeAddress& trampoline) {
    if (trampoline == 0) return false;
    const TCodeAddress block = trampoline - static_cast<TCodeAddress>(HeaderSize);
    const TBytes header = ReadCode(code, block, HeaderSize);
    if (header.size() < HeaderSize) return false;
    const TCodeAddress target = Dword(header, 0);
    const std::size_t count = header[4];
    TWritableCode writable(code, target);
    if (!writable.Open()) return false;

    const TBytes patched = ReadCode(code, target, count + InstructionSizeLimit);
    const TBytes moved = ReadCode(code, trampoline, count);
    if (moved.size() < count || patched.size() < count) return false;
    TBytes image = patched;
    std::copy(moved.begin(), moved.end(), image.begin());
    std::size_t end = 0;
    const std::size_t walked = RestoreInstructions(image, count, target - trampoline, end);
    // Behind the jump the bytes mostly are as they were, and may lie on a page that cannot be written.
    while (end > 0 && image[end - 1] == patched[end - 1]) --end;
    try {
        code.WriteMemory(target, image.data(), end);
    } catch (const EAccessViolation&) {
        return false;
    }
    // Behind the restored instructions, not at the function, and kept so: where they end with their page, the
    // function's page stays writable.
    writable.PutBack(target + static_cast<TCodeAddress>(walked));
    code.VirtualFree(block, MEM_RELEASE);
    trampoline = 0;
    return true;
}

TCodeAddress ResolveCodeAddress(TCodeService& code, TCodeAddress address) {
    if (address == 0) return 0;
    TBytes bytes = ReadCode(code, address, 6);
    // Systems before NT lead calls through a thunk: push the real address, jump to the kernel.
    if (!code.IsNtFamily() && bytes.size() == 6 && bytes[0] == 0x68 && bytes[5] == JumpOpcode) {
        address = Dword(bytes, 1);
        bytes = ReadCode(code, address, 6);
    }
    if (bytes.size() < 6 || bytes[0] != 0xFF || bytes[1] != 0x25) return address;
    const TBytes memory = ReadCode(code, Dword(bytes, 2), 4);
    return memory.size() == 4 ? Dword(memory, 0) : address;
}

}  // namespace rux
