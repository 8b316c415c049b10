#include "platform/headless/toolkit/HLists.h"

#include "platform/headless/HLimits.h"

namespace rux {

HInsets BorderInsets(const HObject& object) {
    static const TName borderStyle = InternName("BorderStyle");
    // bsNone is 0.
    if (object.KeptOrdinal(borderStyle) == 0) return {};
    return {HClientEdge, HClientEdge, HClientEdge, HClientEdge};
}

HInsets HBorderedControl::Insets() const {
    return BorderInsets(*this);
}

}  // namespace rux
