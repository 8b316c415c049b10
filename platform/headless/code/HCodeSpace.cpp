#include "platform/headless/code/HCodeSpace.h"

#include <array>
#include <cstdio>
#include <cstring>

#include "platform/headless/HLimits.h"
#include "rtl/Exceptions.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::uint32_t PageSize = 4096;
/// Room for one function: prologue, body, return.
constexpr std::uint32_t SlotSize = 16;
/// Places of freed functions that rest before the first of them is used again.
constexpr std::size_t SlotsAtRest = 256;
/// Behind the last page that is given out there is nothing of the process.
constexpr TCodeAddress SpaceEnd = 0x7F000000;
/// Instructions between the start of a call and a body; a circle of jumps has more.
constexpr int StepLimit = 256;

constexpr std::uint32_t Readable = 0x66, Writable = 0x44, Executable = 0x60;

/// mov edi, edi; push ebp; mov ebp, esp: five bytes, so that a jump takes their place without cutting one.
constexpr std::array<std::uint8_t, 5> Prologue{0x8B, 0xFF, 0x55, 0x8B, 0xEC};
constexpr std::uint8_t JumpOpcode = 0xE9;
/// xor eax, eax; ret
constexpr std::array<std::uint8_t, 3> AnswerNothing{0x33, 0xC0, 0xC3};
/// An instruction that no compiler writes stands for the body.
constexpr std::array<std::uint8_t, 2> BodyMark{0x0F, 0x0B};

/// In any case, and with the ending that libraries have.
std::string ModuleKey(const std::string& module) {
    const std::string key = LowerCase(module);
    return key.empty() || key.find('.') != key.npos ? key : key + ".dll";
}

[[noreturn]] void Violation(const char* verb, TCodeAddress address) {
    char text[96];
    std::snprintf(text, sizeof text, "Access violation at address %08X. %s of address %08X", address, verb,
                  address);
    throw EAccessViolation(text);
}

}  // namespace

// ---------------------------------------------------------------------------------------------- memory

HCodeSpace::TPage* HCodeSpace::PageOf(TCodeAddress address) {
    const auto found = FPages.find(address / PageSize * PageSize);
    return found == FPages.end() ? nullptr : &found->second;
}

std::uint8_t HCodeSpace::Byte(TCodeAddress address, std::uint32_t neededProtection) {
    const TPage* page = PageOf(address);
    if (!page || !(page->Protection & neededProtection)) Violation("Read", address);
    return page->Bytes[address % PageSize];
}

std::uint32_t HCodeSpace::Dword(TCodeAddress address, std::uint32_t neededProtection) {
    std::uint32_t value = 0;
    for (unsigned i = 0; i < 4; ++i) value |= std::uint32_t{Byte(address + i, neededProtection)} << (8 * i);
    return value;
}

void HCodeSpace::Put(TCodeAddress address, std::span<const std::uint8_t> bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto at = static_cast<TCodeAddress>(address + i);
        PageOf(at)->Bytes[at % PageSize] = bytes[i];
    }
}

TCodeAddress HCodeSpace::NewPages(std::size_t size, std::uint32_t protection) {
    const std::size_t pages = (size + PageSize - 1) / PageSize;
    if (pages == 0 || pages > (SpaceEnd - FNextPage) / PageSize || FPages.size() + pages > HCodePageLimit)
        return 0;
    const TCodeAddress first = FNextPage;
    for (std::size_t i = 0; i < pages; ++i, FNextPage += PageSize)
        FPages[FNextPage] = {std::vector<std::uint8_t>(PageSize), protection};
    return first;
}

bool HCodeSpace::VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                                std::uint32_t& oldProtection) {
    const std::lock_guard lock(FLock);
    if (size == 0 || size > SpaceEnd) return false;
    const std::uint64_t first = address / PageSize * std::uint64_t{PageSize};
    const std::uint64_t end = std::uint64_t{address} + size;
    for (std::uint64_t at = first; at < end; at += PageSize)
        if (!FPages.count(static_cast<TCodeAddress>(at))) return false;
    oldProtection = PageOf(address)->Protection;
    for (std::uint64_t at = first; at < end; at += PageSize)
        FPages[static_cast<TCodeAddress>(at)].Protection = protection;
    return true;
}

