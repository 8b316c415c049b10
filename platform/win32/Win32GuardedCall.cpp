#include "platform/win32/Win32GuardedCall.h"

#include <malloc.h>

#include <cstddef>
#include <cstdio>
#include <vector>

#include "platform/win32/Headers.h"
#include "rtl/Exceptions.h"

namespace rux {

namespace {

constexpr std::size_t RegisterArguments = 3;

/// One call, as the assembler code below knows it.
struct TNativeCall {
    // What it is told.
    std::uint32_t Function;
    std::uint32_t Registers[RegisterArguments];  // EAX, EDX, ECX
    const std::uint32_t* Stack;                  // in the order of the addresses
    std::uint32_t StackCount;
    // What it tells of an exception; a code of 0 is none.
    std::uint32_t Code;
    std::uint32_t RaisedAt;
    std::uint32_t Information[2];
};
static_assert(offsetof(TNativeCall, Stack) == 16 && offsetof(TNativeCall, Code) == 24);

}  // namespace

/// `call`: a TNativeCall.
extern "C" std::uint32_t RuxNativeCall(void* call);

// It has a frame of the system's chain of exception handlers on its stack, which also finds the
// call: next, handler, call. The handler takes errors, and whatever has no severity, as foreign run-time
// libraries raise it; warnings and information are somebody else's, and go on. The unwinding lets the
// handlers of the callee's frames run, and leaves the chain at this frame, by which the stack is found again.
asm(R"(
    .intel_syntax noprefix
    .text
    .globl _RuxNativeCall
_RuxNativeCall:
    push ebp
    mov ebp, esp
    push ebx
    push esi
    push edi
    mov ebx, [ebp + 8]
    push ebx
    push offset RuxNativeCallHandler
    push dword ptr fs:[0]
    mov fs:[0], esp
    mov ecx, [ebx + 20]
    lea eax, [ecx * 4]
    sub esp, eax
    mov esi, [ebx + 16]
    mov edi, esp
    cld
    rep movsd
    mov eax, [ebx + 4]
    mov edx, [ebx + 8]
    mov ecx, [ebx + 12]
    call dword ptr [ebx]
    lea esp, [ebp - 24]
RuxNativeCallEnd:
    pop dword ptr fs:[0]
    add esp, 8
    pop edi
    pop esi
    pop ebx
    pop ebp
    ret

RuxNativeCallHandler:
    mov ecx, [esp + 4]
    mov edx, [esp + 8]
    test dword ptr [ecx + 4], 0x66
    jnz RuxNativeCallPass
    mov eax, [ecx]
    shr eax, 30
    jz RuxNativeCallTake
    cmp eax, 3
    jne RuxNativeCallPass
RuxNativeCallTake:
    mov edx, [edx + 8]
    mov eax, [ecx]
    mov [edx + 24], eax
    mov eax, [ecx + 12]
    mov [edx + 28], eax
    mov eax, [ecx + 20]
    mov [edx + 32], eax
    mov eax, [ecx + 24]
    mov [edx + 36], eax
    mov edx, [esp + 8]
    push 0
    push ecx
    push offset RuxNativeCallUnwound
    push edx
    call _RtlUnwind@16
RuxNativeCallUnwound:
    cld
    mov esp, fs:[0]
    lea ebp, [esp + 24]
    jmp RuxNativeCallEnd
RuxNativeCallPass:
    mov eax, 1
    ret
    .att_syntax
)");

namespace {

TNativeCall CallOf(TCallKind kind, TCodeAddress function, std::span<const std::uintptr_t> arguments,
                   std::vector<std::uint32_t>& stack) {
    TNativeCall call{};
    call.Function = function;
    if (kind == TCallKind::StdCall) {
        stack.assign(arguments.begin(), arguments.end());
    } else {
        for (std::size_t i = 0; i < arguments.size() && i < RegisterArguments; ++i)
            call.Registers[i] = arguments[i];
        // The rest is pushed from left to right, so that the last one is the first in memory.
        for (std::size_t i = arguments.size(); i > RegisterArguments; --i) stack.push_back(arguments[i - 1]);
    }
    call.Stack = stack.data();
    call.StackCount = static_cast<std::uint32_t>(stack.size());
    return call;
}

[[noreturn]] void RaiseFor(const TNativeCall& call) {
    char text[96];
    switch (call.Code) {
        case STATUS_ACCESS_VIOLATION:
            std::snprintf(text, sizeof text, "Access violation at address %08X. %s of address %08X",
                          call.RaisedAt, call.Information[0] == 1 ? "Write" : "Read", call.Information[1]);
            throw EAccessViolation(text);
        case STATUS_STACK_OVERFLOW:
            // Without a new guard page the next overflow would end the process.
            ::_resetstkoflw();
            throw EStackOverflow("Stack overflow");
        default:
            std::snprintf(text, sizeof text, "External exception %08X", call.Code);
            throw Exception(text);
    }
}

}  // namespace

std::uintptr_t CallGuarded(TCallKind kind, TCodeAddress function, std::span<const std::uintptr_t> arguments) {
    std::vector<std::uint32_t> stack;
    TNativeCall call = CallOf(kind, function, arguments, stack);
    const std::uint32_t result = RuxNativeCall(&call);
    if (call.Code != 0) RaiseFor(call);
    return result;
}

}  // namespace rux
