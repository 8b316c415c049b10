#include "platform/headless/windows/HDesktop.h"

#include <algorithm>

#include "platform/headless/HLimits.h"
#include "rtl/Text.h"

namespace rux {

namespace {

std::int32_t OnScreen(std::int64_t coordinate) {
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(coordinate, -HScreenCoordLimit, HScreenCoordLimit));
}

/// Sums along a deep chain of parents stay within bounds.
TRect Moved(const TRect& r, TPoint by) {
    return {OnScreen(std::int64_t{r.Left} + by.X), OnScreen(std::int64_t{r.Top} + by.Y),
            OnScreen(std::int64_t{r.Right} + by.X), OnScreen(std::int64_t{r.Bottom} + by.Y)};
}

/// Those that a window comes to the top by, and becomes the active one.
bool Activates(int command) {
    switch (command) {
        case SW_SHOWNORMAL:
        case SW_SHOWMINIMIZED:
        case SW_SHOWMAXIMIZED:
        case SW_SHOW:
        case SW_RESTORE:
        case SW_SHOWDEFAULT:
            return true;
        default:
            return false;
    }
}

}  // namespace

HDesktop::HDesktop(TKernelService& kernel, TClockService& clock, HCodeSpace& code)
    : FKernel(kernel), FClock(clock), FCode(code), FThread(kernel.GetCurrentThreadId()), FQueue(kernel) {
    ExportFunctions();
    // Made functions run on any thread, the report on its own.
    FCode.SetReport([this](const std::exception& error) {
        RunOnOwner([&] {
            if (FReport) FReport(error);
        });
    });
}

void HDesktop::ExportFunctions() {
    const auto show = [this](std::span<const std::uintptr_t> arguments) -> std::uintptr_t {
        bool before = false;
        const bool own = OnOwnerThread();
        RunOnOwner([&] { before = ShowNow(arguments[0], static_cast<int>(arguments[1]), own); });
        return before;
    };
    FCode.Export("user32.dll", "ShowWindow", TCallKind::StdCall, 2, show);
    FShowWindow = FCode.GetProcAddress("user32.dll", "ShowWindow");
    // Looked for by name only; pictures come through the service.
    FCode.Export("user32.dll", "PrintWindow", TCallKind::StdCall, 3,
                 [](std::span<const std::uintptr_t>) -> std::uintptr_t { return 0; });
}

HDesktop::~HDesktop() {
    FCode.SetReport(nullptr);
    Quit();
    FQueue.Close();
    while (!FTopLevel.empty()) DestroyWindow(FTopLevel.back()->Handle);
    FGraveyard.clear();
}

// ---------------------------------------------------------------------------------------------- windows

std::vector<HWindow*>& HDesktop::Siblings(const HWindow& window) {
    return window.Parent ? window.Parent->Children : FTopLevel;
}

HWnd HDesktop::CreateWindowA(const HCreateParams& params) {
    HWindow* above = FTable.Find(params.Parent);
    if (above && above->Dying) return 0;
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
    if (window->IsChild()) {
        window->Parent = above;
        window->Rect = Moved(params.Rect, above->ClientOrigin());
        window->Order = params.Order;
        Place(*window);
    } else {
        window->Rect = Moved(params.Rect, {});
        if (above) window->Owner = above->Top().Handle;
        FTopLevel.push_back(window);
        Raise(*window);
    }
    return window->Handle;
}

void HDesktop::Place(HWindow& window) {
    std::vector<HWindow*>& row = window.Parent->Children;
    // One without a place of its own comes below all others, as the system puts it.
    if (window.Order == 0 && !row.empty()) window.Order = row.front()->Order - 1;
    if (window.Order == 0) window.Order = -1;
    const auto below = [](std::int64_t order, const HWindow* other) { return order < other->Order; };
    row.insert(std::upper_bound(row.begin(), row.end(), window.Order, below), &window);
}

void HDesktop::SetWindowOrder(HWnd handle, std::int64_t order) {
    HWindow* window = FTable.Find(handle);
    if (!window || !window->Parent) return;
    std::erase(window->Parent->Children, window);
    window->Order = order;
    Place(*window);
}

