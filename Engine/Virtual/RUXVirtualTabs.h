// Tabs that are no objects of the toolkit: each stands for one tab of a control, by its place in the row.
#pragma once

#include <string>

#include "Engine/Virtual/RUXVirtualControls.h"

namespace rux {

/// What all of them share. The control is not owned; when it is gone, everything asked of it raises
/// EAccessViolation.
class TVirtualTabBase : public TBaseVirtualControl {
 public:
    TObject* Control() const { return FControl; }
    int Index() const { return FIndex; }

    /// The tab's text. Raises what the control's own list raises for an index outside.
    virtual std::string Caption() = 0;
    /// In the control's client coordinates.
    virtual TRect Rect() = 0;
    virtual void Select() = 0;

 protected:
    TVirtualTabBase(const TClass& type, TObject* control, int index)
        : TBaseVirtualControl(type), FControl(control), FIndex(index) {}

 private:
    TObject* const FControl;
    const int FIndex;
};

template <TClassNameLiteral ClassName>
class TVirtualTabOf : public TVirtualTabBase {
 public:
    TVirtualTabOf(TObject* control, int index)
        : TVirtualTabBase(DefineVirtualClass(ClassName.Text, TBaseVirtualControl::StaticClass()), control,
                          index) {}
};

/// Of a tab set.
class TVirtualTab final : public TVirtualTabOf<"TVirtualTab"> {
 public:
    using TVirtualTabOf::TVirtualTabOf;
    std::string Caption() override;
    TRect Rect() override;
    void Select() override;
};

/// Of a control with the system's row of tabs.
class TVirtualTabControlTab final : public TVirtualTabOf<"TVirtualTabControlTab"> {
 public:
    using TVirtualTabOf::TVirtualTabOf;
    std::string Caption() override;
    TRect Rect() override;
    /// Asks the control first, and tells it afterwards.
    void Select() override;
};

class TTBXImageVirtualTab final : public TVirtualTabOf<"TTBXImageVirtualTab"> {
 public:
    using TVirtualTabOf::TVirtualTabOf;
    std::string Caption() override;
    TRect Rect() override;
    void Select() override;
};

}  // namespace rux
