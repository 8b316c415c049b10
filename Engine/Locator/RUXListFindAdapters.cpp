#include "Engine/Locator/RUXListFindAdapters.h"

#include "Engine/Core/RUXTextMatcher.h"
#include "Engine/Locator/RUXContentMatch.h"
#include "platform/toolkit/ComCtrls.h"
#include "platform/toolkit/ShellCtrls.h"
#include "platform/toolkit/StdCtrls.h"

namespace rux {

std::string TListViewFindAdapter::GetContent() {
    auto& view = Cast<TCustomListView>(Instance());
    std::string text;
    for (int i = 0; i < view.Count(); ++i)
        text += (i == 0 ? "" : "|") + Cast<TListItem>(view.Item(i)).Caption();
    return text;
}

bool TListViewFindAdapter::IsContentMatch(const TTextMatcher& text, const std::string& content) {
    return MatchContentList(text.Text(), content, text.PartMatch());
}

std::string TShellComboBoxFindAdapter::GetCaption() {
    auto& combo = Cast<TCustomCombo>(Instance());
    const int index = combo.ItemIndex();
    return index < 0 ? std::string() : combo.Items().Get(index);
}

std::string TShellComboBoxFindAdapter::GetContent() {
    return Cast<TShellComboBox>(Instance()).Path();
}

}  // namespace rux