std::vector<HWnd> HDesktop::Subtree(HWnd handle) const {
    std::vector<HWnd> all;
    // An explicit stack: windows may be nested deeper than the thread's stack.
    std::vector<const HWindow*> pending;
    if (const HWindow* root = FTable.Find(handle)) pending.push_back(root);
    while (!pending.empty()) {
        const HWindow* window = pending.back();
        pending.pop_back();
        all.push_back(window->Handle);
        pending.insert(pending.end(), window->Children.begin(), window->Children.end());
    }
    return all;
}

void HDesktop::DestroyOwned(HWnd owner) {
    std::vector<HWnd> owned;
    for (const HWindow* top : FTopLevel)
        if (top->Owner == owner) owned.push_back(top->Handle);
    for (const HWnd window : owned) DestroyWindow(window);
}

void HDesktop::DestroyWindow(HWnd handle) {
    HWindow* root = FTable.Find(handle);
    if (!root || root->Dying) return;
    const THandling handling(*this);
    // Nothing new may come to stand on what is going.
    const std::vector<HWnd> doomed = Subtree(handle);
    for (const HWnd window : doomed) FTable.Find(window)->Dying = true;
    if (!root->IsChild()) DestroyOwned(handle);
    SetWindowVisible(handle, false);
    DropInput(handle);
    for (const HWnd window : doomed) Notify(window, WM_DESTROY, 0, 0);
    Remove(handle);
}

void HDesktop::Remove(HWnd handle) {
    HWindow* root = FTable.Find(handle);
    if (!root) return;
    const std::vector<HWnd> doomed = Subtree(handle);
    std::erase(Siblings(*root), root);
    for (const HWnd window : doomed) {
        HWindow* dead = FTable.Find(window);
        HWindowTarget* target = dead->Target;
        if (dead->OwnedTarget) Bury(std::move(dead->OwnedTarget));
        FTable.Remove(window);
        if (target) target->WindowGone(window);
    }
    FQueue.Forget([this](const TMessage& m) { return !FTable.Find(m.Window); });
    // Handlers on the way may have given them back to it.
    for (HWnd* held : {&FFocus, &FActive, &FCapture})
        if (!FTable.Find(*held)) *held = 0;
}

bool HDesktop::ShowWindow(HWnd handle, TShowCommand command) {
    const std::uintptr_t arguments[] = {handle, static_cast<std::uintptr_t>(command)};
    return FCode.Call(TCallKind::StdCall, FShowWindow, arguments) != 0;
}

bool HDesktop::ShowNow(HWnd handle, int command, bool onOwnThread) {
    const HWindow* window = FTable.Find(handle);
    if (!window) return false;
    const bool before = window->Visible(), child = window->IsChild();
    SetWindowVisible(handle, command != SW_HIDE);
    if (before || child || !Activates(command)) return before;
    BringWindowToTop(handle);
    // Only a thread's own windows are activated by it.
    if (onOwnThread) SetActiveWindow(handle);
    return before;
}

void HDesktop::SetWindowVisible(HWnd handle, bool visible) {
    HWindow* window = FTable.Find(handle);
    if (!window || window->Visible() == visible) return;
    window->Style ^= WS_VISIBLE;
    if (FJournal.Wants(HEntry::Window) && !window->IsChild()) {
        const std::string text = GetWindowTextA(handle);
        FJournal.Add(HEntry::Window, (visible ? "show " : "close ") + window->ClassName + " " + text);
    }
    Notify(handle, WM_SHOWWINDOW, visible ? 1 : 0, 0);
    if (visible) return;
    DropInput(handle);
    if (FActive == handle) ActivateNext(handle);
}

bool HDesktop::EnableWindow(HWnd handle, bool enabled) {
    HWindow* window = FTable.Find(handle);
    if (!window) return false;
    const bool wasDisabled = !window->Enabled();
    if (enabled == !wasDisabled) return wasDisabled;
    if (!enabled) {
        Notify(handle, WM_CANCELMODE, 0, 0);
        window = FTable.Find(handle);
        if (!window || !window->Enabled()) return wasDisabled;
    }
    window->Style ^= WS_DISABLED;
    if (!enabled) DropInput(handle);
    Notify(handle, WM_ENABLE, enabled ? 1 : 0, 0);
    return wasDisabled;
}

