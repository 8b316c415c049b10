// Native buttons, edits, labels and combo boxes. Each operation is a plain sending of messages.
#pragma once

#include <string>

#include "Engine/Virtual/RUXVirtualControls.h"

namespace rux {

class TVirtualButton final : public TVirtualClassOf<TVirtualWinControl, "TVirtualButton"> {
 public:
    using TVirtualClassOf::TVirtualClassOf;
    void Click() const;
};

class TVirtualEdit final : public TVirtualClassOf<TVirtualWinControl, "TVirtualEdit"> {
 public:
    using TVirtualClassOf::TVirtualClassOf;
    std::string GetText() const { return SentText(); }
    void SetText(const std::string& text) const { SendText(text); }
};

class TVirtualStatic : public TVirtualClassOf<TVirtualWinControl, "TVirtualStatic"> {
 public:
    using TVirtualClassOf::TVirtualClassOf;
    std::string GetText() const { return SentText(); }
};

class TVirtualCombobox final : public TVirtualClassOf<TVirtualStatic, "TVirtualCombobox"> {
 public:
    using TVirtualClassOf::TVirtualClassOf;
};

}  // namespace rux
