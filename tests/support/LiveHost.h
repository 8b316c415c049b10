// A whole host in the test's process: an application on a thread of its own, the agent inside, a clock that
// the test moves. The test speaks to it over HTTP and looks into it from the side.
#pragma once

#include <pthread.h>

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "Engine/Start/RUXApplication.h"
#include "host/call/HttpClient.h"
#include "platform/headless/HeadlessPlatform.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/posix/ManualClock.h"
#include "platform/posix/PosixPlatform.h"
#include "support/GatedKernel.h"

namespace rux::test {

/// What a host stands on, and what its process keeps.
struct TLivePlatform {
    explicit TLivePlatform(TKernelFacts facts)
        : Kernel(Clock, std::move(facts)), Sockets(Clock, {"127.0.0.1"}) {}
    TManualClock Clock;
    TGatedKernel Kernel;
    TPosixSockets Sockets;
    TPosixFiles Files;
};

class TLiveHost {
 public:
    /// Forms in UTF-8; the first is the main form and is shown. `stack` is the user-interface thread's.
    explicit TLiveHost(std::vector<std::string_view> forms, std::size_t stack = 2u << 20);
    TLiveHost(const TLiveHost&) = delete;
    TLiveHost& operator=(const TLiveHost&) = delete;
    /// Ends the application and waits for it.
    ~TLiveHost();

    std::uint16_t Port() const { return FPort; }
    TManualClock& Clock() { return FPosix->Clock; }
    TGatedKernel& Kernel() { return FPosix->Kernel; }
    /// One request over a connection of its own: "212 成功", and the text behind a line feed if there is one.
    std::string Ask(std::string_view request);
    static std::string Show(const THttpReply& reply);

    /// Runs `code` on the user-interface thread, inside whatever loop is running there, and waits for it.
    void Run(const std::function<void()>& code);
    /// Code for a method that the forms name. Call it by Run or before anything fires.
    void Define(std::string_view form, std::string_view method, std::function<void(HComponent& root)> code);
    HComponent& Form(std::string_view name);
    HToolkit& Kit() { return FDesktop->Toolkit(); }
    HDesktop& Desktop() { return FDesktop->Desktop(); }
    TEngineState& Engine() { return FAgent->State(); }
    TRUXApplication& Agent() { return *FAgent; }

    /// Waits until the user-interface thread has nothing left to do: all that was posted is handled, and all
    /// that this posted.
    void Settle();
    /// Waits until a line of the journal begins with `text` (UTF-8), and forgets everything up to it.
    void WaitFor(std::string_view text);
    /// All windows of the class #32770: their text children joined.
    std::string Boxes();
    /// Sends every one of them a close.
    void CloseBoxes();
    /// The log without its time stamps, in UTF-8.
    std::string Log();
    std::filesystem::path Folder() const { return FFolder; }

 private:
    static void* Enter(void* self);
    void Live();
    void Load();
    LResult WindowProc(HWnd window, unsigned message, WParam wParam, LParam lParam);

    const std::vector<std::string_view> FForms;
    const std::filesystem::path FFolder;
    std::unique_ptr<TLivePlatform> FPosix;
    std::unique_ptr<THeadlessPlatform> FDesktop;
    std::unique_ptr<TRUXApplication> FAgent;
    TWndProc FPreviousProc = 0;
    HWnd FWindow = 0;
    std::uint16_t FPort = 0;

    std::mutex FLock;
    std::condition_variable FChanged;
    bool FReady = false;
    int FSettled = 0;
    int FWaitsBefore = 0;
    std::string FFailure;
    std::vector<std::string> FJournal;
    pthread_t FThread{};
};

/// A request that runs on a thread of its own, for calls that do not come back yet.
class TPendingCall {
 public:
    TPendingCall(TLiveHost& host, std::string request)
        : FAnswer(std::async(std::launch::async, [&host, request = std::move(request)] {
              try {
                  return host.Ask(request);
              } catch (const std::exception& error) {
                  return std::string(error.what());
              }
          })) {}
    /// Waits for the answer.
    std::string Answer() { return FAnswer.get(); }

 private:
    std::future<std::string> FAnswer;
};

}  // namespace rux::test
