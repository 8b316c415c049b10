// What a tree has beyond a windowed control when it is looked for.
#pragma once

#include <string>

#include "Engine/Locator/RUXFindAdapters.h"

namespace rux {

class TTreeViewFindAdapter : public TWinControlFindAdapter {
 public:
    using TWinControlFindAdapter::TWinControlFindAdapter;
    /// The texts of the first node, its first child, that one's first child and so on.
    std::string GetContent() override;
};

}  // namespace rux
