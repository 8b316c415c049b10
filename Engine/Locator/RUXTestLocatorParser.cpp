#include "Engine/Locator/RUXTestLocatorParser.h"

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Core/RUXLimits.h"
#include "Engine/Core/RUXLog.h"
#include "Engine/Locator/RUXCommonLocator.h"
#include "Engine/Locator/RUXLocatorTokens.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

void CheckLimits(std::string_view locator) {
    std::size_t steps = 0, positions = 0;
    for (std::string_view rest = locator; !rest.empty(); ++steps) {
        const char first = GetToken(rest).front();
        if (first == '<' || first == '>' || first == '^' || first == '_') ++positions;
        if (steps < LocatorStepLimit && positions <= LocatorPositionLimit) continue;
        throw ERUXException(Format(Ansi("定位串过长，最多%d步，其中位置步骤最多%d个。"),
                                   {LocatorStepLimit, LocatorPositionLimit}));
    }
}

}  // namespace

TSolviLocatorParser::TSolviLocatorParser(TObject* root, bool partMatch) : FPartMatch(partMatch) {
    Assert(root != nullptr);
    FRoot = Engine().Registry->CreateFindAdapter(root);
    Assert(static_cast<bool>(FRoot));
}

TIntf<ICommonLocator> TSolviLocatorParser::Flatten() {
    const TIntf<TCommonLocator> list = MakeIntf<TCommonLocator>(*this);
    FRoot->FindChildren(*list);
    return list;
}

TIntf<ICommonLocator> TSolviLocatorParser::CopyOf(ICommonLocator& list) {
    const TIntf<TCommonLocator> copy = MakeIntf<TCommonLocator>(*this);
    for (int i = 0; i < list.GetCount(); ++i) copy->AddUnique(list.GetItem(i));
    return copy;
}

TIntf<ICommonLocator> TSolviLocatorParser::Locate(std::string_view locator) {
    FSearches.clear();
    FStart = Flatten();
    try {
        CheckLimits(locator);
        // An index step reorders the list it works on; the report keeps the order of the search.
        return Evaluate(locator.starts_with('#') ? CopyOf(*FStart) : FStart, locator);
    } catch (...) {
        GetLogger().Error(LogTimeStamp() + "Locate Error:" + RootReport());
        throw;
    }
}

std::string TSolviLocatorParser::RootReport() {
    std::string report;
    for (int i = 0; FStart && i < FStart->GetCount(); ++i) {
        const TIntf<IFindAdapter> entry = FStart->GetItem(i);
        std::string text = entry->GetCaption();
        if (IsBlank(text)) text = entry->GetContent();
        report += "\r\n" + entry->GetClassName() + ":" + text;
    }
    return report;
}

TIntf<ICommonLocator> TSolviLocatorParser::Search(std::string_view remainder) {
    if (const auto found = FSearches.find(remainder.size()); found != FSearches.end()) return found->second;
    TIntf<ICommonLocator> list = Evaluate(Flatten(), remainder);
    FSearches[remainder.size()] = list;
    return list;
}

TIntf<ICommonLocator> TSolviLocatorParser::Evaluate(TIntf<ICommonLocator> list, std::string_view rest) {
    while (true) {
        const std::string token = GetToken(rest);
        if (token.empty()) return list;
        // Only the first character is looked at, and it has lost its escape by now: an escaped delimiter at
        // the front of a text that another delimiter ends acts as that operator after all. Scripts rely on
        // it.
        switch (token.front()) {
            case '#':
                list = list->SelectIndex(GetToken(rest));
                break;
            case '?':
                list = list->FilterByClass(GetToken(rest));
                break;
            case '/':
                list = list->FindChildrenOf();
                break;
            case '<':
            case '>':
            case '^':
            case '_':
                // The remainder is evaluated for the candidates, and then once more on the result.
                list = list->FindNear(token.front(), rest);
                break;
            default:
                list = list->FilterByText(token, FPartMatch);
        }
    }
}

}  // namespace rux
