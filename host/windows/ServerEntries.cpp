// The entries of a server of objects. Controllers load the library by what expects them; it serves none.
#include <windows.h>

#include <objbase.h>

extern "C" {

HRESULT WINAPI DllRegisterServer() {
    return S_OK;
}

HRESULT WINAPI DllUnregisterServer() {
    return S_OK;
}

/// Nothing that is served here keeps the library. Whether the agent may go is for its controller to say.
HRESULT WINAPI DllCanUnloadNow() {
    return S_OK;
}

HRESULT WINAPI DllGetClassObject(REFCLSID, REFIID, void** object) {
    if (!object) return E_POINTER;
    *object = nullptr;
    return CLASS_E_CLASSNOTAVAILABLE;
}
}
