// The adapters of the standard controls, in the order in which the registry asks them.
#pragma once

namespace rux {

class TTypeRegistry;

void RegisterTestAdapters(TTypeRegistry& registry);

}  // namespace rux
