// Status bars.
#pragma once

#include "Engine/Adapters/RUXTestAdapter.h"

namespace rux {

class TSolviTStatusBarAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviTStatusBarAdapter", "TStatusBar", IStatusBar> {
 public:
    using TAdapterOf::TAdapterOf;
    /// The panels' texts with ";" between them; a bar's one simple text is not read.
    std::string GetText() override;
};

class TSolviTBXStatusBarAdapter final
    : public TAdapterOf<TRUXControlAdapter, "TSolviTBXStatusBarAdapter", "TTBXStatusBar", IStatusBar> {
 public:
    using TAdapterOf::TAdapterOf;
    std::string GetText() override;
};

}  // namespace rux
