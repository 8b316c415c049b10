#include "platform/headless/toolkit/HForm.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

/// Posted to a form that is to end itself.
constexpr unsigned CM_RELEASE = 45089;

const char* const CannotFocus = "Cannot focus a disabled or invisible window";

}  // namespace

template <>
const HEnumInfo& HEnumOf<TFormStyle>() {
    static const HEnumInfo info{"TFormStyle", {"fsNormal", "fsMDIChild", "fsMDIForm", "fsStayOnTop"}};
    return info;
}
template <>
const HEnumInfo& HEnumOf<HBorderStyle>() {
    static const HEnumInfo info{
        "TFormBorderStyle",
        {"bsNone", "bsSingle", "bsSizeable", "bsDialog", "bsToolWindow", "bsSizeToolWin"}};
    return info;
}
template <>
const HEnumInfo& HEnumOf<HPosition>() {
    static const HEnumInfo info{
        "TPosition",
        {"poDesigned", "poDefault", "poDefaultPosOnly", "poDefaultSizeOnly", "poScreenCenter",
         "poDesktopCenter", "poMainFormCenter", "poOwnerFormCenter"}};
    return info;
}
template <>
const HEnumInfo& HEnumOf<HWindowState>() {
    static const HEnumInfo info{"TWindowState", {"wsNormal", "wsMinimized", "wsMaximized"}};
    return info;
}

HCustomForm::HCustomForm(HToolkit& kit, const HClassDef& def) : With(kit, def) {
    HControl::SetVisible(false);
    HControl::SetBounds({0, 0, 320, 240});
    FCaptureMouse = false;
    kit.AddForm(*this);
}

HCustomForm::~HCustomForm() {
    Kit().RemoveForm(*this);
}

void HCustomForm::BeforeDestruction() {
    Fire(Kit().Names().OnDestroy);
    if (FModal) FModalResult = mrCancel;
    HWinControl::BeforeDestruction();
}

void HCustomForm::Detach() {
    Kit().RemoveForm(*this);
    if (Kit().App().MainFormObject() == this) Kit().App().SetMainForm(nullptr);
    HWinControl::Detach();
}

// ------------------------------------------------------------------------------------------------ frame

HInsets HCustomForm::Insets() const {
    const int menu = FMenu ? HMenuHeight : 0;
    switch (FBorderStyle) {
        case HBorderStyle::bsNone:
            return {0, menu, 0, 0};
        case HBorderStyle::bsSingle:
        case HBorderStyle::bsDialog:
            return {HFixedFrame, HFixedFrame + HCaptionHeight + menu, HFixedFrame, HFixedFrame};
        case HBorderStyle::bsToolWindow:
            return {HFixedFrame, HFixedFrame + HToolCaptionHeight, HFixedFrame, HFixedFrame};
        case HBorderStyle::bsSizeToolWin:
            return {HSizeFrame, HSizeFrame + HToolCaptionHeight, HSizeFrame, HSizeFrame};
        case HBorderStyle::bsSizeable:
            break;
    }
    return {HSizeFrame, HSizeFrame + HCaptionHeight + menu, HSizeFrame, HSizeFrame};
}

void HCustomForm::SetBorderStyle(HBorderStyle value) {
    FBorderStyle = value;
    Kit().Desktop().SetInsets(HandleAllocated() ? Handle() : 0, Insets());
}

void HCustomForm::SetMenu(HObject* menu) {
    FMenu = menu;
    Kit().Desktop().SetInsets(HandleAllocated() ? Handle() : 0, Insets());
}

void HCustomForm::SetClientWidth(int value) {
    FWantedWidth = value;
    if (!Loading()) ApplyClientSize();
}

void HCustomForm::SetClientHeight(int value) {
    FWantedHeight = value;
    if (!Loading()) ApplyClientSize();
}

