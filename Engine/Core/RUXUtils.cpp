#include "Engine/Core/RUXUtils.h"

#include "Engine/Core/RUXEngineState.h"
#include "platform/KernelService.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Classes.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

std::string GetRawWindowText(HWnd window) {
    return Platform().Windows.GetWindowTextA(window);
}

namespace {

/// The toolkit keeps its object in a property of each of its windows, under an atom named for the process.
std::uintptr_t VclMark(TPlatform& platform, HWnd window) {
    TWindowService& windows = platform.Windows;
    const std::uint32_t process = platform.Kernel.GetCurrentProcessId();
    if (window == 0 || windows.GetWindowProcessId(window) != process) return 0;
    const TAtom atom = windows.GlobalFindAtomA("Delphi" + IntToHex8(process));
    return atom ? windows.GetPropA(window, atom) : 0;
}

}  // namespace

bool HasVclMark(TPlatform& platform, HWnd window) {
    return VclMark(platform, window) != 0;
}

TObject* FindVclControl(TPlatform& platform, HWnd window) {
    return platform.Toolkit.ObjectOfProp(VclMark(platform, window));
}

TObject* FindVclControl(HWnd window) {
    return FindVclControl(Platform(), window);
}

std::string GetWindowCaption(HWnd window) {
    std::string text = GetRawWindowText(window);
    if (!text.empty()) return text;
    TObject* object = FindVclControl(window);
    return object ? Cast<TComponent>(object).Name() : text;
}

namespace {

std::string TextOf(const TPropValue& value, TObject& object, std::string_view name) {
    switch (value.Kind) {
        case TTypeKind::Integer:
        case TTypeKind::Char:
        case TTypeKind::WChar:
        case TTypeKind::Int64:
            return IntToStr(value.Ordinal);
        case TTypeKind::Float:
            return FloatToStr(value.Real);
        case TTypeKind::Enumeration:
        case TTypeKind::Set:
        case TTypeKind::String:
        case TTypeKind::WString:
        case TTypeKind::Variant:
            return value.Text;
        case TTypeKind::Class:
        case TTypeKind::Method:
        case TTypeKind::Unknown:
            break;
    }
    Assert(false, object.ClassType().Name() + "." + std::string(name));
    return {};
}

}  // namespace

std::string GetPropValue(TObject* instance, std::string_view name) {
    while (instance) {
        const std::size_t dot = name.find('.');
        const std::string_view own = name.substr(0, dot);
        TPropValue value;
        if (!instance->GetProp(FindName(own), value)) return {};
        if (value.Kind != TTypeKind::Class) return TextOf(value, *instance, own);
        Assert(dot != name.npos, instance->ClassType().Name() + "." + std::string(own));
        instance = value.Object;
        name = Trim(name.substr(dot + 1));
    }
    return {};
}

}  // namespace rux
