// A module of the toolkit's file name with nothing in it: the agent lives only where such a module is loaded.
#include <windows.h>

extern "C" __declspec(dllexport) BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) {
    return TRUE;
}