void HCustomForm::ApplyClientSize() {
    const HInsets insets = Insets();
    if (FWantedWidth) SetWidth(*FWantedWidth + insets.Left + insets.Right);
    if (FWantedHeight) SetHeight(*FWantedHeight + insets.Top + insets.Bottom);
    FWantedWidth.reset();
    FWantedHeight.reset();
}

void HCustomForm::Loaded() {
    HWinControl::Loaded();
    ApplyClientSize();
}

void HCustomForm::CreateParams(HCreateParams& params) {
    HWinControl::CreateParams(params);
    if (FFormStyle == TFormStyle::StayOnTop) params.ExStyle |= WS_EX_TOPMOST;
    HCustomForm* frame = Kit().App().MainFormObject();
    if (FFormStyle != TFormStyle::MDIChild || !frame || frame == this) return;
    params.Style = WS_CHILD | (params.Style & WS_DISABLED);
    params.ExStyle |= WS_EX_MDICHILD;
    params.Parent = frame->Handle();
}

void HCustomForm::ApplyPosition() {
    if (std::exchange(FPlaced, true)) return;
    TRect around = HScreenRect;
    HCustomForm* main = Kit().App().MainFormObject();
    switch (FPosition) {
        case HPosition::poScreenCenter:
        case HPosition::poDesktopCenter:
            break;
        case HPosition::poMainFormCenter:
            if (main && main != this) around = main->ScreenRect();
            break;
        case HPosition::poOwnerFormCenter:
            if (auto* owner = dynamic_cast<HCustomForm*>(OwnerComponent())) around = owner->ScreenRect();
            break;
        default:
            return;
    }
    const int left = std::max(0, around.Left + (around.Width() - Width()) / 2);
    const int top = std::max(0, around.Top + (around.Height() - Height()) / 2);
    SetBounds({left, top, left + Width(), top + Height()});
}

// ------------------------------------------------------------------------------------------------ showing

void HCustomForm::SetVisible(bool value) {
    if (IsVisible() == value) return;
    if (value) {
        ApplyPosition();
        Fire(Kit().Names().OnShow);
        if (Dead() || IsVisible()) return;
        HControl::SetVisible(true);
        Realize();
        Kit().Desktop().ShowWindow(Handle(), true);
        if (FFormStyle == TFormStyle::MDIChild)
            Activated(true);
        else
            Kit().Desktop().SetActiveWindow(Handle());
        return;
    }
    Fire(Kit().Names().OnHide);
    if (Dead()) return;
    HControl::SetVisible(false);
    if (HandleAllocated()) Kit().Desktop().ShowWindow(Handle(), false);
    if (FActive) Activated(false);
}

void HCustomForm::BringToFront() {
    HWinControl::BringToFront();
    if (FFormStyle == TFormStyle::MDIChild)
        Activated(true);
    else if (HandleAllocated())
        Kit().Desktop().SetActiveWindow(Handle());
}

int HCustomForm::ShowModal() {
    if (IsVisible() || !IsEnabled() || FModal || FFormStyle == TFormStyle::MDIChild)
        throw EInvalidOperation("Cannot make a visible window modal");
    HDesktop& desktop = Kit().Desktop();
    const HWnd activeBefore = desktop.GetActiveWindow();
    FModal = true;
    const std::vector<HWnd> disabled = Kit().DisableTaskWindows(0);
    const auto restore = [&] {
        if (!Dead()) SetVisible(false);
        Kit().EnableTaskWindows(disabled);
        if (desktop.Find(activeBefore)) desktop.SetActiveWindow(activeBefore);
        FModal = false;
    };
    try {
        Show();
        FModalResult = mrNone;
        while (FModalResult == mrNone) {
            Kit().App().HandleMessage();
            if (Kit().App().Terminated() || Dead())
                FModalResult = mrCancel;
            else if (FModalResult != mrNone)
                CloseModal();
        }
    } catch (...) {
        restore();
        throw;
    }
    const int result = FModalResult;
    restore();
    return result;
}

