// What other units know of a request: failures of its path, and the request itself.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "Engine/Core/RUXConsts.h"
#include "platform/toolkit/Classes.h"
#include "rtl/Exceptions.h"
#include "rtl/Intf.h"

namespace rux {

/// Any failure that the engine itself reports.
using ERUXException = TNamedException<Exception, "ERUXException">;
/// The request text cannot be split.
using ERUX_URL_ParseError = TNamedException<ERUXException, "ERUX_URL_ParseError">;
/// The locator found no control.
using ERUX_NotFoundError = TNamedException<ERUXException, "ERUX_NotFoundError">;
/// The locator found more than one control.
using ERUX_NotUniqueError = TNamedException<ERUXException, "ERUX_NotUniqueError">;
/// Raised by adapters for refused actions; deliberately no descendant of ERUXException.
using EAdapterException = TNamedException<Exception, "EAdapterException">;

/// Objects that requests made, owned until the request that made them has left the stack. User-interface
/// thread only, construction excepted.
class TObjectPool {
 public:
    /// `maker` tells whose leaving ends the object. Answers the object's place.
    std::size_t Add(std::unique_ptr<TObject> object, const void* maker);
    void FreeMadeBy(const void* maker);
    void Clear() { FObjects.clear(); }
    std::size_t Count() const { return FObjects.size(); }

 private:
    struct TEntry {
        std::unique_ptr<TObject> Object;
        const void* Maker;
    };
    std::vector<TEntry> FObjects;
};

/// Bits of a request's finish state.
enum TFinishBit : unsigned {
    /// The window side of the request is done.
    rfWindowDone = 0,
    /// The call has returned.
    rfInvokeDone = 1,
};

/// The only way by which other units hold a request. Its fields are guarded: the worker that waits and the
/// user-interface thread may touch them at once when the wait runs out of time.
class ITestRequest : public IInterface {
 public:
    static constexpr const char* Guid = "{97918EA0-AF64-4596-B1A2-3E17A7145423}";

    virtual bool GetPopupWindow() = 0;
    virtual bool GetCloseUnExpactPopupWindow() = 0;
    virtual TReturnCode GetReturnCode() = 0;
    virtual void SetReturnCode(TReturnCode code) = 0;
    virtual std::string GetReturnValue() = 0;
    virtual void SetReturnValue(const std::string& value) = 0;
    virtual std::string GetErrorMessage() = 0;
    virtual void SetErrorMessage(const std::string& message) = 0;
    /// Time spent inside the invoked method, in days.
    virtual double GetRunTime() = 0;
    /// The request text as received.
    virtual const std::string& GetURL() = 0;
    virtual TObjectPool& GetObjectPool() = 0;
    virtual std::string GetPopupWindowCaption() = 0;
    virtual std::string GetWaitForWindowCaption() = 0;
    /// Bits 0 to 7.
    virtual std::uint8_t GetFinishState() = 0;
    virtual bool GetWaitForWindow() = 0;
    virtual std::string GetPicFileName() = 0;
    virtual void SetPicFileName(const std::string& name) = 0;
    /// Execute was left by an exception.
    virtual bool GetInvokeFailed() = 0;
    virtual void SetInvokeFailed(bool value) = 0;
    virtual bool GetIgnorePopupWindow() = 0;
    virtual bool GetFinished() = 0;
    /// Parses and invokes, on the user-interface thread. False when one of the engine's own failures was
    /// caught; any other exception leaves it.
    virtual bool Execute() = 0;
    /// Hands the request to the task centre.
    virtual void Post() = 0;
    /// Blocks the calling thread until the request is finished, at most an hour.
    virtual void WaitFor() = 0;
    /// Releases the waiting thread, once. Any thread.
    virtual void Finish() = 0;
    /// Ignores numbers of 8 and above.
    virtual void AddFinishState(unsigned bit) = 0;
};

}  // namespace rux
