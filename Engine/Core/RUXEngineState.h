// The state of one engine: what the system calls its globals. Made and freed with the engine.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <shared_mutex>

#include "Engine/Core/RUXLog.h"
#include "Engine/Core/RUXRequestStack.h"
#include "Engine/Core/RUXThreads.h"
#include "platform/Platform.h"
#include "rtl/Names.h"

namespace rux {

class TCheckEnabledMethodGroup;
class TIniClassGroup;
class TRUXIntfDefineList;
class TShowWindowHook;
class TTypeRegistry;
class TVirtualClassList;

/// The way to the user-interface thread, as the lower units see the task centre.
class ITaskCenter {
 public:
    /// Posts a message of the task centre; answers whether that succeeded. Any thread.
    virtual bool PostTask(unsigned message, WParam wParam, LParam lParam) = 0;
    /// The same with a reference to a request in wParam.
    virtual bool PostRequest(unsigned message, const TIntf<ITestRequest>& request, LParam lParam) = 0;
    /// The request whose Execute is running innermost; nil for none. User-interface thread.
    virtual ITestRequest* Running() const = 0;
    /// Takes over what a request leaves behind that dies on another thread; freed on the user-interface
    /// thread.
    virtual void Bury(TObjectPool pool) = 0;

 protected:
    ~ITaskCenter() = default;
};

/// The task centre while there is one. Workers may use it while it is being freed.
class TTaskCenterHolder {
 public:
    void Set(ITaskCenter* center);
    /// nil when there is none. User-interface thread, which makes and frees it.
    ITaskCenter* Get() const { return FCenter; }
    /// False also without a task centre. Any thread.
    bool PostTask(unsigned message, WParam wParam, LParam lParam);
    bool PostRequest(unsigned message, const TIntf<ITestRequest>& request, LParam lParam);
    /// Without a task centre the pool is freed at once. Any thread.
    void Bury(TObjectPool pool);

 private:
    /// Shared by those who post: whom a post wakes posts itself, and must not wait for the first one to go
    /// on.
    std::shared_mutex FLock;
    ITaskCenter* FCenter = nullptr;
};

/// Names of properties that finders ask for again and again.
struct TPropertyNames {
    TName Caption = InternName("Caption"), Text = InternName("Text"), Hint = InternName("Hint"),
          Name = InternName("Name"), ReadOnly = InternName("ReadOnly");
};

struct TEngineState {
    explicit TEngineState(TPlatform& platform);
    ~TEngineState();

    TPlatform& Platform;
    const TPropertyNames PropertyNames;
    /// 0 until the port is taken.
    std::uint16_t ServerPort = 0;
    TLogger Logger;

    TRequestStack RequestStack;
    TSeenWindows SeenWindows;
    /// Set by an adapter that left its last step to a posted click.
    std::atomic<bool> DeferredFinish{false};
    TPendingNodeError PendingNodeError;
    TTaskCenterHolder TaskCenter;
    TEngineThreads Threads;

    /// The tool bar pop-up that is open, and the outermost one; nil for none. Set on the user-interface
    /// thread, and cleared by whoever shows a window of another make.
    std::atomic<TObject*> CurrentPopup{nullptr};
    std::atomic<TObject*> RootPopup{nullptr};
    std::shared_ptr<TShowWindowHook> ShowWindowHook;

    std::unique_ptr<TTypeRegistry> Registry;
    /// Held while the groups are made, on first use.
    std::mutex MakingGroups;
    std::unique_ptr<TIniClassGroup> ClassGroup;
    std::unique_ptr<TCheckEnabledMethodGroup> MethodGroup;
    std::unique_ptr<TRUXIntfDefineList> IntfDefines;
    std::unique_ptr<TVirtualClassList> VirtualClasses;
};

/// The engine that stands. Asserts that there is one.
TEngineState& Engine();
bool EngineStands();
inline TPlatform& Platform() {
    return Engine().Platform;
}

}  // namespace rux
