#include "Engine/Virtual/RUXVirtualControls.h"

#include <unordered_set>
#include <vector>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXUtils.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Collected before anything is asked of the windows: their answers may run code of the application.
std::vector<HWnd> WindowsBelow(HWnd parent) {
    std::vector<HWnd> windows;
    std::unordered_set<HWnd> seen;
    Platform().Windows.EnumChildWindows(parent, [&](HWnd window) {
        if (seen.insert(window).second) windows.push_back(window);
        return true;
    });
    return windows;
}

}  // namespace

// ---------------------------------------------------------------------------------------------- the root

const TClass& TBaseVirtualControl::StaticClass() {
    TClassTable& classes = Platform().Toolkit.Classes();
    const TClass& persistent = classes.Define("TPersistent", &classes.Define("TObject", nullptr));
    return classes.Define("TBaseVirtualControl", &persistent);
}

TBaseVirtualControl::TBaseVirtualControl(const TClass& type)
    : FClass(type), FRef(Platform().Toolkit.NewRefNumber()) {}

// ---------------------------------------------------------------------------------------------- native
// windows

const TClass& TVirtualWinControl::StaticClass() {
    return Platform().Toolkit.Classes().Define("TVirtualWinControl", &TBaseVirtualControl::StaticClass());
}

std::string TVirtualWinControl::Caption() const {
    return GetRawWindowText(FHandle);
}

std::string TVirtualWinControl::Name() const {
    return RemoveBlanks(Caption());
}

bool TVirtualWinControl::GetEnabled() {
    return Platform().Windows.IsWindowEnabled(FHandle);
}

bool TVirtualWinControl::GetProp(TName name, TPropValue& value) {
    const TPropertyNames& names = Engine().PropertyNames;
    const bool caption = name == names.Caption;
    if (!caption && name != names.Name) return TBaseVirtualControl::GetProp(name, value);
    value = TPropValue();
    value.Kind = TTypeKind::String;
    value.Text = caption ? Caption() : Name();
    return true;
}

std::string TVirtualWinControl::GetWindowReport() const {
    std::string report = Caption();
    for (const HWnd window : WindowsBelow(FHandle)) {
        const std::string title = GetRawWindowText(window);
        if (title.empty()) continue;
        const TObject* object = FindVclControl(window);
        report += "\r\n" + (object ? object->ClassType().Name() : std::string("other")) + ":" + title;
    }
    return report;
}

const TClass& TVirtualWindow::StaticClass() {
    return Platform().Toolkit.Classes().Define("TVirtualWindow", &TVirtualWinControl::StaticClass());
}

}  // namespace rux