bool HCustomForm::CloseQuery() {
    for (int i = 0; i < MDIChildCount(); ++i)
        if (!dynamic_cast<HCustomForm*>(MDIChildren(i))->CloseQuery()) return false;
    HEventArgs args;
    Fire(Kit().Names().OnCloseQuery, args);
    return args.Allow;
}

int HCustomForm::CloseActionOf() {
    int action = caHide;
    if (FFormStyle == TFormStyle::MDIChild) action = FMinimizeBox ? caMinimize : caNone;
    HEventArgs args{.Value = action, .Point = {}};
    Fire(Kit().Names().OnClose, args);
    return args.Value;
}

void HCustomForm::CloseModal() {
    if (!CloseQuery()) {
        FModalResult = mrNone;
        return;
    }
    const int action = CloseActionOf();
    if (action == caNone) FModalResult = mrNone;
    if (action == caFree) Release();
}

void HCustomForm::Close() {
    if (FModal) {
        FModalResult = mrCancel;
        return;
    }
    if (!CloseQuery()) return;
    const int action = CloseActionOf();
    if (action == caNone || Dead()) return;
    if (Kit().App().MainFormObject() == this)
        Kit().App().Terminate();
    else if (action == caHide)
        Hide();
    else if (action == caMinimize)
        FWindowState = HWindowState::wsMinimized;
    else
        Release();
}

void HCustomForm::Release() {
    Kit().Desktop().PostMessageA(Handle(), CM_RELEASE, 0, 0);
}

// ------------------------------------------------------------------------------------------------ focus

void HCustomForm::SetActiveControlObject(HObject* control) {
    FActiveControl = dynamic_cast<HWinControl*>(control);
}

void HCustomForm::FocusControl(HWinControl& control) {
    const bool wasActive = FActive;
    if (FActiveControl != &control) {
        if (&control != this && IsVisible() && IsEnabled() && !control.CanFocus())
            throw EInvalidOperation(CannotFocus);
        FActiveControl = &control == this ? nullptr : &control;
        if (FActive) FocusWindow();
    }
    if (!wasActive) SetFocus();
}

void HCustomForm::SetFocus() {
    if (FActive) return;
    if (!IsVisible() || !IsEnabled()) throw EInvalidOperation(CannotFocus);
    FocusWindow();
}

void HCustomForm::FocusWindow() {
    HWinControl* target = FActiveControl ? FActiveControl : this;
    Kit().Desktop().SetFocus(target->Handle());
}

void HCustomForm::ControlFocused(HWinControl& control) {
    HWinControl* entered = &control == this ? nullptr : &control;
    if (entered) FActiveControl = entered;
    HWinControl* left = std::exchange(FEntered, entered);
    if (left == entered) return;
    const auto outside = [](HWinControl* step, HWinControl* other) {
        return !other || !other->IsWithin(step);
    };
    std::vector<HWinControl*> entering;
    for (HWinControl* step = entered; step && step != this && outside(step, left);
         step = step->ParentControl())
        entering.push_back(step);
    for (HWinControl* step = left; step && step != this && outside(step, entered);
         step = step->ParentControl())
        step->Fire(Kit().Names().OnExit);
    for (auto step = entering.rbegin(); step != entering.rend(); ++step) (*step)->Fire(Kit().Names().OnEnter);
}

void HCustomForm::ControlGone(const HWinControl& control) {
    if (FActiveControl && FActiveControl->IsWithin(&control)) FActiveControl = nullptr;
    if (FEntered && FEntered->IsWithin(&control)) FEntered = nullptr;
}

void HCustomForm::SelectFirst() {
    if (!FActiveControl) FActiveControl = NextTabControl(nullptr, false);
}

