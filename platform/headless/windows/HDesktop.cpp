#include "platform/headless/windows/HDesktop.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "rtl/Text.h"

namespace rux {

HDesktop::HDesktop(TKernelService& kernel, TClockService& clock)
    : FKernel(kernel), FClock(clock), FThread(kernel.GetCurrentThreadId()), FQueue(kernel) {}

HDesktop::~HDesktop() {
    FQuit = true;
    FQueue.Close();
    RunSentMessages();
    while (!FTopLevel.empty()) DestroyWindow(FTopLevel.back()->Handle);
    FGraveyard.clear();
}

// ---------------------------------------------------------------------------------------------- windows

std::vector<HWindow*>& HDesktop::Siblings(const HWindow& window) {
    return window.Parent ? window.Parent->Children : FTopLevel;
}

HWnd HDesktop::CreateWindowA(const HCreateParams& params) {
    HWindow* above = FTable.Find(params.Parent);
    if ((params.Style & WS_CHILD) && !above) return 0;
    HWindow* window = FTable.Add();
    if (!window) return 0;
    window->ClassName = params.ClassName;
    window->Text = params.Text;
    window->Style = params.Style;
    window->ExStyle = params.ExStyle;
    window->Insets = params.Insets;
    window->OwnedTarget = params.OwnedTarget;
    window->Target = params.OwnedTarget ? params.OwnedTarget.get() : params.Target;
    window->Rect = params.Rect;
    if (window->IsChild()) {
        window->Parent = above;
        window->Rect = params.Rect.MovedBy(above->ClientOrigin());
    } else {
        window->Owner = above;
    }
    Siblings(*window).push_back(window);
    if (!window->IsChild()) Raise(*window);
    return window->Handle;
}

void HDesktop::DestroyWindow(HWnd handle) {
    HWindow* root = FTable.Find(handle);
    if (!root) return;
    // What it owns goes first, as with the window system.
    std::vector<HWnd> owned;
    for (HWindow* top : FTopLevel)
        if (top->Owner == root) owned.push_back(top->Handle);
    for (const HWnd other : owned) DestroyWindow(other);
    if (root->Visible()) ShowWindow(handle, false);

    std::vector<HWnd> doomed{handle};
    EnumChildWindows(handle, [&](HWnd child) {
        doomed.push_back(child);
        return true;
    });
    for (const HWnd window : doomed) {
        DropInput(window);
        Notify(window, WM_DESTROY, 0, 0);
    }
    root = FTable.Find(handle);
    if (!root) return;
    std::erase(Siblings(*root), root);
    for (const HWnd window : doomed) {
        FQueue.Forget(window);
        if (HWindow* dead = FTable.Find(window); dead && dead->OwnedTarget) Bury(dead->OwnedTarget);
        FTable.Remove(window);
    }
}

bool HDesktop::ShowWindow(HWnd handle, bool visible) {
    HWindow* window = FTable.Find(handle);
    if (!window || window->Visible() == visible) return window && visible;
    window->Style ^= WS_VISIBLE;
    if (FJournal.Wants(HEntry::Window) && !window->IsChild()) {
        const std::string text = GetWindowTextA(handle);
        FJournal.Add(HEntry::Window, (visible ? "show " : "close ") + window->ClassName + " " + text);
    }
    Notify(handle, WM_SHOWWINDOW, visible ? 1 : 0, 0);
    if (visible) return true;
    DropInput(handle);
    if (FActive == handle) ActivateNext(handle);
    return false;
}

bool HDesktop::EnableWindow(HWnd handle, bool enabled) {
    HWindow* window = FTable.Find(handle);
    if (!window) return false;
    const bool wasDisabled = !window->Enabled();
    if (enabled == !wasDisabled) return wasDisabled;
    window->Style ^= WS_DISABLED;
    if (!enabled) DropInput(handle);
    Notify(handle, WM_ENABLE, enabled ? 1 : 0, 0);
    return wasDisabled;
}

void HDesktop::MoveWindow(HWnd handle, const TRect& rect) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    const TRect screen = window->Parent ? rect.MovedBy(window->Parent->ClientOrigin()) : rect;
    const TPoint by{screen.Left - window->Rect.Left, screen.Top - window->Rect.Top};
    const bool resized = screen.Width() != window->Rect.Width() || screen.Height() != window->Rect.Height();
    if (by != TPoint{}) {
        EnumChildWindows(handle, [&](HWnd child) {
            HWindow* below = FTable.Find(child);
            below->Rect = below->Rect.MovedBy(by);
            return true;
        });
    }
    window->Rect = screen;
    if (by != TPoint{}) Notify(handle, WM_MOVE, 0, 0);
    if (resized) Notify(handle, WM_SIZE, 0, 0);
}