void HDesktop::MoveWindow(HWnd handle, const TRect& rect) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    const TRect screen = Moved(rect, window->Parent ? window->Parent->ClientOrigin() : TPoint{});
    const TPoint by{screen.Left - window->Rect.Left, screen.Top - window->Rect.Top};
    const bool resized = screen.Width() != window->Rect.Width() || screen.Height() != window->Rect.Height();
    if (by != TPoint{}) MoveBelow(handle, by);
    window->Rect = screen;
    if (by != TPoint{}) Notify(handle, WM_MOVE, 0, 0);
    if (resized) Notify(handle, WM_SIZE, 0, 0);
}

void HDesktop::MoveBelow(HWnd handle, TPoint by) {
    for (const HWnd window : Subtree(handle)) {
        if (window == handle) continue;
        HWindow* below = FTable.Find(window);
        below->Rect = Moved(below->Rect, by);
    }
}

void HDesktop::SetInsets(HWnd handle, const HInsets& insets) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    MoveBelow(handle, {insets.Left - window->Insets.Left, insets.Top - window->Insets.Top});
    window->Insets = insets;
}

void HDesktop::Raise(HWindow& window) {
    std::vector<HWindow*>& row = Siblings(window);
    if (window.IsChild()) {
        SetWindowOrder(window.Handle, row.back()->Order + 1);
        return;
    }
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
    std::vector<HWnd> owned;
    for (const HWindow* top : FTopLevel)
        if (top->Owner == handle) owned.push_back(top->Handle);
    for (const HWnd top : owned) BringWindowToTop(top);
}

bool HDesktop::GetWindowInfo(HWnd handle, TWindowInfo& info) {
    bool found = false;
    RunOnOwner([&] {
        const HWindow* window = FTable.Find(handle);
        if (!window) return;
        info = {window->Style, window->ExStyle};
        found = true;
    });
    return found;
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
    std::vector<HWnd> handles;
    for (auto step = FTopLevel.rbegin(); step != FTopLevel.rend(); ++step) handles.push_back((*step)->Handle);
    for (const HWnd handle : handles)
        if (FTable.Find(handle) && !proc(handle)) return;
}

void HDesktop::EnumChildWindows(HWnd parent, const TEnumWindowsProc& proc) {
    for (const HWnd handle : Subtree(parent))
        if (handle != parent && FTable.Find(handle) && !proc(handle)) return;
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
    const std::string key = UpperCase(name);
    if (const auto found = FAtoms.find(key); found != FAtoms.end()) return found->second;
    if (FAtoms.size() >= HAtomLimit) return 0;
    return FAtoms[key] = static_cast<TAtom>(0xC000 + FAtoms.size());
}

TAtom HDesktop::GlobalFindAtomA(const std::string& name) {
    const std::lock_guard lock(FSharedLock);
    const auto found = FAtoms.find(UpperCase(name));
    return found == FAtoms.end() ? TAtom{0} : found->second;
}

void HDesktop::SetPropA(HWnd handle, TAtom atom, std::uintptr_t value) {
    HWindow* window = FTable.Find(handle);
    if (!window) return;
    for (auto& [key, kept] : window->Props) {
        if (key != atom) continue;
        kept = value;
        return;
    }
    window->Props.emplace_back(atom, value);
}

std::uintptr_t HDesktop::GetPropA(HWnd handle, TAtom atom) {
    std::uintptr_t found = 0;
    RunOnOwner([&] {
        const HWindow* window = FTable.Find(handle);
        if (!window) return;
        for (const auto& [key, value] : window->Props)
            if (key == atom) found = value;
    });
    return found;
}

void HDesktop::Bury(std::shared_ptr<void> dead) {
    FGraveyard.push_back(std::move(dead));
}

void HDesktop::EmptyGraveyard() {
    if (FDepth > 0 || FGraveyard.empty()) return;
    // A destructor may bury more.
    const std::vector<std::shared_ptr<void>> dead = std::exchange(FGraveyard, {});
}

}  // namespace rux
