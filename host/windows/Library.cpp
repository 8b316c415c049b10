// Where the loader enters: the agent is made with the library and goes with it.
#include <memory>

#include "host/windows/LoadedAgent.h"
#include "platform/win32/Win32Locale.h"
#include "platform/win32/Win32Stack.h"
#include "rtl/CodePage.h"
#include "rtl/Dates.h"

#include <windows.h>

namespace __gnu_cxx {
/// The C++ library's own: frees what it has set aside for exceptions without memory, which nobody else does.
extern void __freeres();
}  // namespace __gnu_cxx

namespace rux {
namespace {

std::unique_ptr<TLoadedAgent> Agent;

bool Load() noexcept {
    try {
        TellStackLimits();
        SetAnsiCodePage(LoadSystemCodePage());
        SetLocaleFacts(LoadLocaleFacts());
        Agent = std::make_unique<TLoadedAgent>();
        return true;
    } catch (const std::exception& error) {
        ::OutputDebugStringA(error.what());
    } catch (...) {
        ::OutputDebugStringA("RUX: the library cannot start");
    }
    return false;
}

void Unload() noexcept {
    try {
        Agent.reset();
    } catch (...) {
        ::OutputDebugStringA("RUX: the library did not end in order");
    }
    __gnu_cxx::__freeres();
}

}  // namespace
}  // namespace rux

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
    if (reason == DLL_PROCESS_ATTACH) return rux::Load();
    if (reason != DLL_PROCESS_DETACH) return TRUE;
    // At the process's end all other threads are dead already, with whatever locks they held, and everything
    // goes anyway.
    if (processEnds)
        static_cast<void>(rux::Agent.release());
    else
        rux::Unload();
    return TRUE;
}
