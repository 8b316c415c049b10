// The application, its screen, its forms and its mouse; and the toolkit as a whole.
#pragma once

#include <string>

#include "platform/Types.h"
#include "platform/toolkit/Classes.h"

namespace rux {

enum class TFormStyle { Normal, MDIChild, MDIForm, StayOnTop };

class TApplication {
 public:
    static constexpr TFacetId Id = TFacetId::Application;
    /// The hidden window that belongs to the application itself.
    virtual HWnd Handle() = 0;
    /// Dispatches queued messages until none is left.
    virtual void ProcessMessages() = 0;
    /// nil for none.
    virtual TObject* MainForm() = 0;
    /// Any thread.
    virtual bool Terminated() = 0;

 protected:
    ~TApplication() = default;
};

class TCustomForm {
 public:
    static constexpr TFacetId Id = TFacetId::CustomForm;
    virtual TFormStyle FormStyle() = 0;
    /// fsModal is in FormState.
    virtual bool Modal() = 0;
    virtual bool Active() = 0;
    virtual int MDIChildCount() = 0;
    virtual TObject* MDIChildren(int index) = 0;
    /// Lets the actions of the form bring their state up to date.
    virtual void UpdateActions() = 0;

 protected:
    ~TCustomForm() = default;
};

class TScreen {
 public:
    /// nil for none.
    virtual TObject* ActiveForm() = 0;
    virtual int CustomFormCount() = 0;
    virtual TObject* CustomForms(int index) = 0;

 protected:
    ~TScreen() = default;
};

/// The real cursor, in screen coordinates; setting it clips it to the screen.
class TMouse {
 public:
    virtual TPoint CursorPos() = 0;
    virtual void SetCursorPos(TPoint point) = 0;

 protected:
    ~TMouse() = default;
};

class TToolkit {
 public:
    virtual ~TToolkit() = default;
    /// An object with the facet TApplication.
    virtual TObject& Application() = 0;
    virtual TScreen& Screen() = 0;
    virtual TMouse& Mouse() = 0;
    /// The thread that the application's windows live on, as TKernelService::GetCurrentThreadId numbers it.
    /// Any thread.
    virtual std::uintptr_t MainThreadId() = 0;
    virtual TClassTable& Classes() = 0;
    /// The live object behind the value that the toolkit keeps as a property on its windows; nil if it is
    /// none.
    virtual TObject* ObjectOfProp(std::uintptr_t value) = 0;
    /// A number for an object that the engine makes itself, disjoint from those of live objects and windows.
    virtual std::uint64_t NewRefNumber() = 0;
};

}  // namespace rux
