#include "Engine/Request/RUXInvoker.h"

#include "Engine/Core/RUXClasses.h"
#include "Engine/Core/RUXEngineState.h"
#include "Engine/Locator/RUXTestLocatorParser.h"
#include "Engine/Registry/RUXTypeRegistry.h"
#include "Engine/Request/RUXConversion.h"
#include "platform/WindowService.h"
#include "platform/toolkit/Controls.h"
#include "platform/toolkit/Forms.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"
#include "rtl/Text.h"

namespace rux {

namespace {

constexpr std::size_t AnyCount = static_cast<std::size_t>(-1);

std::size_t OutParams(const TIntfMethEntry& method) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < method.ParamCount; ++i) count += method.Params[i].IsOut;
    return count;
}

struct TMethodSearch {
    const TIntfMethEntry* Method = nullptr;
    std::size_t Hits = 0;
};

TMethodSearch Search(const std::vector<const TIntfMethEntry*>& methods, std::string_view name,
                     std::size_t count) {
    TMethodSearch found;
    for (const TIntfMethEntry* method : methods) {
        if (!SameText(method->Name, name)) continue;
        if (count != AnyCount && method->ParamCount != count + OutParams(*method)) continue;
        found.Method = method;
        ++found.Hits;
    }
    return found;
}

/// More than one hit is none. A definite count without any hit falls back on any count.
const TIntfMethEntry* SearchOne(const std::vector<const TIntfMethEntry*>& methods, std::string_view name,
                                std::size_t count) {
    TMethodSearch found = Search(methods, name, count);
    if (found.Hits == 0 && count != AnyCount) found = Search(methods, name, AnyCount);
    return found.Hits == 1 ? found.Method : nullptr;
}

[[noreturn]] void RaiseNotFound(const std::string& locator, TSolviLocatorParser& parser) {
    TLogger& log = GetLogger();
    const std::string line(74, '-');
    log.Info("{" + line);
    log.Error(LogTimeStamp() + locator + Ansi(",没有找到控件:") + parser.RootReport());
    log.Info(line + "}");
    throw ERUX_NotFoundError(Format(Ansi("没有找到%s对应的控件"), {locator}));
}

[[noreturn]] void RaiseNotUnique(const std::string& locator, ICommonLocator& list) {
    std::string text = Format(Ansi("%s找到了%d个符合条件的控件，它们分别是："), {locator, list.GetCount()});
    for (int i = 0; i < list.GetCount(); ++i) {
        const TIntf<IFindAdapter> entry = list.GetItem(i);
        text += "\r\n" + Ansi("类名: ") + entry->GetClassName() + Ansi(" 标题：") + entry->GetCaption() +
                Ansi(" 内容：") + entry->GetContent();
    }
    throw ERUX_NotUniqueError(text);
}

bool IsRefused(TKind kind) {
    return kind == TKind::Class || kind == TKind::Variant || kind == TKind::DynArray;
}

}  // namespace

std::vector<const TIntfMethEntry*> GetIntfMetaData(const TInterfaceInfo& info) {
    std::vector<const TIntfMethEntry*> methods;
    ForEachMethod(info, [&](const TIntfMethEntry& method) { methods.push_back(&method); });
    return methods;
}

const TIntfMethEntry* FindMethod(const std::vector<const TIntfMethEntry*>& methods, std::string_view name,
                                 std::size_t argCount) {
    const TIntfMethEntry* method = SearchOne(methods, name, AnyCount);
    if (!method) method = SearchOne(methods, name, argCount);
    if (!method && argCount == 0) method = SearchOne(methods, name, 1);
    return method;
}

void ConvertArguments(const TIntfMethEntry& method, TInvContext& context, std::vector<std::string> args) {
    if (method.ParamCount == 1 && args.empty()) {
        GetLogger().Warn(Format(Ansi("收到%d个参数，但是需要%d个参数，缺项补成空值"), {0, 1}));
        args.emplace_back();
    }
    if (args.size() != method.ParamCount)
        throw ERUXException(
            Format(Ansi("参数个数不匹配，需要%d个，实传%d个。"), {method.ParamCount, args.size()}));
    for (std::size_t i = 0; i < method.ParamCount; ++i) {
        const TIntfParamEntry& param = method.Params[i];
        if (IsRefused(param.Info->Kind))
            // The words say "supported" and mean the opposite; scripts know the text as it is.
            throw ERUXException(Ansi("支持\"变体\",\"动态数组\",\"对象\"类型参数"));
        const std::string value = IsNamedArgument(args[i]) ? NamedArgument(args, param.Name) : args[i];
        if (!TextToNative(*param.Info, ArgumentText(value), context.GetParamPointer(i)))
            throw ERUXException(Format(Ansi("参数%s转换失败。"), {param.Name}));
    }
}

TIntf<IRUXAdapter> FindAdapter(const std::string& locator, bool partMatch) {
    TSolviLocatorParser parser(&Platform().Toolkit.Application(), partMatch);
    const TIntf<ICommonLocator> list = parser.Locate(locator);
    if (list->GetCount() == 0) RaiseNotFound(locator, parser);
    if (list->GetCount() > 1) RaiseNotUnique(locator, *list);
    // The real class of the object counts, never the name that the finder gives it.
    TObject* object = list->GetItem(0)->GetObject();
    const TClass& type = object->ClassType();
    const TAdapterEntry* entry = Engine().Registry->FindAdapterClass(&type);
    if (!entry) throw ERUXException(type.Name() + Ansi("没有找到适配器"));
    TIntf<IRUXAdapter> adapter = entry->Make(object);
    adapter->SetPartMatch(partMatch);
    return adapter;
}

void UpdateFormActions() {
    TScreen& screen = Platform().Toolkit.Screen();
    TWindowService& windows = Platform().Windows;
    for (int i = 0; i < screen.CustomFormCount(); ++i) {
        TObject* form = screen.CustomForms(i);
        auto& window = Cast<TWinControl>(form);
        if (!window.HandleAllocated()) continue;
        const HWnd handle = window.Handle();
        if (windows.IsWindowVisible(handle) && windows.IsWindowEnabled(handle))
            Cast<TCustomForm>(form).UpdateActions();
    }
}

}  // namespace rux
