#include "Engine/Virtual/RUXVirtualControls.h"

#include <algorithm>
#include <unordered_set>

#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "Engine/Core/RUXUtils.h"
#include "Engine/Virtual/RUXVirtualStdCtrls.h"
#include "Engine/Virtual/RUXVirtualTreeView.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Collected before anything is asked of the windows: their answers may run code of the application.
std::vector<HWnd> WindowsBelow(HWnd parent) {
    std::vector<HWnd> windows;
    std::unordered_set<HWnd> seen;
    if (parent == 0) return windows;  // the system would take it for the whole desktop
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

// ---------------------------------------------------------------------------------------------- windows

const TClass& DefineVirtualClass(std::string_view name, const TClass& parent) {
    return Platform().Toolkit.Classes().Define(name, &parent);
}

const TClass& TVirtualWinControl::StaticClass() {
    return DefineVirtualClass("TVirtualWinControl", TBaseVirtualControl::StaticClass());
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

void TVirtualWinControl::CollectChildren() {
    if (FCollected) return;
    FCollected = true;
    for (const HWnd window : WindowsBelow(FHandle)) {
        TObject* child = FindVclControl(window);
        // A control with a parent is reached by its own parent.
        if (Is<TControl>(child) && Cast<TControl>(child).Parent()) continue;
        if (!child) child = Engine().VirtualClasses->CreateFor(window);
        if (child) FChildren.push_back(child);
    }
}

int TVirtualWinControl::GetChildCount() {
    CollectChildren();
    return static_cast<int>(FChildren.size());
}

TObject* TVirtualWinControl::GetChild(int index) {
    Assert(index >= 0 && index < GetChildCount());
    return FChildren[static_cast<std::size_t>(index)];
}

LResult TVirtualWinControl::Send(unsigned message, WParam wParam, LParam lParam) const {
    return Platform().Windows.SendMessageA(FHandle, message, wParam, lParam);
}

std::string TVirtualWinControl::SentText() const {
    const LResult told = Send(WM_GETTEXTLENGTH, 0, 0);
    const auto length =
        std::min<std::size_t>(told < 0 ? 0 : static_cast<std::size_t>(told), VirtualTextLimit);
    // One byte more for the final zero.
    std::string text(length + 1, '\0');
    Send(WM_GETTEXT, text.size(), reinterpret_cast<LParam>(text.data()));
    text.resize(std::min(text.find('\0'), length));
    return text;
}

void TVirtualWinControl::SendText(const std::string& text) const {
    Send(WM_SETTEXT, 0, reinterpret_cast<LParam>(text.c_str()));
}

void TVirtualWindow::Close() const {
    Send(WM_CLOSE, 0, 0);
}

// ---------------------------------------------------------------------------------------------- the list

TVirtualClassList::TVirtualClassList() {
    Register<TVirtualWindow>();
    Register<TVirtualButton>();
    Register<TVirtualEdit>();
    Register<TVirtualStatic>();
    Register<TVirtualCombobox>();
    Register<TVirtualTreeView>();
}

void TVirtualClassList::Add(const TEntry& entry) {
    Assert(std::none_of(FEntries.begin(), FEntries.end(),
                        [&](const TEntry& e) { return e.VirtualClass == entry.VirtualClass; }));
    FEntries.push_back(entry);
}

TObject* TVirtualClassList::CreateFor(HWnd window) const {
    const std::string name = Platform().Windows.GetClassNameA(window);
    for (const TEntry& entry : FEntries)
        if (SameText(entry.NativeClass, name)) return &entry.Make(window);
    return nullptr;
}

}  // namespace rux
