#include "Engine/Request/RUXRequestText.h"

#include "Engine/Core/RUXClasses.h"
#include "rtl/CodePage.h"
#include "rtl/Text.h"

namespace rux {

namespace {

/// Stands for an escaped comma where it begins a character.
constexpr char Placeholder = '\xFE';

constexpr const char* NoCallText =
    "URL:无法分离控件位置描述字符串和方法调用字符串，请检查串中是否包含前一字符不是转义字符“\\”的字符“$“";
constexpr const char* NoClosingText = "方法调用参数字符串没有找找到闭合的字符“)”";

TTextCursor ArgumentCursor(std::string_view argument, std::size_t start = 0) {
    return TTextCursor(argument, start, true);
}

void AddArgument(TRequestText& request, std::string_view argument) {
    request.Args.push_back(ProtectEscapedCommas(StripArgumentQuotes(argument)));
}

void ParseOption(TRequestText& request, std::string_view option) {
    std::string_view name = option, value;
    SplitAtUnescaped('=', option, value, name);
    name = Trim(name);
    if (SameText(name, "PopupWindow")) {
        request.PopupWindow = true;
        request.PopupWindowCaption = value;
    } else if (SameText(name, "CloseUnExpactPopupWindow")) {
        request.CloseUnExpactPopupWindow = true;
    } else if (SameText(name, "ExactMatch")) {
        request.PartMatch = false;
    } else if (SameText(name, "WaitForWindow")) {
        request.WaitForWindow = true;
        request.WaitForWindowCaption = value;
    } else if (SameText(name, "IgnorePopupWindow")) {
        request.IgnorePopupWindow = true;
    }
    // Anything else is no option, and no error.
}

void ParseOptions(TRequestText& request, std::string_view rest) {
    std::string_view option;
    while (SplitAtUnescaped('?', rest, rest, option)) ParseOption(request, option);
    ParseOption(request, rest);
}

/// Arguments up to the closing parenthesis, and what stands behind it. A comma ends an argument wherever it
/// stands, in the options too; that is kept.
std::string_view ParseArguments(TRequestText& request, std::string_view rest) {
    std::string_view argument;
    while (SplitAtUnescaped(',', rest, rest, argument)) AddArgument(request, argument);
    if (!SplitAtUnescaped(')', rest, rest, argument)) throw ERUX_URL_ParseError(Ansi(NoClosingText));
    if (!argument.empty() || !request.Args.empty()) AddArgument(request, argument);
    return rest;
}

}  // namespace

bool SplitAtUnescaped(char delimiter, std::string_view source, std::string_view& rest,
                      std::string_view& head) {
    bool escaped = false;
    for (TTextCursor at(source); !at.AtEnd(); at.Next()) {
        if (at.Is(delimiter) && !escaped) {
            const std::size_t place = at.Pos();
            head = source.substr(0, place);
            rest = source.substr(place + 1);
            return true;
        }
        escaped = at.Is('\\');
    }
    return false;
}

void ParseURL(std::string_view url, TRequestText& request) {
    std::string_view rest, locator, method;
    if (!SplitAtUnescaped('$', url, rest, locator)) throw ERUX_URL_ParseError(Ansi(NoCallText));
    request.Locator = locator;
    if (SplitAtUnescaped('(', rest, rest, method)) {
        request.MethodName = method;
        rest = ParseArguments(request, rest);
        if (!rest.empty()) ParseOptions(request, rest);
    } else if (SplitAtUnescaped('?', rest, rest, method)) {
        request.MethodName = method;
        ParseOptions(request, rest);
    } else {
        request.MethodName = rest;
    }
    request.Locator = ReplaceAll(request.Locator, "\\$", "$");
    request.MethodName = ReplaceAll(request.MethodName, "\\$", "$");
    request.IsFind = SameText(request.MethodName, "Find");
}

std::string GetLocatorTarget(std::string_view locator) {
    std::string_view target, head;
    if (!SplitAtUnescaped('?', locator, target, head)) return {};
    for (TTextCursor at(target); !at.AtEnd(); at.Next())
        if (at.Is('#')) return std::string(Trim(target.substr(0, at.Pos())));
    return std::string(Trim(target));
}

std::string StripArgumentQuotes(std::string_view argument) {
    // A quote is never a trail byte, so the last byte tells.
    if (argument.empty() || argument.front() != '"' || argument.back() != '"') return std::string(argument);
    if (argument.size() == 1) return {};
    bool escaped = false;
    for (TTextCursor at(argument); !at.AtEnd(); at.Next()) {
        if (at.Is(':')) {
            if (escaped) return std::string(argument);
            break;
        }
        escaped = at.Is('\\');
    }
    return std::string(argument.substr(1, argument.size() - 2));
}

std::string ProtectEscapedCommas(std::string_view argument) {
    std::string result;
    result.reserve(argument.size());
    for (TTextCursor at(argument); !at.AtEnd(); at.Next()) {
        const TTextCursor behind(argument, at.Pos() + 1);
        if (at.Is('\\') && behind.Is(',')) {
            result += Placeholder;
            at.Next();
        } else {
            result += at.Char();
        }
    }
    return result;
}

bool IsNamedArgument(std::string_view argument) {
    bool escaped = true;  // nothing in front of the first character
    for (TTextCursor at = ArgumentCursor(argument); !at.AtEnd(); at.Next()) {
        if (at.Is(':') && !escaped) return true;
        escaped = at.Is('\\');
    }
    return false;
}

std::string ArgumentText(std::string_view argument) {
    std::string result;
    result.reserve(argument.size());
    for (TTextCursor at = ArgumentCursor(argument); !at.AtEnd(); at.Next()) {
        if (at.Is('\\')) {
            const TTextCursor behind = ArgumentCursor(argument, at.Pos() + 1);
            if (!behind.AtEnd() && !behind.Is(Placeholder)) at.Next();
        }
        if (at.Is(Placeholder))
            result += ',';
        else
            result += at.Char();
    }
    return result;
}

std::string NamedArgument(const std::vector<std::string>& args, std::string_view name) {
    for (const std::string& argument : args) {
        TTextCursor at = ArgumentCursor(argument);
        while (!at.AtEnd() && !at.Is(':')) at.Next();
        if (at.AtEnd() || !AnsiSameText(std::string_view(argument).substr(0, at.Pos()), name)) continue;
        return argument.substr(at.Pos() + 1);
    }
    return {};
}

}  // namespace rux
