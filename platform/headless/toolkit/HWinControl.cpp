#include "platform/headless/toolkit/HWinControl.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "platform/headless/drawing/HControlPainter.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

HWinControl::~HWinControl() {
    DestroyHandle();
}

// ------------------------------------------------------------------------------------------------ children

void HWinControl::AddControl(HControl& control) {
    if (!control.IsWindowed()) {
        FGraphic.push_back(&control);
        return;
    }
    auto& windowed = static_cast<HWinControl&>(control);
    windowed.FOrder = ++FLastOrder;
    FWindowed.push_back(&windowed);
}

void HWinControl::RemoveControl(HControl& control) {
    // Controls mostly go in the reverse order of their coming.
    const auto remove = [&](auto& row) {
        const auto place = std::find(row.rbegin(), row.rend(), &control);
        if (place != row.rend()) row.erase(std::next(place).base());
    };
    if (control.IsWindowed())
        remove(FWindowed);
    else
        remove(FGraphic);
}

void HWinControl::SetControlIndex(HControl& control, int index) {
    const auto move = [&](auto& row, int at) {
        const auto place = std::find(row.rbegin(), row.rend(), &control);
        if (place == row.rend()) return;
        auto* moved = *place;
        row.erase(std::next(place).base());
        row.insert(row.begin() + std::clamp(at, 0, static_cast<int>(row.size())), moved);
    };
    if (!control.IsWindowed()) {
        move(FGraphic, index);
        return;
    }
    move(FWindowed, index - static_cast<int>(FGraphic.size()));
    Reorder(static_cast<HWinControl&>(control));
}

void HWinControl::Reorder(HWinControl& moved) {
    if (FWindowed.back() == &moved) {
        moved.FOrder = ++FLastOrder;
    } else {
        // The others keep their order among each other.
        FLastOrder = 0;
        for (HWinControl* control : FWindowed) {
            control->FOrder = ++FLastOrder;
            if (HWindow* window = Kit().Desktop().Find(control->FHandle)) window->Order = control->FOrder;
        }
    }
    if (moved.FHandle) Kit().Desktop().SetWindowOrder(moved.FHandle, moved.FOrder);
}

TObject* HWinControl::Controls(int index) {
    const auto place = static_cast<std::size_t>(index);
    if (index >= 0 && place < FGraphic.size()) return FGraphic[place];
    if (index < 0 || place - FGraphic.size() >= FWindowed.size())
        throw EListError("List index out of bounds (" + std::to_string(index) + ")");
    return FWindowed[place - FGraphic.size()];
}

HControl* HWinControl::GraphicAt(TPoint point) {
    for (auto step = FGraphic.rbegin(); step != FGraphic.rend(); ++step)
        if ((*step)->IsVisible() && (*step)->IsEnabled() && (*step)->BoundsRect().Contains(point))
            return *step;
    return nullptr;
}

bool HWinControl::IsWithin(const HWinControl* ancestor) const {
    for (const HWinControl* step = this; step; step = step->ParentControl())
        if (step == ancestor) return true;
    return false;
}

// ------------------------------------------------------------------------------------------------ windows

HWnd HWinControl::Handle() {
    if (FHandle || Dead()) return FHandle;
    // From the first parent that has a window down to this control; the chain may be long.
    std::vector<HWinControl*> chain;
    for (HWinControl* step = this; step && !step->FHandle; step = step->ParentControl())
        chain.push_back(step);
    for (auto step = chain.rbegin(); step != chain.rend(); ++step) (*step)->CreateHandle();
    return FHandle;
}

void HWinControl::CreateParams(HCreateParams& params) {
    HWinControl* parent = ParentControl();
    params.ClassName = ClassName();
    params.Style = parent ? WS_CHILD : WS_POPUP;
    if (IsVisible() && parent) params.Style |= WS_VISIBLE;
    if (!IsEnabled()) params.Style |= WS_DISABLED;
    params.Parent = parent ? parent->FHandle : Kit().App().Handle();
    params.Rect = HControl::BoundsRect();
    params.Insets = Insets();
    params.Order = FOrder;
}

void HWinControl::CreateHandle() {
    HCreateParams params;
    CreateParams(params);
    params.Target = this;
    FHandle = Kit().Desktop().CreateWindowA(params);
    if (!FHandle) return;
    Kit().Desktop().SetPropA(FHandle, Kit().ObjectAtom(), static_cast<std::uintptr_t>(RefNumber()));
    HandleCreated();
}

void HWinControl::DestroyHandle() {
    if (FHandle) Kit().Desktop().DestroyWindow(FHandle);
    FHandle = 0;
}

