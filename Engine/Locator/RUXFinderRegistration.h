// Registration of the finders, unit by unit.
#pragma once

namespace rux {

class TTypeRegistry;

/// Finders that the locator itself needs; they come first.
void RegisterParserFinders(TTypeRegistry& registry);
void RegisterFinders(TTypeRegistry& registry);

}  // namespace rux