TCodeAddress HCodeSpace::VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) {
    const std::lock_guard lock(FLock);
    if (!(type & MEM_COMMIT)) return 0;
    const TCodeAddress block = NewPages(size, protection);
    if (block) FBlocks[block] = (size + PageSize - 1) / PageSize;
    return block;
}

bool HCodeSpace::VirtualFree(TCodeAddress address, std::uint32_t type) {
    const std::lock_guard lock(FLock);
    const auto block = FBlocks.find(address);
    if (block == FBlocks.end() || type != MEM_RELEASE) return false;
    for (std::size_t i = 0; i < block->second; ++i)
        FPages.erase(address + static_cast<TCodeAddress>(i) * PageSize);
    FBlocks.erase(block);
    return true;
}

void HCodeSpace::ReadMemory(TCodeAddress address, void* bytes, std::size_t size) {
    const std::lock_guard lock(FLock);
    auto* out = static_cast<std::uint8_t*>(bytes);
    for (std::size_t i = 0; i < size; ++i) out[i] = Byte(address + static_cast<TCodeAddress>(i), Readable);
}

void HCodeSpace::WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) {
    const std::lock_guard lock(FLock);
    for (std::size_t i = 0; i < size; ++i) {
        const auto at = address + static_cast<TCodeAddress>(i);
        const TPage* page = PageOf(at);
        if (!page || !(page->Protection & Writable)) Violation("Write", at);
    }
    Put(address, {static_cast<const std::uint8_t*>(bytes), size});
}

// ---------------------------------------------------------------------------------------------- functions

TCodeAddress HCodeSpace::NewSlot() {
    if (FFreeSlots.size() > SlotsAtRest) {
        const TCodeAddress slot = FFreeSlots.front();
        FFreeSlots.pop_front();
        return slot;
    }
    if (FSlotPage == 0 || FSlotsUsed == PageSize / SlotSize) {
        FSlotPage = NewPages(PageSize, PAGE_EXECUTE_READ);
        FSlotsUsed = 0;
        if (FSlotPage == 0) return 0;
    }
    return FSlotPage + static_cast<TCodeAddress>(FSlotsUsed++) * SlotSize;
}

void HCodeSpace::FreeSlot(TCodeAddress slot, std::span<const std::uint8_t> bytes) {
    Put(slot, std::array<std::uint8_t, SlotSize>{});
    Put(slot, bytes);
    FFreeSlots.push_back(slot);
}

TCodeAddress HCodeSpace::Make(TCallKind kind, unsigned arguments, TNativeBody body) {
    const TCodeAddress at = NewSlot();
    if (at == 0) return 0;
    Put(at, Prologue);
    Put(at + 5, BodyMark);
    std::array<std::uint8_t, 4> number;
    std::memcpy(number.data(), &at, 4);
    Put(at + 7, number);
    FFunctions[at] = std::make_shared<TFunction>(TFunction{kind, arguments, std::move(body)});
    return at;
}

TCodeAddress HCodeSpace::MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) {
    const std::lock_guard lock(FLock);
    return Make(kind, arguments, [this, body = std::move(body)](std::span<const std::uintptr_t> values) {
        try {
            return body(values);
        } catch (const std::exception& error) {
            ReportError(error);
        } catch (...) {
            ReportError(Exception("Unknown exception"));
        }
        return std::uintptr_t{0};
    });
}

void HCodeSpace::SetReport(TReport report) {
    const std::lock_guard lock(FLock);
    FReport = std::move(report);
}

void HCodeSpace::ReportError(const std::exception& error) {
    TReport report;
    {
        const std::lock_guard lock(FLock);
        report = FReport;
    }
    if (report) report(error);
}

std::size_t HCodeSpace::FunctionCount() {
    const std::lock_guard lock(FLock);
    return FFunctions.size();
}

std::shared_ptr<HCodeSpace::TFunction> HCodeSpace::Take(TCodeAddress function,
                                                        std::span<const std::uint8_t> bytes) {
    const auto found = FFunctions.find(function);
    if (found == FFunctions.end()) return nullptr;
    std::shared_ptr<TFunction> gone = std::move(found->second);
    FFunctions.erase(found);
    FreeSlot(function, bytes);
    return gone;
}