void HWinControl::Realize() {
    std::vector<HWinControl*> pending{this};
    while (!pending.empty()) {
        HWinControl* control = pending.back();
        pending.pop_back();
        if (!control->FHandle) control->Handle();
        for (auto step = control->FWindowed.rbegin(); step != control->FWindowed.rend(); ++step)
            if ((*step)->IsVisible()) pending.push_back(*step);
    }
}

TRect HWinControl::ClientRect() {
    if (const HWindow* window = Kit().Desktop().Find(FHandle)) return window->ClientRect();
    const HInsets insets = Insets();
    return {0, 0, Width() - insets.Left - insets.Right, Height() - insets.Top - insets.Bottom};
}

TPoint HWinControl::ClientOrigin() {
    std::int64_t x = 0, y = 0;
    // Up to the first window that knows; the chain may be long.
    for (HWinControl* step = this; step; step = step->ParentControl()) {
        if (const HWindow* window = Kit().Desktop().Find(step->FHandle)) {
            x += window->ClientOrigin().X;
            y += window->ClientOrigin().Y;
            break;
        }
        const HInsets insets = step->Insets();
        x += step->Left() + insets.Left;
        y += step->Top() + insets.Top;
    }
    const auto bound = [](std::int64_t value) {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(value, -HScreenCoordLimit, HScreenCoordLimit));
    };
    return {bound(x), bound(y)};
}

TRect HWinControl::ScreenRect() {
    const HWindow* window = Kit().Desktop().Find(FHandle);
    return window ? window->Rect : HControl::ScreenRect();
}

void HWinControl::SetBounds(const TRect& bounds) {
    HControl::SetBounds(bounds);
    if (FHandle) Kit().Desktop().MoveWindow(FHandle, HControl::BoundsRect());
}

void HWinControl::SetVisible(bool value) {
    if (IsVisible() == value) return;
    HControl::SetVisible(value);
    if (!value) LeaveFocus(false);
    HWinControl* parent = ParentControl();
    if (value && parent && parent->FHandle) Realize();
    if (FHandle) Kit().Desktop().SetWindowVisible(FHandle, value);
}

void HWinControl::SetEnabled(bool value) {
    if (IsEnabled() == value) return;
    HControl::SetEnabled(value);
    if (!value) LeaveFocus(false);
    if (FHandle) Kit().Desktop().EnableWindow(FHandle, value);
}

void HWinControl::SetParent(HWinControl* parent) {
    if (ParentControl() == parent) return;
    const bool hasControls = !FWindowed.empty() || !FGraphic.empty();
    if (parent == this || (hasControls && parent && parent->IsWithin(this)))
        throw EInvalidOperation("A control cannot have itself as its parent");
    if (!Destroying()) LeaveFocus(true);
    DestroyHandle();
    HControl::SetParent(parent);
    if (parent && parent->FHandle && IsVisible()) Realize();
}

void HWinControl::BringToFront() {
    if (HWinControl* parent = ParentControl()) parent->SetControlIndex(*this, parent->ControlCount());
}

void HWinControl::AddParts(std::vector<HComponent*>& parts) const {
    HControl::AddParts(parts);
    parts.insert(parts.end(), FGraphic.begin(), FGraphic.end());
    parts.insert(parts.end(), FWindowed.begin(), FWindowed.end());
}

void HWinControl::BeforeDestruction() {
    // What goes with its parent has lost the focus with it, and its window too.
    if (!ParentControl() || !ParentControl()->Destroying()) LeaveFocus(true);
    DestroyHandle();
}

void HWinControl::Detach() {
    DestroyHandle();
    HControl::Detach();
}

// ------------------------------------------------------------------------------------------------ focus

bool HWinControl::CanFocus() {
    HCustomForm* form = ParentForm();
    if (!form) return false;
    for (HWinControl* step = this; step && step != form; step = step->ParentControl())
        if (!step->IsVisible() || !step->IsEnabled()) return false;
    return true;
}

bool HWinControl::Focused() {
    return FHandle && Kit().Desktop().GetFocus() == FHandle;
}

void HWinControl::SetFocus() {
    HCustomForm* form = ParentForm();
    if (!form) throw EInvalidOperation("Control '" + Name() + "' has no parent window");
    form->FocusControl(*this);
}

void HWinControl::LeaveFocus(bool removing) {
    HCustomForm* form = ParentForm();
    if (form && form != this) form->Defocus(*this, removing);
}

void HWinControl::DoEnter() {
    Fire(Kit().Names().OnEnter);
}

