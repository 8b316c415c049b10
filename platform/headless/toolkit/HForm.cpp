#include "platform/headless/toolkit/HForm.h"

#include <algorithm>
#include <unordered_set>

#include "platform/headless/HLimits.h"
#include "platform/headless/toolkit/HMenus.h"
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
    if (IsVisible() && FFormStyle != TFormStyle::MDIChild) ChangeVisible(false);
    FireGuarded(Kit().Names().OnDestroy);
    HWinControl::BeforeDestruction();
}

void HCustomForm::Detach() {
    const bool wasActiveChild = FFormStyle == TFormStyle::MDIChild && FActive;
    HApplication& app = Kit().App();
    Kit().RemoveForm(*this);
    HWinControl::Detach();
    if (app.MainFormObject() == this) {
        // Nothing is left to end the application by.
        app.SetMainForm(nullptr);
        app.Terminate();
    } else if (wasActiveChild && app.MainFormObject() && !app.MainFormObject()->Destroying()) {
        if (HCustomForm* next = dynamic_cast<HCustomForm*>(app.MainFormObject()->MDIChildren(0)))
            next->ActivateMDIChild();
    }
}

void HDataModule::BeforeDestruction() {
    FireGuarded(Kit().Names().OnDestroy);
}

// ------------------------------------------------------------------------------------------------ frame

HInsets HCustomForm::Insets() const {
    // An MDI child's menu is shown by its frame.
    const int menu = FMenu && FFormStyle != TFormStyle::MDIChild ? HMenuHeight : 0;
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
    Kit().Desktop().SetInsets(Window(), Insets());
}

void HCustomForm::SetMenu(HObject* menu) {
    FMenu = menu;
    Kit().Desktop().SetInsets(Window(), Insets());
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
    const auto bound = [](int size) { return std::clamp(size, -HCoordLimit, HCoordLimit); };
    if (FWantedWidth) SetWidth(bound(*FWantedWidth) + insets.Left + insets.Right);
    if (FWantedHeight) SetHeight(bound(*FWantedHeight) + insets.Top + insets.Bottom);
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
    HCustomForm* center = nullptr;
    switch (FPosition) {
        case HPosition::poScreenCenter:
        case HPosition::poDesktopCenter:
            break;
        case HPosition::poMainFormCenter:
        case HPosition::poOwnerFormCenter:
            if (FPosition == HPosition::poOwnerFormCenter)
                center = dynamic_cast<HCustomForm*>(OwnerComponent());
            if (!center) center = Kit().App().MainFormObject();
            break;
        default:
            return;
    }
    const TRect around = center && center != this ? center->ScreenRect() : HScreenRect;
    SetLeft(std::max(0, around.Left + (around.Width() - Width()) / 2));
    SetTop(std::max(0, around.Top + (around.Height() - Height()) / 2));
}

// ------------------------------------------------------------------------------------------------ showing

void HCustomForm::SetShowOnLoad(bool value) {
    FShowOnLoad = value;
    if (!Loading()) SetVisible(value);
}

void HCustomForm::Show() {
    SetVisible(true);
    BringToFront();
}

void HCustomForm::SetVisible(bool value) {
    if (IsVisible() == value || Destroying()) return;
    if (FShowing) throw EInvalidOperation("Cannot change Visible in OnShow or OnHide");
    if (!value && FFormStyle == TFormStyle::MDIChild)
        throw EInvalidOperation("Cannot hide an MDI Child Form");
    ChangeVisible(value);
}

void HCustomForm::ChangeVisible(bool value) {
    const HDesktop::THandling handling(Kit().Desktop());
    HControl::SetVisible(value);
    const bool within = std::exchange(FShowing, true);
    if (value)
        Appear();
    else
        Disappear();
    FShowing = within;
}

namespace {

TShowCommand CommandOf(HWindowState state) {
    switch (state) {
        case HWindowState::wsNormal:
            return SW_SHOWNORMAL;
        case HWindowState::wsMinimized:
            return SW_SHOWMINNOACTIVE;
        case HWindowState::wsMaximized:
            return SW_SHOWMAXIMIZED;
    }
    return SW_SHOWNORMAL;
}

}  // namespace

void HCustomForm::Appear() {
    Realize();
    FireGuarded(Kit().Names().OnShow);
    if (Dead()) return;
    ApplyPosition();
    Kit().Desktop().ShowWindow(Handle(), CommandOf(FWindowState));
    BringToFront();
}

void HCustomForm::Disappear() {
    FireGuarded(Kit().Names().OnHide);
    Kit().Desktop().ShowWindow(Window(), SW_HIDE);
}

