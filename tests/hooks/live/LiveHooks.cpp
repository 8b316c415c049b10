// Patches functions of this 32-bit program and calls them. A line for each check; ends with 1 if one failed.
#include <cstdio>
#include <cstring>

#include "Engine/Hooks/SolviHookUtils.h"
#include "tests/hooks/live/LiveCode.h"

// Each takes one argument on the stack and takes it off, but for LiveRegister. The first bytes are spelled
// where an assembler has a choice.
asm(R"(
    .intel_syntax noprefix
    .text
    .globl LiveFrame, LiveHotPatch, LiveCall, LiveStub, LiveBehind, LiveRegister, LiveEdge
    .balign 4096
LiveFrame:
    push ebp; .byte 0x8B, 0xEC; sub esp, 16
    mov eax, [ebp + 8]; mov [ebp - 4], eax; add eax, [ebp - 4]; leave; ret 4
    .balign 32
LiveHotPatch:
    .byte 0x8B, 0xFF; push ebp; .byte 0x8B, 0xEC
    mov eax, [ebp + 8]; add eax, 3; pop ebp; ret 4
    .balign 32
LiveCall:
    push ebp; call Seven
    add eax, [esp + 8]; pop ebp; ret 4
Seven:
    mov eax, 7; ret
    .balign 32
LiveStub:
    jmp dword ptr [LiveSlot]
    .balign 32
LiveBehind:
    push ebx; mov ebx, [esp + 8]
    lea eax, [ebx + ebx * 4]; pop ebx; ret 4
    .balign 32
LiveRegister:   # the argument is in eax
    push ebx; mov ebx, eax; lea eax, [ebx + 100]
    pop ebx; ret
    .balign 4096
    .skip 4091, 0x90
LiveEdge:       # its first five bytes are a page's last
    push ebp; .byte 0x8B, 0xEC; xor eax, eax
    sub eax, [ebp + 8]; pop ebp; ret 4
    .balign 4096
    .data
LiveSlot:
    .long LiveBehind
    .text
    .att_syntax
)");

#define LIVE_STDCALL __attribute__((stdcall))

extern "C" {
int LIVE_STDCALL LiveFrame(int);
int LIVE_STDCALL LiveHotPatch(int);
int LIVE_STDCALL LiveCall(int);
int LIVE_STDCALL LiveStub(int);
int LIVE_STDCALL LiveBehind(int);
int LIVE_STDCALL LiveEdge(int);
int __attribute__((regparm(1))) LiveRegister(int);
}

namespace rux::live {

namespace {

using TOnStack = int(LIVE_STDCALL*)(int);
using TInRegister = int(__attribute__((regparm(1))) *)(int);

TLiveCode Code;
TCodeAddress Trampoline = 0;
bool Failed = false;

void Check(bool holds, const char* function, const char* what) {
    std::printf("%s %s: %s\n", holds ? "ok" : "FAILED", function, what);
    Failed |= !holds;
}

template <class T>
TCodeAddress AddressOf(T* function) {
    return static_cast<TCodeAddress>(reinterpret_cast<std::uintptr_t>(function));
}

/// As a caller that the compiler knows nothing of.
template <class TFunction>
int CallAt(TCodeAddress address, int argument) {
    volatile TCodeAddress at = address;
    return reinterpret_cast<TFunction>(static_cast<std::uintptr_t>(at))(argument);
}

int LIVE_STDCALL OnStackReplacement(int argument) {
    return 1000 + CallAt<TOnStack>(Trampoline, argument + 1);
}

int __attribute__((regparm(1))) InRegisterReplacement(int argument) {
    return 1000 + CallAt<TInRegister>(Trampoline, argument + 1);
}

struct TSubject {
    const char* Name;
    TCodeAddress Caller, Body;
    int Expected, ExpectedNext;  // with 20 and 21
    std::uint8_t Count;
    std::uint32_t ProtectionInTheEnd = PAGE_EXECUTE_READ;
};

template <class TFunction>
void Try(const TSubject& subject, TFunction replacement) {
    const auto check = [&](bool holds, const char* what) { Check(holds, subject.Name, what); };
    char before[32], now[32], count = 0;
    const TCodeAddress body = ResolveCodeAddress(Code, subject.Caller);
    check(body == subject.Body, "found behind its stub, if it has one");
    Code.ReadMemory(body, before, sizeof before);
    check(CallAt<TFunction>(subject.Caller, 20) == subject.Expected, "called as it is");

    check(HookCode(Code, body, AddressOf(replacement), Trampoline), "patched");
    Code.ReadMemory(Trampoline - 1, &count, 1);
    check(count == subject.Count, "count of moved bytes");
    check(CallAt<TFunction>(Trampoline, 20) == subject.Expected, "called through the trampoline");
    check(CallAt<TFunction>(subject.Caller, 20) == 1000 + subject.ExpectedNext, "called by its callers");
    Code.ReadMemory(body, now, sizeof now);
    check(std::memcmp(now + 5, before + 5, sizeof now - 5) == 0, "bytes behind the jump");
    check(TLiveCode::ProtectionOf(body) == PAGE_EXECUTE_READ, "protection while patched");

    const TCodeAddress block = Trampoline - 5;
    check(UnhookCode(Code, Trampoline) && Trampoline == 0, "restored");
    Code.ReadMemory(body, now, sizeof now);
    check(std::memcmp(now, before, sizeof now) == 0, "bytes as before");
    check(CallAt<TFunction>(subject.Caller, 20) == subject.Expected, "called as before");
    check(TLiveCode::ProtectionOf(body) == subject.ProtectionInTheEnd, "protection in the end");
    check(TLiveCode::ProtectionOf(block) == 0, "trampoline freed");
    check(!UnhookCode(Code, Trampoline), "nothing to restore any more");
}

void TryAll() {
    const TSubject onStack[] = {
        {"LiveFrame", AddressOf(LiveFrame), AddressOf(LiveFrame), 40, 42, 6},
        {"LiveHotPatch", AddressOf(LiveHotPatch), AddressOf(LiveHotPatch), 23, 24, 5},
        {"LiveCall", AddressOf(LiveCall), AddressOf(LiveCall), 27, 28, 6},
        {"LiveStub", AddressOf(LiveStub), AddressOf(LiveBehind), 100, 105, 5},
        // The protection is put back on the page behind, where the moved instructions end.
        {"LiveEdge", AddressOf(LiveEdge), AddressOf(LiveEdge), -20, -21, 5, PAGE_EXECUTE_READWRITE},
    };
    for (const TSubject& subject : onStack) Try<TOnStack>(subject, OnStackReplacement);
    Try<TInRegister>({"LiveRegister", AddressOf(LiveRegister), AddressOf(LiveRegister), 120, 121, 6},
                     InRegisterReplacement);
    Check(!HookCode(Code, 0, AddressOf(OnStackReplacement), Trampoline), "nil", "is not patched");
    Check(!HookCode(Code, 0xFFFFF000, AddressOf(OnStackReplacement), Trampoline), "no memory",
          "is not patched");
}

}  // namespace

}  // namespace rux::live

int main() {
    rux::live::TryAll();
    return rux::live::Failed ? 1 : 0;
}
