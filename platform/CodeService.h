// Code of this process: its memory, and functions by address. Addresses have 32 bits, as the agent's hosts
// have.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

namespace rux {

/// 0 is no address.
using TCodeAddress = std::uint32_t;

/// How a function takes its arguments, each of the size of a pointer.
enum class TCallKind {
    /// On the stack, taken off by the function: what the window system exports.
    StdCall,
    /// The first three in registers: what the toolkit's packages export.
    Register,
};

/// What a function made by the agent does.
using TNativeBody = std::function<std::uintptr_t(std::span<const std::uintptr_t> arguments)>;

inline constexpr std::uint32_t PAGE_READWRITE = 0x04;
inline constexpr std::uint32_t PAGE_EXECUTE_READ = 0x20;
inline constexpr std::uint32_t PAGE_EXECUTE_READWRITE = 0x40;
inline constexpr std::uint32_t MEM_COMMIT = 0x1000;
inline constexpr std::uint32_t MEM_RELEASE = 0x8000;

/// Any thread; code that one thread changes while another runs it is the caller's affair.
class TCodeService {
 public:
    virtual ~TCodeService() = default;

    /// Address of an export of a loaded module; 0 when there is none. The names' case counts in `name` only.
    virtual TCodeAddress GetProcAddress(const std::string& module, const std::string& name) = 0;
    /// True on a system of the NT family.
    virtual bool IsNtFamily() = 0;

    /// Changes the protection of every page that the bytes lie in. False, and nothing changed, when one of
    /// them does not exist.
    virtual bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                                std::uint32_t& oldProtection) = 0;
    /// Whole pages; 0 when there is no memory left.
    virtual TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) = 0;
    virtual bool VirtualFree(TCodeAddress address, std::uint32_t type) = 0;
    /// Both raise EAccessViolation for bytes that do not exist or may not be read or written.
    virtual void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) = 0;
    virtual void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) = 0;

    /// Makes a function that native code can call; 0 when there is no room. No exception leaves it, as
    /// native frames would not let one through: what `body` raises goes to the application's own report, and
    /// the call answers 0.
    virtual TCodeAddress MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) = 0;
    /// A call that is running goes on to its end. One that arrives afterwards, on its way since before, goes
    /// to `instead`, which takes its arguments in the same way, or answers 0 where that is 0.
    virtual void FreeFunction(TCodeAddress function, TCodeAddress instead = 0) = 0;
    /// Calls what stands at the address. What a native function raises becomes an error of this process:
    /// EAccessViolation where it touches memory that it may not touch, and where no function is.
    virtual std::uintptr_t Call(TCallKind kind, TCodeAddress function,
                                std::span<const std::uintptr_t> arguments) = 0;
};

}  // namespace rux
