#include "Engine/Locator/RUXTreeFindAdapters.h"

#include "platform/toolkit/ComCtrls.h"

namespace rux {

std::string TTreeViewFindAdapter::GetContent() {
    TObject* const first = Cast<TCustomTreeView>(Instance()).GetFirstNode();
    std::string content;
    for (TObject* node = first; node; node = Cast<TTreeNode>(node).GetFirstChild())
        content += (node == first ? "" : "|") + Cast<TTreeNode>(node).Text();
    return content;
}

}  // namespace rux
