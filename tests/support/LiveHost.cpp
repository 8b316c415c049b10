#include "LiveHost.h"

#include <algorithm>

#include "platform/headless/forms/FormParser.h"
#include "platform/headless/loader/HFormLoader.h"
#include "platform/posix/CodePages.h"
#include "platform/posix/SystemNames.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux::test {

namespace {

/// Posted to the application's window: lParam points to a function to run.
constexpr unsigned RunCode = 0x8001;
/// Posted to the same window: tells whoever waits in Settle.
constexpr unsigned Settled = 0x8002;
std::filesystem::path NewFolder() {
    return mkdtemp((std::filesystem::temp_directory_path() / "rux-live-XXXXXX").string().data());
}

}  // namespace

TLiveHost::TLiveHost(std::vector<std::string_view> forms, std::size_t stack)
    : FForms(std::move(forms)), FFolder(NewFolder()) {
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, stack);
    pthread_create(&FThread, &attributes, &TLiveHost::Enter, this);
    pthread_attr_destroy(&attributes);
    std::unique_lock lock(FLock);
    FChanged.wait(lock, [&] { return FReady; });
    if (!FFailure.empty()) throw std::runtime_error(FFailure);
}

TLiveHost::~TLiveHost() {
    if (FFailure.empty()) Kit().App().Terminate();
    pthread_join(FThread, nullptr);
    std::filesystem::remove_all(FFolder);
    // The process keeps its port for good, so it must keep what tells others of that.
    static std::vector<std::unique_ptr<TLivePlatform>> holdMutexes;
    holdMutexes.push_back(std::move(FPosix));
}

void* TLiveHost::Enter(void* self) {
    auto& host = *static_cast<TLiveHost*>(self);
    try {
        host.Live();
    } catch (const std::exception& error) {
        const std::lock_guard lock(host.FLock);
        host.FFailure = error.what();
        host.FReady = true;
    }
    host.FChanged.notify_all();
    return nullptr;
}

void TLiveHost::Live() {
    TellStackLimit();
    SetAnsiCodePage(LoadCodePage(936));
    TKernelFacts facts;
    facts.ModuleName = NameFromSystem((FFolder / "app.exe").string());
    facts.LibraryName = NameFromSystem((FFolder / "rux.dll").string());
    FPosix = std::make_unique<TLivePlatform>(facts);
    Kernel().WatchThisThread();
    FDesktop =
        std::make_unique<THeadlessPlatform>(FPosix->Kernel, FPosix->Clock, FPosix->Sockets, FPosix->Files);
    Load();
    FAgent = std::make_unique<TRUXApplication>(FDesktop->Platform());
    FAgent->Start();
    if (!FAgent->Daemon()->WaitUntilListening()) throw std::runtime_error("the daemon does not listen");
    FPort = FAgent->ServerPort();
    {
        const std::lock_guard lock(FLock);
        FReady = true;
    }
    FChanged.notify_all();
    Kit().App().Run();
    FAgent.reset();
    FPosix->Kernel.WaitForAllThreads();
    Desktop().SetWindowProc(FWindow, FPreviousProc);
    FDesktop.reset();
}

void TLiveHost::Load() {
    Kit().App().SetTitle("App");
    Desktop().Journal().SetSink(HAllEntries, [this](HEntry, std::string_view line) {
        const std::lock_guard lock(FLock);
        FJournal.emplace_back(AnsiToUtf8(line));
        FChanged.notify_all();
    });
    FWindow = Kit().App().Handle();
    const TWndProc instance = Desktop().MakeObjectInstance(
        [this](HWnd window, unsigned m, WParam w, LParam l) { return WindowProc(window, m, w, l); });
    FPreviousProc = Desktop().SetWindowProc(FWindow, instance);
    std::vector<TFormFile> files;
    for (const std::string_view form : FForms)
        files.push_back(ParseFormFile("form", "\xEF\xBB\xBF" + std::string(form)));
    HClassParents parents;
    HFormLoader loader(Kit(), parents);
    const std::vector<HComponent*> roots = loader.Load(files);
    Kit().App().SetMainForm(dynamic_cast<HCustomForm*>(roots.at(0)));
}

