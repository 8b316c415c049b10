#include "platform/win32/Win32Thunks.h"

#include <atomic>
#include <deque>
#include <shared_mutex>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/win32/Headers.h"
#include "platform/win32/MachineCode.h"
#include "platform/win32/ProcessPages.h"

namespace rux {

namespace {

/// In front of a function's code; outlives the library with it.
struct TCell {
    volatile LONG Closed;
    /// Where calls go once it is closed; 0 answers 0.
    volatile std::uint32_t Instead;
};
constexpr std::uint32_t CellSize = 16;
constexpr std::size_t CodeRoom = 160;

/// Registers as the code saves them below its frame pointer.
enum TSavedRegister { SavedEax = -3, SavedEdx = -4, SavedEcx = -5 };
constexpr unsigned RegisterArguments = 3;
/// Above it: the caller's frame pointer and the return address, then the arguments on the stack.
constexpr unsigned FrameWords = 2;

TCell& CellOf(std::uintptr_t function) {
    return *reinterpret_cast<TCell*>(function - CellSize);
}

std::uint32_t AddressOf(const void* place) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(place));
}

void Close(std::uintptr_t function, std::uint32_t instead) {
    TCell& cell = CellOf(function);
    cell.Instead = instead;
    ::InterlockedExchange(&cell.Closed, 1);
}

}  // namespace

struct TWin32Thunks::TSlot {
    TState* Owner = nullptr;
    TCallKind Kind = TCallKind::StdCall;
    unsigned Arguments = 0;
    /// A window procedure leads to CallWindowProcA when it is closed.
    bool IsWindowProc = false;
    /// Shared with the calls that are running.
    std::shared_ptr<const TNativeBody> Body;

    std::vector<std::uintptr_t> ArgumentsOf(const std::uint32_t* frame) const;
    std::uint32_t StackBytes() const;
    static std::uintptr_t __stdcall Enter(TSlot* slot, const std::uint32_t* frame) noexcept;
};

/// Shared with the calls that are inside: the last one may outlive the thunks.
struct TWin32Thunks::TQuiet {
    std::atomic<std::uintptr_t> Thread{0};
    unsigned Depth = 0;
    std::function<void()> Tell;
};

struct TWin32Thunks::TState {
    std::shared_mutex Lock;
    TBorderReport Report;
    const std::shared_ptr<TQuiet> Quiet = std::make_shared<TQuiet>();
    /// A slot stays where it is: the code refers to it.
    std::deque<TSlot> Slots;
    std::unordered_map<std::uintptr_t, TSlot*> ByFunction;

    std::uintptr_t Make(TSlot slot);
    void Free(std::uintptr_t function, std::uint32_t instead);
    void ReportError(const std::exception& error) noexcept;
};

// ------------------------------------------------------------------------------------------ a call

std::vector<std::uintptr_t> TWin32Thunks::TSlot::ArgumentsOf(const std::uint32_t* frame) const {
    std::vector<std::uintptr_t> values(Arguments);
    const std::uint32_t* stack = frame + FrameWords;
    if (Kind == TCallKind::StdCall) {
        for (unsigned i = 0; i < Arguments; ++i) values[i] = stack[i];
        return values;
    }
    constexpr int registers[RegisterArguments] = {SavedEax, SavedEdx, SavedEcx};
    // What the registers do not hold was pushed from left to right.
    for (unsigned i = 0; i < Arguments; ++i)
        values[i] = i < RegisterArguments ? frame[registers[i]] : stack[Arguments - 1 - i];
    return values;
}

std::uint32_t TWin32Thunks::TSlot::StackBytes() const {
    const unsigned inRegisters = Kind == TCallKind::Register ? RegisterArguments : 0;
    return Arguments > inRegisters ? (Arguments - inRegisters) * 4 : 0;
}

