#include "platform/win32/toolkit/WToolkit.h"

#include "platform/win32/Headers.h"
#include "platform/win32/Win32Thunks.h"
#include "platform/win32/toolkit/WBridgeTable.h"
#include "rtl/Exceptions.h"
#include "rtl/Numbers.h"

namespace rux {

namespace {

const TClass& DefineApplication(TClassTable& classes) {
    const TClass& object = classes.Define("TObject", nullptr);
    const TClass& persistent = classes.Define("TPersistent", &object);
    return classes.Define("TApplication", &classes.Define("TComponent", &persistent));
}

}  // namespace

WToolkit::WToolkit(TWin32Thunks& thunks)
    : FThunks(thunks), FApplication(DefineApplication(FClasses), NewRefNumber()) {
    if (const RUXTable* table = FindToolkitTable())
        FBridge = std::make_unique<WBridge>(*table, FClasses, FApplication.ClassType());
    FThunks.SetReport([this](const std::exception& error) { ReportError(error); });
    if (FBridge) FThunks.SetQuiet(FBridge->State().Thread, [this] { ForgetDead(); });
}

WToolkit::~WToolkit() {
    FThunks.SetQuiet(0, nullptr);
    FThunks.SetReport(nullptr);
}

void WToolkit::ReportError(const std::exception& error) {
    if (!FBridge || !FBridge->ReportError(error)) FApplication.ReportError(error);
}

TObject& WToolkit::Application() {
    if (FBridge) return FBridge->Application();
    return FApplication;
}

std::uintptr_t WToolkit::MainThreadId() {
    return FBridge ? FBridge->State().Thread : FApplication.ThreadId();
}

TObject* WToolkit::ObjectOfProp(std::uintptr_t value) {
    return FBridge ? FBridge->ObjectOf(static_cast<RUXRef>(value)) : nullptr;
}

TObject* WToolkit::ActiveForm() {
    return FBridge ? FBridge->Relation(0, RUX_ACTIVE_FORM) : nullptr;
}

int WToolkit::CustomFormCount() {
    return FBridge ? FBridge->Count(0, RUX_FORMS) : 0;
}

TObject* WToolkit::CustomForms(int index) {
    if (FBridge) return FBridge->Child(0, RUX_FORMS, index);
    throw EListError(Format("List index out of bounds (%d)", {index}));
}

TPoint WToolkit::CursorPos() {
    POINT point{};
    ::GetCursorPos(&point);
    return {point.x, point.y};
}

void WToolkit::SetCursorPos(TPoint point) {
    ::SetCursorPos(point.X, point.Y);
}

}  // namespace rux
