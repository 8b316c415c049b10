// Texts to native values and back.
#pragma once

#include <string>

#include "Engine/Core/RUXTypeInfo.h"

namespace rux {

/// Stores `text` as a value of the type. False when the type cannot take a text. Raises what the run-time
/// library raises for a text that is no number, and ETypeTransException for kinds that never cross.
bool TextToNative(const TTypeInfo& info, const std::string& text, void* storage);
/// The value as text. Raises ETypeTransException for kinds that have none.
std::string NativeToText(const TTypeInfo& info, const void* storage);
/// The text of a method's result: Booleans by their word, lists of integers in the report's form, everything
/// else as NativeToText.
std::string ValueToText(const TTypeInfo& info, const void* storage);

}  // namespace rux