/// Counts the calls that are inside on the watched thread.
class TWin32Thunks::TInside {
 public:
    explicit TInside(const std::shared_ptr<TQuiet>& quiet) {
        if (quiet->Thread != ::GetCurrentThreadId()) return;
        FQuiet = quiet;
        ++FQuiet->Depth;
    }
    TInside(const TInside&) = delete;
    TInside& operator=(const TInside&) = delete;
    ~TInside() {
        if (!FQuiet || --FQuiet->Depth != 0 || !FQuiet->Tell) return;
        try {
            FQuiet->Tell();
        } catch (...) {
            // Whoever is told has nothing to say to the application.
        }
    }

 private:
    std::shared_ptr<TQuiet> FQuiet;
};

/// The border: behind it lie frames of the application.
std::uintptr_t __stdcall TWin32Thunks::TSlot::Enter(TSlot* slot, const std::uint32_t* frame) noexcept {
    TState& owner = *slot->Owner;
    const TInside inside(owner.Quiet);
    try {
        std::shared_ptr<const TNativeBody> body;
        {
            const std::shared_lock lock(owner.Lock);
            body = slot->Body;
        }
        if (body) return (*body)(slot->ArgumentsOf(frame));
    } catch (const std::exception& error) {
        owner.ReportError(error);
    } catch (...) {
        owner.ReportError(Exception("Unknown error"));
    }
    return 0;
}

void TWin32Thunks::TState::ReportError(const std::exception& error) noexcept {
    try {
        TBorderReport report;
        {
            const std::shared_lock lock(Lock);
            report = Report;
        }
        if (report) report(error);
    } catch (...) {
        // An error of the report itself has nowhere to go.
    }
}

// ------------------------------------------------------------------------------------------ its code

std::uintptr_t TWin32Thunks::TState::Make(TSlot made) {
    const std::unique_lock lock(Lock);
    const std::uint32_t cell = TakeProcessMemory(CellSize + CodeRoom);
    if (cell == 0) return 0;
    TSlot& slot = Slots.emplace_back(std::move(made));
    slot.Owner = this;
    const std::uint32_t function = cell + CellSize;
    const auto stackBytes = static_cast<unsigned char>(slot.StackBytes());
    const std::uint32_t closed = cell, instead = cell + 4;

    TMachineCode code(function);
    code.Bytes({0x83, 0x3D}).Dword(closed).Bytes({0});  // cmp dword [closed], 0
    const std::size_t isClosed = code.Jump(TMachineCode::JumpIfNotZero);
    code.Bytes({0x55, 0x89, 0xE5});        // push ebp; mov ebp, esp
    code.Bytes({0x83, 0xEC, 8});           // sub esp, 8: the module, the result
    code.Bytes({0x50, 0x52, 0x51});        // push eax, edx, ecx
    code.Bytes({0x8D, 0x45, 0xFC, 0x50});  // lea eax, [ebp-4]; push eax
    code.Push(AddressOf(reinterpret_cast<const void*>(&TSlot::Enter)));
    code.Push(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS).CallOf(&::GetModuleHandleExA);
    code.Bytes({0x85, 0xC0});  // test eax, eax
    const std::size_t isGone = code.Jump(TMachineCode::JumpIfZero);
    code.Bytes({0x55}).Push(AddressOf(&slot)).CallOf(&TSlot::Enter);  // push ebp
    code.Bytes({0x89, 0x45, 0xF8});                                   // mov [ebp-8], eax
    // The last reference may go with this one, and the library with it.
    code.Bytes({0xFF, 0x75, 0xFC}).CallOf(&::FreeLibrary);      // push dword [ebp-4]
    code.Bytes({0x8B, 0x45, 0xF8, 0xC9, 0xC2, stackBytes, 0});  // mov eax, [ebp-8]; leave; ret n
    code.Land(isGone);                                          // the registers as they came
    code.Bytes({0x8B, 0x45, 0xF4, 0x8B, 0x55, 0xF0, 0x8B, 0x4D, 0xEC, 0xC9});
    code.Land(isClosed);
    code.Bytes({0x83, 0x3D}).Dword(instead).Bytes({0});  // cmp dword [instead], 0
    const std::size_t nowhere = code.Jump(TMachineCode::JumpIfZero);
    if (slot.IsWindowProc) {
        // One argument more in front of the others: the procedure before.
        code.Bytes({0x58, 0xFF, 0x35}).Dword(instead).Bytes({0x50});  // pop eax; push [instead]; push eax
        code.Bytes({0xB8}).Dword(AddressOf(reinterpret_cast<const void*>(&::CallWindowProcA)));
        code.Bytes({0xFF, 0xE0});  // jmp eax
    } else {
        code.Bytes({0xFF, 0x25}).Dword(instead);  // jmp [instead]
    }
    code.Land(nowhere);
    code.Bytes({0x31, 0xC0, 0xC2, stackBytes, 0});  // xor eax, eax; ret n
    Assert(code.Code().size() <= CodeRoom);

    WriteProcessCode(function, code.Code());
    ByFunction.emplace(function, &slot);
    return function;
}

