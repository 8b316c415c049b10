// An application that attaches its toolkit: a few objects of no substance behind the exported table.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/win32/toolkit/ToolkitTable.h"

/// Class references.
// clang-format off
enum TFakeClass { fcObject = 1, fcPersistent, fcComponent, fcControl, fcWinControl, fcForm, fcEdit, fcCheck,
                  fcRadio, fcButton, fcDate, fcMenu };
// clang-format on

struct TFakeObject {
    TFakeClass Class = fcObject;
    std::uint32_t Life = 0;
    RUXRef Parent = 0;
    std::vector<RUXRef> Children = {};
    std::map<int, RUXValue> Values = {};
    std::map<int, std::string> Texts = {};
};

constexpr RUXRef AppRef = 0x10, FormRef = 0x20, EditRef = 0x30, CheckRef = 0x40, ButtonRef = 0x50,
                 DateRef = 0x60, MenuRef = 0x70, RadioRef = 0x80;

struct TFakeApplication {
    std::map<RUXRef, TFakeObject> Objects;
    RUXApplicationState State{};
    /// Verbs and settings as they came.
    std::vector<std::string> Log;
    /// Class and message of the error that the next Invoke fails with; an empty class tells none.
    std::pair<std::string, std::string> Failure;
    bool Fails = false;
    RUXTable Table{};
    /// What the export answers.
    const RUXTable* Exported = nullptr;
};

/// A new one; the export answers for it from now on.
TFakeApplication& NewApplication();
