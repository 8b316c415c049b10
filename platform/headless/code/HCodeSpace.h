// The code of the headless process: a small address space in which every exported function has bytes and a
// body, and a call obeys the bytes. So a patched function behaves as on the real machine.
//
// A function starts with the usual prologue of a patchable export, and its body is an instruction of its
// own. An export lies behind a jump through memory, as the window system's exports do. An export raises what
// its body raises, as the application's own code does; a made function does not.
#pragma once

#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/CodeService.h"

namespace rux {

class HCodeSpace final : public TCodeService {
 public:
    /// Makes `body` the function that GetProcAddress finds. Answers the address of its first instruction,
    /// behind the jump; 0 when there is no room. A second export of a name takes the place of the first.
    TCodeAddress Export(const std::string& module, const std::string& name, TCallKind kind,
                        unsigned arguments, TNativeBody body);
    void RemoveExport(const std::string& module, const std::string& name);
    using TReport = std::function<void(const std::exception&)>;
    /// Hears what the body of a made function raises, on the calling thread; raises nothing itself.
    void SetReport(TReport report);
    /// That were made and not freed, exports among them.
    std::size_t FunctionCount();

    // TCodeService
    TCodeAddress GetProcAddress(const std::string& module, const std::string& name) override;
    bool IsNtFamily() override { return true; }
    bool VirtualProtect(TCodeAddress address, std::size_t size, std::uint32_t protection,
                        std::uint32_t& oldProtection) override;
    TCodeAddress VirtualAlloc(std::size_t size, std::uint32_t type, std::uint32_t protection) override;
    bool VirtualFree(TCodeAddress address, std::uint32_t type) override;
    void ReadMemory(TCodeAddress address, void* bytes, std::size_t size) override;
    void WriteMemory(TCodeAddress address, const void* bytes, std::size_t size) override;
    TCodeAddress MakeFunction(TCallKind kind, unsigned arguments, TNativeBody body) override;
    void FreeFunction(TCodeAddress function, TCodeAddress instead = 0) override;
    std::uintptr_t Call(TCallKind kind, TCodeAddress function,
                        std::span<const std::uintptr_t> arguments) override;

 private:
    struct TPage {
        std::vector<std::uint8_t> Bytes;
        std::uint32_t Protection = 0;
    };
    struct TFunction {
        TCallKind Kind;
        unsigned Arguments;
        TNativeBody Body;
    };
    struct TExport {
        TCodeAddress Stub, Function;
    };
    using TExportName = std::pair<std::string, std::string>;

    TPage* PageOf(TCodeAddress address);
    std::uint8_t Byte(TCodeAddress address, std::uint32_t neededProtection);
    std::uint32_t Dword(TCodeAddress address, std::uint32_t neededProtection);
    void Put(TCodeAddress address, std::span<const std::uint8_t> bytes);
    TCodeAddress NewPages(std::size_t size, std::uint32_t protection);
    TCodeAddress NewSlot();
    /// What calls of it do until it is used again; nothing but a violation without bytes.
    void FreeSlot(TCodeAddress slot, std::span<const std::uint8_t> bytes = {});
    TCodeAddress Make(TCallKind kind, unsigned arguments, TNativeBody body);
    /// Takes a function or an export out. What is answered is to be freed without the lock: a body may own
    /// what locks.
    std::shared_ptr<TFunction> Take(TCodeAddress function, std::span<const std::uint8_t> bytes = {});
    std::shared_ptr<TFunction> TakeExport(const TExportName& name);
    void ReportError(const std::exception& error);
    /// Obeys the instructions from there to the body that they lead to; nil where they end without one.
    std::shared_ptr<TFunction> Follow(TCodeAddress at);

    std::recursive_mutex FLock;
    std::map<TCodeAddress, TPage> FPages;
    std::map<TCodeAddress, std::size_t> FBlocks;  // first page of what VirtualAlloc gave, and its size
    TCodeAddress FNextPage = 0x10000000;
    TCodeAddress FSlotPage = 0;
    std::size_t FSlotsUsed = 0;
    std::deque<TCodeAddress> FFreeSlots;
    TReport FReport;
    std::map<TCodeAddress, std::shared_ptr<TFunction>> FFunctions;
    std::map<TExportName, TExport> FExports;
};

}  // namespace rux