HWinControl* HCustomForm::NextTabControl(const HWinControl* from, bool backwards) {
    // Tab order: depth first, the controls of one parent by TabOrder and then by creation.
    std::vector<HWinControl*> order;
    std::vector<HWinControl*> pending{this};
    while (!pending.empty()) {
        HWinControl* control = pending.back();
        pending.pop_back();
        if (control != this && control->TabStop() && control->CanFocus()) order.push_back(control);
        std::vector<HWinControl*> row = control->WindowedControls();
        std::stable_sort(row.begin(), row.end(), [](const HWinControl* a, const HWinControl* b) {
            return static_cast<unsigned>(a->TabOrder()) < static_cast<unsigned>(b->TabOrder());
        });
        for (auto step = row.rbegin(); step != row.rend(); ++step)
            if ((*step)->IsVisible()) pending.push_back(*step);
    }
    if (order.empty()) return nullptr;
    const auto place = std::find(order.begin(), order.end(), from);
    if (place == order.end()) return order.front();
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    const std::ptrdiff_t index = place - order.begin() + (backwards ? count - 1 : 1);
    return order[static_cast<std::size_t>(index % count)];
}

bool HCustomForm::DialogKey(unsigned key, HWinControl& focused) {
    if (focused.WantsKey(key)) return false;
    if (key == VK_TAB) {
        HWinControl* next = NextTabControl(&focused, Kit().Desktop().KeyIsDown(VK_SHIFT));
        if (next) next->SetFocus();
        return next != nullptr;
    }
    if (key != VK_RETURN && key != VK_ESCAPE) return false;
    // The focused button answers Enter; else the form's default button does, and the cancel button Escape.
    std::vector<HWinControl*> pending{this};
    while (!pending.empty()) {
        HWinControl* control = pending.back();
        pending.pop_back();
        if (control != this && control->CanFocus() && control->Perform(CM_DIALOGKEY, key, 0)) return true;
        pending.insert(pending.end(), control->WindowedControls().rbegin(),
                       control->WindowedControls().rend());
    }
    return false;
}

// ------------------------------------------------------------------------------------------------ messages

void HCustomForm::Activated(bool active) {
    if (FActive == active) return;
    FActive = active;
    if (FFormStyle == TFormStyle::MDIChild && active)
        for (HCustomForm* other : std::vector<HCustomForm*>(Kit().Forms()))
            if (other != this && other->FFormStyle == TFormStyle::MDIChild) other->FActive = false;
    if (active) {
        Kit().FormActivated(*this);
        SelectFirst();
        FocusWindow();
        if (!Dead()) Fire(Kit().Names().OnActivate);
        return;
    }
    Kit().FormDeactivated(*this);
    Fire(Kit().Names().OnDeactivate);
}

void HCustomForm::HandleMessage(HMessage& message) {
    switch (message.Number) {
        case WM_CLOSE:
            Close();
            return;
        case WM_ACTIVATE:
            Activated(message.W != 0);
            return;
        case CM_RELEASE:
            Free();
            return;
        case WM_SETFOCUS:
            // The form hands the focus on to its active control.
            if (FActiveControl && FActiveControl->HandleAllocated() && FActiveControl->CanFocus()) {
                FocusWindow();
                return;
            }
            break;
        default:
            break;
    }
    HWinControl::HandleMessage(message);
}

int HCustomForm::MDIChildCount() {
    if (FFormStyle != TFormStyle::MDIForm) return 0;
    return static_cast<int>(std::count_if(Kit().Forms().begin(), Kit().Forms().end(), [](HCustomForm* f) {
        return f->FFormStyle == TFormStyle::MDIChild && f->HandleAllocated();
    }));
}

TObject* HCustomForm::MDIChildren(int index) {
    for (HCustomForm* form : Kit().Forms())
        if (form->FFormStyle == TFormStyle::MDIChild && form->HandleAllocated() && index-- == 0) return form;
    return nullptr;
}

void HCustomForm::RemoveActionClient(const HControl& control) {
    std::erase(FActionClients, &control);
}

void HCustomForm::UpdateActions() {
    const std::vector<HControl*> clients = FActionClients;
    for (HControl* client : clients) {
        if (Dead()) return;
        if (!client->Dead() && client->IsVisible() && client->Action()) client->Action()->Update();
    }
}

}  // namespace rux