LResult TLiveHost::WindowProc(HWnd window, unsigned message, WParam wParam, LParam lParam) {
    if (message == Settled) {
        const std::lock_guard lock(FLock);
        FWaitsBefore = Kernel().CountOfWaits();
        ++FSettled;
        FChanged.notify_all();
        return 0;
    }
    if (message != RunCode) return Desktop().CallWindowProcA(FPreviousProc, window, message, wParam, lParam);
    (*reinterpret_cast<const std::function<void()>*>(lParam))();
    return 1;
}

void TLiveHost::Run(const std::function<void()>& code) {
    std::exception_ptr failure;
    const std::function<void()> guarded = [&] {
        try {
            code();
        } catch (...) {
            failure = std::current_exception();
        }
    };
    Desktop().SendMessageA(FWindow, RunCode, 0, reinterpret_cast<LParam>(&guarded));
    if (failure) std::rethrow_exception(failure);
}

void TLiveHost::Settle() {
    std::unique_lock lock(FLock);
    const int before = FSettled;
    lock.unlock();
    Desktop().PostMessageA(FWindow, Settled, 0, 0);
    lock.lock();
    FChanged.wait(lock, [&] { return FSettled > before; });
    const int waits = FWaitsBefore;
    lock.unlock();
    // Handled it is; whoever pumped it, the thread waits only when all that followed is handled too.
    Kernel().WaitForWaitBeyond(waits);
}

HComponent& TLiveHost::Form(std::string_view name) {
    return *Kit().App().FindComponent(name);
}

void TLiveHost::Define(std::string_view form, std::string_view method,
                       std::function<void(HComponent& root)> code) {
    Run([&] {
        HComponent& root = Form(form);
        root.DefineMethod(method, [code, &root](HObject&, HEventArgs&) { code(root); });
    });
}

std::string TLiveHost::Show(const THttpReply& reply) {
    return std::to_string(reply.Status) + " " + reply.Comment + (reply.Body.empty() ? "" : "\n" + reply.Body);
}

std::string TLiveHost::Ask(std::string_view request) {
    THttpClient client("127.0.0.1", FPort);
    return Show(client.Get(request));
}

void TLiveHost::WaitFor(std::string_view text) {
    std::unique_lock lock(FLock);
    std::size_t at = 0;
    FChanged.wait(lock, [&] {
        while (at < FJournal.size() && !FJournal[at].starts_with(text)) ++at;
        return at < FJournal.size();
    });
    FJournal.erase(FJournal.begin(), FJournal.begin() + static_cast<long>(at) + 1);
}

std::string TLiveHost::Boxes() {
    std::string all;
    Run([&] {
        Desktop().EnumWindows([&](HWnd window) {
            if (Desktop().GetClassNameA(window) != "#32770") return true;
            all += "[" + Desktop().GetWindowTextA(window);
            Desktop().EnumChildWindows(window, [&](HWnd child) {
                const std::string text = Desktop().GetWindowTextA(child);
                if (!text.empty()) all += "|" + text;
                return true;
            });
            all += "]";
            return true;
        });
    });
    return AnsiToUtf8(all);
}

void TLiveHost::CloseBoxes() {
    Run([&] {
        Desktop().EnumWindows([&](HWnd window) {
            if (Desktop().GetClassNameA(window) == "#32770") Desktop().PostMessageA(window, WM_CLOSE, 0, 0);
            return true;
        });
    });
}

std::string TLiveHost::Log() {
    const std::string name = (FFolder / ("RUX_" + std::to_string(FPort)) / "RUX.log").string();
    std::string text = AnsiToUtf8(FPosix->Files.ReadFile(NameFromSystem(name)).value_or("no log"));
    const std::string stamp = AnsiToUtf8(DateTimeToStr(ManualClockStart) + ": ");
    for (std::size_t at = text.find(stamp); at != text.npos; at = text.find(stamp, at))
        text.erase(at, stamp.size());
    return text;
}

}  // namespace rux::test