void TWin32Thunks::TState::Free(std::uintptr_t function, std::uint32_t instead) {
    std::shared_ptr<const TNativeBody> body;  // goes when the lock has
    const std::unique_lock lock(Lock);
    const auto found = ByFunction.find(function);
    if (found == ByFunction.end()) return;
    Close(function, instead);
    body.swap(found->second->Body);
    ByFunction.erase(found);
}

// ------------------------------------------------------------------------------------------ the class

TWin32Thunks::TWin32Thunks() : FState(std::make_unique<TState>()) {}

TWin32Thunks::~TWin32Thunks() {
    for (const auto& [function, slot] : FState->ByFunction) Close(function, CellOf(function).Instead);
}

void TWin32Thunks::SetReport(TBorderReport report) {
    const std::unique_lock lock(FState->Lock);
    FState->Report = std::move(report);
}

void TWin32Thunks::Report(const std::exception& error) const {
    FState->ReportError(error);
}

void TWin32Thunks::SetQuiet(std::uintptr_t thread, std::function<void()> quiet) {
    FState->Quiet->Thread = thread;
    FState->Quiet->Tell = std::move(quiet);
}

TCodeAddress TWin32Thunks::MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) {
    TSlot slot;
    slot.Kind = kind;
    slot.Arguments = arguments;
    slot.Body = std::make_shared<const TNativeBody>(std::move(body));
    return static_cast<TCodeAddress>(FState->Make(std::move(slot)));
}

void TWin32Thunks::FreeFunction(TCodeAddress function, TCodeAddress instead) {
    FState->Free(function, instead);
}

TWndProc TWin32Thunks::MakeWindowProc(TWindowProcedure procedure) {
    TSlot slot;
    slot.Arguments = 4;
    slot.IsWindowProc = true;
    slot.Body = std::make_shared<const TNativeBody>(
        [procedure = std::move(procedure)](std::span<const std::uintptr_t> arguments) {
            return static_cast<std::uintptr_t>(procedure(arguments[0], static_cast<unsigned>(arguments[1]),
                                                         arguments[2], static_cast<LParam>(arguments[3])));
        });
    return FState->Make(std::move(slot));
}

void TWin32Thunks::SetPrevious(TWndProc instance, TWndProc previous) {
    const std::unique_lock lock(FState->Lock);
    if (!FState->ByFunction.contains(instance)) return;
    // The first one stays: another was set over this procedure since, and may well lead back to it.
    TCell& cell = CellOf(instance);
    if (cell.Instead == 0) cell.Instead = static_cast<std::uint32_t>(previous);
}

void TWin32Thunks::FreeWindowProc(TWndProc instance) {
    {
        const std::shared_lock lock(FState->Lock);
        if (!FState->ByFunction.contains(instance)) return;
    }
    FState->Free(instance, CellOf(instance).Instead);
}

}  // namespace rux