void HDesktop::SetInsets(HWnd handle, const HInsets& insets) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    const TPoint by{insets.Left - window->Insets.Left, insets.Top - window->Insets.Top};
    window->Insets = insets;
    EnumChildWindows(handle, [&](HWnd child) {
        HWindow* below = FTable.Find(child);
        below->Rect = below->Rect.MovedBy(by);
        return true;
    });
}

void HDesktop::Raise(HWindow& window) {
    std::vector<HWindow*>& row = Siblings(window);
    std::erase(row, &window);
    auto place = row.end();
    // Nothing but another top-most window may stand above a top-most one.
    if (!(window.ExStyle & WS_EX_TOPMOST))
        while (place != row.begin() && ((*(place - 1))->ExStyle & WS_EX_TOPMOST)) --place;
    row.insert(place, &window);
}

void HDesktop::BringWindowToTop(HWnd handle) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    Raise(*window);
    if (window->IsChild()) return;
    // Owned windows stay above their owner, in the order that they had.
    std::vector<HWindow*> owned;
    for (HWindow* top : FTopLevel)
        if (top->Owner == window) owned.push_back(top);
    for (HWindow* top : owned) BringWindowToTop(top->Handle);
}

bool HDesktop::IsWindowVisible(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return false;
    for (; window; window = window->Parent)
        if (!window->Visible()) return false;
    return true;
}

bool HDesktop::IsWindowEnabled(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    return window && window->Enabled();
}

bool HDesktop::GetWindowRect(HWnd handle, TRect& rect) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return false;
    rect = window->Rect;
    return true;
}

std::string HDesktop::GetWindowTextA(HWnd window) {
    char buffer[HWindowTextLimit + 1] = {};
    Notify(window, WM_GETTEXT, sizeof buffer, reinterpret_cast<LParam>(buffer));
    buffer[HWindowTextLimit] = 0;
    return buffer;
}

std::string HDesktop::GetClassNameA(HWnd handle) {
    const HWindow* window = FTable.Find(handle);
    return window ? window->ClassName : std::string();
}

std::uint32_t HDesktop::GetWindowProcessId(HWnd window) {
    return FTable.Exists(window) ? FKernel.GetCurrentProcessId() : 0;
}

void HDesktop::EnumWindows(const TEnumWindowsProc& proc) {
    const std::vector<HWindow*> order(FTopLevel.rbegin(), FTopLevel.rend());
    std::vector<HWnd> handles;
    handles.reserve(order.size());
    for (const HWindow* window : order) handles.push_back(window->Handle);
    for (const HWnd handle : handles)
        if (FTable.Find(handle) && !proc(handle)) return;
}

void HDesktop::EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) {
    const HWindow* root = FTable.Find(parent);
    if (!root) return;
    // An explicit stack: windows may be nested deeper than the thread's stack.
    std::vector<HWnd> pending;
    const auto push = [&](const HWindow& window) {
        for (const HWindow* child : window.Children) pending.push_back(child->Handle);
    };
    push(*root);
    while (!pending.empty()) {
        const HWnd handle = pending.back();
        pending.pop_back();
        const HWindow* window = FTable.Find(handle);
        if (!window) continue;
        push(*window);
        if (!proc(handle)) return;
    }
}

TPoint HDesktop::ClientToScreen(HWnd handle, TPoint point) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return point;
    const TPoint origin = window->ClientOrigin();
    return {origin.X + point.X, origin.Y + point.Y};
}

TPoint HDesktop::ScreenToClient(HWnd handle, TPoint point) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return point;
    const TPoint origin = window->ClientOrigin();
    return {point.X - origin.X, point.Y - origin.Y};
}

TAtom HDesktop::GlobalAddAtomA(const std::string& name) {
    const std::lock_guard lock(FSharedLock);
    const auto next = static_cast<TAtom>(0xC000 + FAtoms.size());
    return FAtoms.emplace(UpperCase(name), next).first->second;
}

TAtom HDesktop::GlobalFindAtomA(const std::string& name) {
    const std::lock_guard lock(FSharedLock);
    const auto found = FAtoms.find(UpperCase(name));
    return found == FAtoms.end() ? TAtom{0} : found->second;
}

void HDesktop::SetPropA(HWnd handle, TAtom atom, std::uintptr_t value) {
    if (HWindow* window = FTable.Find(handle)) window->Props.emplace_back(atom, value);
}

std::uintptr_t HDesktop::GetPropA(HWnd handle, TAtom atom) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return 0;
    for (const auto& [key, value] : window->Props)
        if (key == atom) return value;
    return 0;
}

void HDesktop::Bury(std::shared_ptr<void> dead) {
    FGraveyard.push_back(std::move(dead));
}

void HDesktop::EmptyGraveyard() {
    if (FDepth > 0 || FGraveyard.empty()) return;
    // A destructor may bury more.
    const std::vector<std::shared_ptr<void>> dead = std::move(FGraveyard);
    FGraveyard.clear();
}

}  // namespace rux