void HWinControl::DoExit() {
    Fire(Kit().Names().OnExit);
}

// ------------------------------------------------------------------------------------------------ messages

LResult HWinControl::WndProc(HWnd, unsigned number, WParam wParam, LParam lParam) {
    HMessage message{number, wParam, lParam};
    Kit().App().Guarded([&] { Receive(message); });
    return message.Result;
}

void HWinControl::Paint(HCanvas& canvas, const HWindow& window) {
    PaintControl(*this, canvas, window);
}

void HWinControl::WindowGone(HWnd window) {
    // The object may stay and make another one.
    if (FHandle == window) FHandle = 0;
}

void HWinControl::HandleMessage(HMessage& message) {
    switch (message.Number) {
        case WM_GETTEXT:
        case WM_GETTEXTLENGTH:
        case WM_SETTEXT:
            DefaultHandler(message);
            return;
        case WM_SETFOCUS:
            GotFocus(message);
            return;
        case WM_COMMAND:
            if (HWinControl* child = Kit().ControlOf(static_cast<HWnd>(message.L)))
                message.Result = child->Perform(CN_COMMAND, message.W, message.L);
            return;
        case CN_COMMAND:
            CNCommand(static_cast<unsigned>(message.W >> 16) & 0xFFFF);
            return;
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_SYSKEYDOWN:
        case WM_SYSKEYUP:
        case WM_CHAR:
            KeyMessage(message);
            return;
        case WM_CANCELMODE:
            if (HControl* graphic = Kit().CaptureControl();
                graphic && graphic->ParentControl() == this && !graphic->IsWindowed())
                graphic->Perform(WM_CANCELMODE, 0, 0);
            break;
        default:
            break;
    }
    const bool mouse = message.Number >= WM_MOUSEMOVE && message.Number <= WM_RBUTTONDBLCLK;
    if (mouse && PassToGraphic(message)) return;
    // The window class sees the message before the control's own events.
    DefaultHandler(message);
    if (!Dead()) HControl::HandleMessage(message);
}

bool HWinControl::PassToGraphic(HMessage& message) {
    const bool captured = Kit().Desktop().GetCapture() == FHandle;
    HControl* target = captured ? Kit().CaptureControl() : GraphicAt(message.Point());
    if (!target || target == this) return false;
    const TPoint p = message.Point();
    message.Result = target->Perform(message.Number, message.W,
                                     MakePointParam({p.X - target->Left(), p.Y - target->Top()}));
    return true;
}

void HWinControl::GotFocus(HMessage& message) {
    HCustomForm* form = ParentForm();
    if (form && !form->SetFocusedControl(*this)) return;
    DefaultHandler(message);
}

void HWinControl::KeyMessage(HMessage& message) {
    const HNames& names = Kit().Names();
    HEventArgs args{.Value = static_cast<int>(message.W), .Point = {}};
    HCustomForm* form = ParentForm();
    const bool down = message.Number == WM_KEYDOWN || message.Number == WM_SYSKEYDOWN;
    const TName event = message.Number == WM_CHAR ? names.OnKeyPress : down ? names.OnKeyDown : names.OnKeyUp;
    if (form && form != this && form->KeyPreview()) form->Fire(event, args);
    if (args.Value && !Dead()) Fire(event, args);
    if (args.Value == 0 || Dead()) return;
    message.W = static_cast<WParam>(args.Value);
    DefaultHandler(message);
}

void HWinControl::DefaultHandler(HMessage& message) {
    switch (message.Number) {
        case WM_GETTEXTLENGTH:
            message.Result = static_cast<LResult>(FText.size());
            return;
        case WM_GETTEXT: {
            if (message.W == 0) return;
            const std::size_t count = std::min<std::size_t>(FText.size(), message.W - 1);
            char* buffer = reinterpret_cast<char*>(message.L);
            std::copy_n(FText.begin(), count, buffer);
            buffer[count] = 0;
            message.Result = static_cast<LResult>(count);
            return;
        }
        case WM_SETTEXT:
            SetText(message.L ? reinterpret_cast<const char*>(message.L) : "");
            message.Result = 1;
            return;
        case WM_CANCELMODE:
            if (Kit().Desktop().GetCapture() == FHandle) Kit().Desktop().ReleaseCapture();
            return;
        default:
            return;
    }
}

void HWinControl::NotifyParent(unsigned code) {
    if (HWinControl* parent = ParentControl(); parent && parent->FHandle)
        Kit().Desktop().Notify(parent->FHandle, WM_COMMAND, static_cast<WParam>(code) << 16,
                               static_cast<LParam>(FHandle));
}

}  // namespace rux
