#include "PlainLocator.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "Engine/Core/RUXClasses.h"
#include "platform/headless/toolkit/HForm.h"
#include "platform/headless/toolkit/HToolkit.h"
#include "rtl/CodePage.h"
#include "rtl/Numbers.h"

namespace rux::test {

namespace {

using TList = std::vector<HControl*>;

bool Has(const TList& list, const HControl* control) {
    return std::find(list.begin(), list.end(), control) != list.end();
}

void AddUnique(TList& list, HControl* control) {
    if (!Has(list, control)) list.push_back(control);
}

std::string Prop(HControl& control, std::string_view name) {
    TPropValue value;
    return control.GetProp(FindName(name), value) ? value.Text : std::string();
}

bool Blank(const std::string& text) {
    return text.find_first_not_of(" \t\r\n") == text.npos;
}

TRect Bounds(HControl& control) {
    return control.ClientRect().MovedBy(control.ClientOrigin());
}

bool Visible(HControl& control) {
    const TRect r = control.IsWindowed() ? control.ScreenRect() : control.BoundsRect();
    return control.IsVisible() && r.Right > 0 && r.Bottom > 0;
}

bool Contains(const TRect& r, const TRect& b) {
    return r.Top <= b.Top && r.Left <= b.Left && r.Bottom >= b.Bottom && r.Right >= b.Right;
}

void Walk(HControl& control, TList& list) {
    if (!control.IsWindowed()) return;
    auto& window = static_cast<HWinControl&>(control);
    std::vector<TRect> seen;
    for (int i = window.ControlCount() - 1; i >= 0; --i) {
        auto& child = dynamic_cast<HControl&>(*window.Controls(i));
        if (!Visible(child)) continue;
        const TRect b = child.BoundsRect();
        if (std::any_of(seen.begin(), seen.end(), [&](const TRect& r) { return Contains(r, b); })) continue;
        seen.push_back(b);
        AddUnique(list, &child);
        Walk(child, list);
        const TRect around = window.BoundsRect();
        if (i > 0 && b.Left == 0 && b.Top == 0 && b.Width() == around.Width() &&
            b.Height() == around.Height())
            return;
    }
}

TList Flatten(HToolkit& kit) {
    TList list;
    kit.Desktop().EnumWindows([&](HWnd window) {
        HWinControl* form = kit.ControlOf(window);
        if (!form || !kit.Desktop().IsWindowEnabled(window) || !kit.Desktop().IsWindowVisible(window))
            return true;
        if (!Visible(*form)) return true;
        AddUnique(list, form);
        Walk(*form, list);
        return true;
    });
    return list;
}

std::string Without(std::string text, char c) {
    std::erase(text, c);
    return text;
}

std::string Lower(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    return text;
}

bool MatchPlain(const std::string& actual, const std::string& expected, bool part) {
    const std::string a = Without(actual, ' '), e = Without(expected, ' ');
    return part ? !e.empty() && a.find(e) != a.npos : Lower(a) == Lower(e);
}

bool IsMatch(HControl& control, std::string text, bool part) {
    const std::size_t first = text.find_first_not_of(" \t");
    text = first == text.npos ? "" : text.substr(first, text.find_last_not_of(" \t") - first + 1);
    const bool form = dynamic_cast<HCustomForm*>(&control) != nullptr;
    std::string value = form ? control.Text() : Prop(control, "Caption");
    if (Blank(value)) value = Prop(control, "Text");
    if (!Blank(value)) return MatchPlain(value, text, part);
    if (form) {  // its content is its name
        if (part) return MatchPlain(control.Name(), text, true);
        return Lower(Without(control.Name(), ' ') + "|").rfind(Lower(Without(text, ' ') + "|"), 0) == 0;
    }
    value = Prop(control, "Hint");
    if (Blank(value)) value = Prop(control, "Name");
    return MatchPlain(value, text, part);
}

bool IsOfClass(HControl& control, const std::string& text) {
    for (const TClass* step = &control.ClassType(); step; step = step->Parent()) {
        if (step == &control.ClassType() && Lower(step->Name()) == Lower(text)) return true;
        // The groups that the generated forms need.
        if (Lower(text) == "button" && step->Name() == "TButton") return true;
        if (Lower(text) == "edit" && step->Name() == "TEdit") return true;
        if (Lower(text) == "label" && step->Name() == "TLabel") return true;
        if (Lower(text) == "form" && step->Name() == "TForm") return true;
    }
    return false;
}

bool IsEscaped(const std::string& text, std::size_t at) {
    std::size_t count = 0;
    while (at > count && text[at - 1 - count] == '\\') ++count;
    return count % 2 == 1;
}

bool IsDelimiter(char c) {
    return std::string("#/<>?^_").find(c) != std::string::npos;
}

std::string Token(std::string& rest) {
    std::size_t at = 0;
    while (at < rest.size() && !(IsDelimiter(rest[at]) && !IsEscaped(rest, at))) ++at;
    if (at == rest.size()) return std::exchange(rest, "");
    if (at == 0) at = 1;
    std::string token = rest.substr(0, at);
    rest.erase(0, at);
    if (token.size() == 1 && IsDelimiter(token[0])) return token;
    for (std::size_t i = 0; i + 1 < token.size(); ++i)
        if (token[i] == '\\' && IsDelimiter(token[i + 1])) token.erase(i, 1);
    return token;
}

int Compare(HControl* a, HControl* b) {
    const TRect x = Bounds(*a), y = Bounds(*b);
    if (y.Top - 5 > x.Top) return -1;
    if (x.Top - 5 > y.Top) return 1;
    return x.Left < y.Left ? -1 : x.Left > y.Left ? 1 : 0;
}

/// Runs of 1, 2, 4 ... merged by hand.
void Sort(TList& list) {
    for (std::size_t width = 1; width < list.size(); width *= 2) {
        TList merged;
        for (std::size_t start = 0; start < list.size(); start += 2 * width) {
            TList left(list.begin() + static_cast<long>(start),
                       list.begin() + static_cast<long>(std::min(start + width, list.size())));
            TList right(list.begin() + static_cast<long>(std::min(start + width, list.size())),
                        list.begin() + static_cast<long>(std::min(start + 2 * width, list.size())));
            while (!left.empty() || !right.empty()) {
                TList& from =
                    right.empty() || (!left.empty() && Compare(left[0], right[0]) <= 0) ? left : right;
                merged.push_back(from[0]);
                from.erase(from.begin());
            }
        }
        list = merged;
    }
}

double Distance(int x1, int y1, int x2, int y2) {
    const auto sum = static_cast<std::uint32_t>(x1 - x2) * static_cast<std::uint32_t>(x1 - x2) +
                     static_cast<std::uint32_t>(y1 - y2) * static_cast<std::uint32_t>(y1 - y2);
    return std::sqrt(static_cast<double>(static_cast<std::int32_t>(sum)));
}

double Gap(const TRect& a, const TRect& b) {
    if (a.Top <= b.Bottom && a.Bottom >= b.Top)
        return std::min(std::abs(a.Right - b.Left), std::abs(a.Left - b.Right));
    if (a.Left <= b.Right && a.Right >= b.Left)
        return std::min(std::abs(a.Bottom - b.Top), std::abs(a.Top - b.Bottom));
    return std::min({Distance(a.Left, a.Top, b.Right, b.Bottom), Distance(a.Right, a.Bottom, b.Left, b.Top),
                     Distance(b.Left, b.Bottom, a.Right, a.Top), Distance(b.Right, b.Top, a.Left, a.Bottom)});
}

bool Holds(char d, const TRect& a, const TRect& k) {
    return (d == '<' && a.Left >= k.Right) || (d == '>' && a.Right <= k.Left) ||
           (d == '^' && a.Top >= k.Bottom) || (d == '_' && a.Bottom <= k.Top);
}

TList Evaluate(HToolkit& kit, TList list, std::string rest, bool part) {
    for (std::string token = Token(rest); !token.empty(); token = Token(rest)) {
        TList next;
        const char first = token[0];
        if (first == '#') {
            const std::string index = Token(rest);
            const int count = static_cast<int>(list.size()), n = index == "$" ? count : StrToInt(index);
            if (count < n)
                throw ERUX_NotFoundError(
                    Format(Ansi("一共只有%d个符合条件的控件，不能找到第%d个!"), {count, n}));
            Sort(list);
            if (n < 1) throw EAssertionFailed("index");
            next = {list[static_cast<std::size_t>(n - 1)]};
        } else if (first == '?') {
            const std::string word = Token(rest);
            for (HControl* control : list)
                if (IsOfClass(*control, word)) next.push_back(control);
        } else if (first == '/') {
            for (HControl* control : list) Walk(*control, next);
        } else if (first == '<' || first == '>' || first == '^' || first == '_') {
            const TList candidates = Evaluate(kit, Flatten(kit), rest, part);
            for (HControl* anchor : list) {
                HControl* best = nullptr;
                for (HControl* k : candidates)
                    if (Holds(first, Bounds(*anchor), Bounds(*k)) &&
                        !(best && Gap(Bounds(*anchor), Bounds(*best)) <= Gap(Bounds(*anchor), Bounds(*k))))
                        best = k;
                if (best) AddUnique(next, best);
            }
        } else {
            for (HControl* control : list)
                if (IsMatch(*control, token, part)) next.push_back(control);
        }
        list = next;
    }
    return list;
}

}  // namespace

std::string PlainLocate(HToolkit& kit, std::string_view locator, bool partMatch) {
    try {
        std::string names;
        for (HControl* control : Evaluate(kit, Flatten(kit), std::string(locator), partMatch))
            names += control->Name() + " ";
        return names;
    } catch (const EAssertionFailed& error) {
        return std::string(error.ClassName());
    } catch (const Exception& error) {
        return std::string(error.ClassName()) + ": " + error.Message();
    }
}

}  // namespace rux::test