void HCustomForm::BringToFront() {
    if (!Window() || !IsVisible()) return;
    Kit().Desktop().BringWindowToTop(Window());
    if (FFormStyle == TFormStyle::MDIChild)
        ActivateMDIChild();
    else
        Kit().Desktop().SetActiveWindow(Window());
}

/// What a modal form changes around it.
class HCustomForm::TModal {
 public:
    explicit TModal(HCustomForm& form)
        : FForm(form),
          FHandling(form.Kit().Desktop()),
          FActiveWindow(form.Kit().Desktop().GetActiveWindow()),
          FFocusedForm(form.Kit().FocusedForm()) {
        FForm.FModal = true;
        FForm.Kit().SetFocusedForm(&FForm);
        FDisabled.emplace(FForm.Kit().Desktop());
    }
    ~TModal() {
        HDesktop& desktop = FForm.Kit().Desktop();
        // Whoever was active comes back, unless somebody else has come up meanwhile.
        const bool stillActive = FForm.Dead() || desktop.GetActiveWindow() == FForm.Window();
        if (FForm.IsVisible() && !FForm.Destroying()) FForm.ChangeVisible(false);
        FDisabled.reset();
        FForm.Kit().SetFocusedForm(FFocusedForm.Get());
        if (stillActive) desktop.SetActiveWindow(FActiveWindow);
        FForm.FModal = false;
    }
    TModal(const TModal&) = delete;
    TModal& operator=(const TModal&) = delete;

 private:
    HCustomForm& FForm;
    const HDesktop::THandling FHandling;
    const HWnd FActiveWindow;
    const HRef<HCustomForm> FFocusedForm;
    std::optional<HTaskWindowsDisabled> FDisabled;
};

int HCustomForm::ShowModal() {
    if (IsVisible() || !IsEnabled() || FModal || Destroying() || FFormStyle == TFormStyle::MDIChild)
        throw EInvalidOperation("Cannot make a visible window modal");
    Kit().Desktop().CancelMode();
    const TModal modal(*this);
    HApplication& app = Kit().App();
    Show();
    FireGuarded(Kit().Names().OnActivate);
    FModalResult = mrNone;
    while (FModalResult == mrNone && !Dead()) {
        app.HandleMessage();
        if (app.Terminated())
            FModalResult = mrCancel;
        else if (FModalResult != mrNone)
            CloseModal();
    }
    FireGuarded(Kit().Names().OnDeactivate);
    return Dead() ? mrCancel : FModalResult;
}

