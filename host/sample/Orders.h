// The sample application: the code behind its forms. It knows the toolkit and nothing of the engine.
#pragma once

#include "platform/headless/loader/HFormLoader.h"

namespace rux {

/// Gives the methods that the forms name their code. Call it for each root before its OnCreate.
void AttachOrdersCode(HComponent& root);

}  // namespace rux