void HCodeSpace::FreeFunction(TCodeAddress function, TCodeAddress instead) {
    std::array<std::uint8_t, 5> jump{JumpOpcode};
    const TCodeAddress distance = instead - function - 5;
    std::memcpy(jump.data() + 1, &distance, 4);
    std::shared_ptr<TFunction> gone;
    const std::lock_guard lock(FLock);
    gone = instead ? Take(function, jump) : Take(function, AnswerNothing);
}

TCodeAddress HCodeSpace::Export(const std::string& module, const std::string& name, TCallKind kind,
                                unsigned arguments, TNativeBody body) {
    std::shared_ptr<TFunction> gone, unused;
    const std::lock_guard lock(FLock);
    gone = TakeExport({ModuleKey(module), name});
    const TCodeAddress function = Make(kind, arguments, std::move(body));
    const TCodeAddress stub = function ? NewSlot() : 0;
    if (stub == 0) {
        unused = Take(function);
        return 0;
    }
    // jmp [memory], the memory right behind it
    const TCodeAddress memory = stub + 8;
    std::array<std::uint8_t, SlotSize> bytes{0xFF, 0x25};
    std::memcpy(bytes.data() + 2, &memory, 4);
    std::memcpy(bytes.data() + 8, &function, 4);
    Put(stub, bytes);
    FExports[{ModuleKey(module), name}] = {stub, function};
    return function;
}

std::shared_ptr<HCodeSpace::TFunction> HCodeSpace::TakeExport(const TExportName& name) {
    const auto found = FExports.find(name);
    if (found == FExports.end()) return nullptr;
    const TExport gone = found->second;
    FExports.erase(found);
    FreeSlot(gone.Stub);
    return Take(gone.Function);
}

void HCodeSpace::RemoveExport(const std::string& module, const std::string& name) {
    std::shared_ptr<TFunction> gone;
    const std::lock_guard lock(FLock);
    gone = TakeExport({ModuleKey(module), name});
}

TCodeAddress HCodeSpace::GetProcAddress(const std::string& module, const std::string& name) {
    const std::lock_guard lock(FLock);
    const auto found = FExports.find({ModuleKey(module), name});
    return found == FExports.end() ? 0 : found->second.Stub;
}

// ---------------------------------------------------------------------------------------------- calls

std::shared_ptr<HCodeSpace::TFunction> HCodeSpace::Follow(TCodeAddress at) {
    const std::lock_guard lock(FLock);
    for (int step = 0; step < StepLimit; ++step) {
        const std::uint8_t first = Byte(at, Executable);
        const std::uint8_t second = first == 0x90 || first == 0x55 ? 0 : Byte(at + 1, Executable);
        switch (first << 8 | second) {
            case 0x9000:  // nop
            case 0x5500:  // push ebp
                at += 1;
                break;
            case 0x8BFF:  // mov edi, edi
            case 0x8BEC:  // mov ebp, esp
                at += 2;
                break;
            case 0x83EC:  // sub esp, imm8
                at += 3;
                break;
            case 0xFF25:  // jmp [memory]
                at = Dword(Dword(at + 2, Executable), Readable);
                break;
            case 0x0F0B: {
                const auto function = FFunctions.find(Dword(at + 2, Executable));
                if (function == FFunctions.end()) Violation("Read", at);
                return function->second;
            }
            case 0x33C0:  // xor eax, eax
                if (Byte(at + 2, Executable) != 0xC3) Violation("Read", at);
                return nullptr;  // ret
            default:
                if (first != JumpOpcode) Violation("Read", at);
                at += 5 + Dword(at + 1, Executable);  // jmp
        }
    }
    Violation("Read", at);
}

std::uintptr_t HCodeSpace::Call(TCallKind kind, TCodeAddress function,
                                std::span<const std::uintptr_t> arguments) {
    const std::shared_ptr<TFunction> found = Follow(function);
    if (!found) return 0;
    // On the real machine a wrong call ruins the stack; here it is told.
    Assert(found->Kind == kind && found->Arguments == arguments.size(), "Called in another way than made");
    return found->Body(arguments);
}

}  // namespace rux