bool HCustomForm::CloseQuery() {
    if (FFormStyle == TFormStyle::MDIForm) {
        const std::vector<HCustomForm*> forms = Kit().Forms();
        for (HCustomForm* form : forms)
            if (!form->Dead() && form->FFormStyle == TFormStyle::MDIChild && !form->CloseQuery())
                return false;
    }
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
    int action = caNone;
    Kit().App().Guarded([&] {
        if (CloseQuery()) action = CloseActionOf();
    });
    if (action == caNone) FModalResult = mrNone;
    if (action == caFree && !Dead()) Release();
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

void HCustomForm::SetActiveControlObject(HObject* object) {
    auto* control = dynamic_cast<HWinControl*>(object);
    if (Loading())
        FActiveControl = control;
    else
        SetActiveControl(control);
}

void HCustomForm::SetActiveControl(HWinControl* control) {
    if (control == this) control = nullptr;
    if (FActiveControl.Get() == control) return;
    if (control && IsVisible() && IsEnabled() && !control->CanFocus()) throw EInvalidOperation(CannotFocus);
    FActiveControl = control;
    if (FActive) FocusWindow();
}

void HCustomForm::FocusControl(HWinControl& control) {
    const bool wasActive = FActive;
    SetActiveControl(&control);
    if (!wasActive) SetFocus();
}

void HCustomForm::SetFocus() {
    if (FActive) return;
    if (!IsVisible() || !IsEnabled()) throw EInvalidOperation(CannotFocus);
    if (FFormStyle == TFormStyle::MDIChild)
        ActivateMDIChild();
    else
        FocusWindow();
}

void HCustomForm::FocusWindow() {
    Kit().Desktop().SetFocus(FocusOrMe(FActiveControl.Get())->Handle());
}

void HCustomForm::Defocus(const HWinControl& control, bool removing) {
    const auto holds = [&](const HRef<HWinControl>& held) { return held && held->IsWithin(&control); };
    // Nobody hears an OnExit from what is being taken away.
    if (removing && holds(FEntered))
        FEntered = control.ParentControl() == this ? nullptr : control.ParentControl();
    if (holds(FActiveControl)) SetActiveControl(nullptr);
}

bool HCustomForm::SetFocusedControl(HWinControl& control) {
    const unsigned move = Kit().CountFocusMove();
    const auto goesOn = [&] { return Kit().FocusMoves() == move && !Dead() && !control.Dead(); };
    if (&control != this) FActiveControl = &control;
    Kit().FormFocused(*this);
    if (HCustomForm* before = Kit().FocusedForm(); before != this) {
        Kit().SetFocusedForm(nullptr);
        if (before) before->FireGuarded(Kit().Names().OnDeactivate);
        if (!goesOn()) return false;
        Kit().SetFocusedForm(this);
        FireGuarded(Kit().Names().OnActivate);
        if (!goesOn()) return false;
    }
    // From the control that had the focus up to what both stand on, then down to the one that gets it.
    HWinControl* entered = FocusOrMe(FEntered.Get());
    if (entered == &control) return true;
    const std::unordered_set<HWinControl*> around = [&] {
        std::unordered_set<HWinControl*> all;
        for (HWinControl* step = &control; step; step = step->ParentControl()) all.insert(step);
        return all;
    }();
    while (entered && entered != this && !around.count(entered)) {
        HWinControl* left = std::exchange(entered, entered->ParentControl());
        FEntered = entered == this ? nullptr : entered;
        Kit().App().Guarded([&] { left->DoExit(); });
        if (!goesOn()) return false;
    }
    std::vector<HWinControl*> entering;
    for (HWinControl* step = &control; step && step != entered && step != this; step = step->ParentControl())
        entering.push_back(step);
    for (auto step = entering.rbegin(); step != entering.rend(); ++step) {
        FEntered = *step;
        Kit().App().Guarded([&] { (*step)->DoEnter(); });
        if (!goesOn()) return false;
    }
    return true;
}

HWinControl* HCustomForm::NextTabControl(const HWinControl* from, bool backwards) {
    struct TPlace {
        HWinControl* Control;
        bool Reachable;
    };
    // Tab order: depth first, the controls of one parent by TabOrder and then by creation.
    std::vector<TPlace> order;
    std::vector<TPlace> pending{{this, true}};
    while (!pending.empty()) {
        const TPlace place = pending.back();
        pending.pop_back();
        if (place.Control != this)
            order.push_back({place.Control, place.Reachable && place.Control->TabStop()});
        std::vector<HWinControl*> row = place.Control->WindowedControls();
        std::sort(row.begin(), row.end(), [](const HWinControl* a, const HWinControl* b) {
            const auto key = [](const HWinControl* c) {
                return std::pair(static_cast<unsigned>(c->TabOrder()), c->RefNumber());
            };
            return key(a) < key(b);
        });
        for (auto step = row.rbegin(); step != row.rend(); ++step)
            pending.push_back({*step, place.Reachable && (*step)->IsVisible() && (*step)->IsEnabled()});
    }
    if (backwards) std::reverse(order.begin(), order.end());
    const auto start =
        std::find_if(order.begin(), order.end(), [&](const TPlace& p) { return p.Control == from; });
    if (start != order.end()) std::rotate(order.begin(), start + 1, order.end());
    const auto next = std::find_if(order.begin(), order.end(), [](const TPlace& p) { return p.Reachable; });
    return next == order.end() ? nullptr : next->Control;
}

namespace {

/// A menu item's shortcut for a key with the modifiers that are down.
int ShortCutOf(unsigned key, const HDesktop& desktop) {
    const auto bit = [&](unsigned modifier, int value) { return desktop.KeyIsDown(modifier) ? value : 0; };
    return static_cast<int>(key) | bit(VK_SHIFT, 0x2000) | bit(VK_CONTROL, 0x4000) | bit(VK_MENU, 0x8000);
}

}  // namespace

bool HCustomForm::MenuKey(int shortCut, HWinControl& focused) {
    // The pop-up menus from the focused control outwards, then the form's own menu, then the main form's.
    std::vector<HMenu*> menus;
    for (HWinControl* step = &focused; step; step = step->ParentControl())
        menus.push_back(dynamic_cast<HMenu*>(step->PopupMenuObject()));
    menus.push_back(dynamic_cast<HMenu*>(FMenu.Get()));
    HCustomForm* main = Kit().App().MainFormObject();
    if (main && main != this && Kit().Desktop().IsWindowEnabled(main->Window()))
        menus.push_back(dynamic_cast<HMenu*>(main->FMenu.Get()));
    std::unordered_set<HMenu*> asked{nullptr};
    for (HMenu* menu : menus) {
        HMenuItem* item = asked.insert(menu).second ? menu->Root().FindShortCut(shortCut) : nullptr;
        if (!item) continue;
        item->ClickByKey();
        return true;
    }
    return false;
}

bool HCustomForm::DialogKey(unsigned key, HWinControl& focused) {
    const HDesktop& desktop = Kit().Desktop();
    if (key != 0 && MenuKey(ShortCutOf(key, desktop), focused)) return true;
    if (focused.WantsKey(key) || desktop.KeyIsDown(VK_CONTROL) || desktop.KeyIsDown(VK_MENU)) return false;
    if (key == VK_TAB) {
        HWinControl* next = NextTabControl(FActiveControl.Get(), desktop.KeyIsDown(VK_SHIFT));
        if (next) next->SetFocus();
        return true;
    }
    if ((key != VK_RETURN && key != VK_ESCAPE) || desktop.KeyIsDown(VK_SHIFT)) return false;
    // The focused button answers Enter; else the form's default button does, and the cancel button Escape.
    std::vector<HWinControl*> pending{this};
    while (!pending.empty()) {
        HWinControl* control = pending.back();
        pending.pop_back();
        if (control != this && (!control->IsVisible() || !control->IsEnabled())) continue;
        if (control != this && control->Perform(CM_DIALOGKEY, key, 0)) return true;
        pending.insert(pending.end(), control->WindowedControls().rbegin(),
                       control->WindowedControls().rend());
    }
    return false;
}

// ------------------------------------------------------------------------------------------------ messages

void HCustomForm::SetActive(bool active) {
    FActive = active;
    if (!active) return;
    if (!FActiveControl) FActiveControl = NextTabControl(nullptr, false);
    FocusWindow();
}

HCustomForm* HCustomForm::ActiveMDIChild() {
    const auto& forms = Kit().Forms();
    const auto found = std::find_if(forms.begin(), forms.end(), [](const HCustomForm* form) {
        return form->FFormStyle == TFormStyle::MDIChild && form->FActive;
    });
    return found == forms.end() ? nullptr : *found;
}

void HCustomForm::ActivateMDIChild() {
    if (HCustomForm* before = ActiveMDIChild(); before && before != this) before->SetActive(false);
    SetActive(true);
}

bool HCustomForm::PassFocusOn() {
    if (FFormStyle == TFormStyle::MDIForm) {
        HCustomForm* child = ActiveMDIChild();
        return child && Kit().Desktop().SetFocus(child->Window());
    }
    HWinControl* control = FActiveControl.Get();
    return control && control->Window() && control->CanFocus() && Kit().Desktop().SetFocus(control->Window());
}

void HCustomForm::HandleMessage(HMessage& message) {
    switch (message.Number) {
        case WM_CLOSE:
            Close();
            return;
        case WM_ACTIVATE:
            // Of an MDI frame and its children the children are active.
            if (FFormStyle != TFormStyle::MDIForm) SetActive(message.W != 0);
            return;
        case CM_RELEASE:
            Free();
            return;
        case WM_SETFOCUS:
            if (PassFocusOn()) return;
            break;
        default:
            break;
    }
    HWinControl::HandleMessage(message);
}

int HCustomForm::MDIChildCount() {
    if (FFormStyle != TFormStyle::MDIForm) return 0;
    const auto& forms = Kit().Forms();
    return static_cast<int>(std::count_if(forms.begin(), forms.end(), [](const HCustomForm* f) {
        return f->FFormStyle == TFormStyle::MDIChild;
    }));
}

TObject* HCustomForm::MDIChildren(int index) {
    for (HCustomForm* form : Kit().Forms())
        if (form->FFormStyle == TFormStyle::MDIChild && index-- == 0) return form;
    return nullptr;
}

void HCustomForm::UpdateActions() {
    if (!IsVisible()) return;
    const HDesktop::THandling handling(Kit().Desktop());
    if (auto* menu = dynamic_cast<HMenu*>(FMenu.Get())) {
        const std::vector<HMenuItem*> items = menu->Root().ItemList();
        for (HMenuItem* item : items)
            if (!item->Dead() && item->Visible() && item->Action()) item->Action()->Update();
    }
    const std::vector<HControl*> controls = Kit().ActionControls();
    for (HControl* control : controls)
        if (!control->Dead() && control->Action() && control->IsShowingOn(*this)) control->Action()->Update();
}

}  // namespace rux
