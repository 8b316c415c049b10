// A form file as plain data, as it stands in the text: nothing is looked up, resolved or defaulted.
//
// Objects lie in one flat list, so that a chain of any depth is safe to walk and to free. Values nest, but
// never deeper than FormNestingLimit. All texts and names are in the system's code page.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace rux {

struct TFormValue;
struct TFormProperty;

struct TFormString {
    std::string Text;
};

struct TFormFloat {
    double Value = 0;
    /// The letter behind the number, in lower case, 0 without one: `d` a date in days since 1899-12-30, `c` a
    /// currency (in its unit: the file's ten-thousandths are divided already), `s` and `f` plain numbers.
    char Suffix = 0;
};

struct TFormIdent {
    /// Possibly dotted; True, False, nil and Null come this way too. Empty where the file lacks the value.
    std::string Name;
};

struct TFormSet {
    /// Names, or integers as the file spells them.
    std::vector<std::string> Elements;
};

struct TFormList {
    std::vector<TFormValue> Values;
};

struct TFormBinary {
    /// Any bytes; not text.
    std::string Bytes;
};

struct TFormItem {
    std::optional<int> Order;
    std::vector<TFormProperty> Properties;
};

struct TFormCollection {
    std::vector<TFormItem> Items;
};

/// In the order of TFormValue's alternatives.
enum class TFormValueKind { String, Integer, Float, Ident, Set, List, Binary, Collection };

template <class... Cases>
struct TFormValueCases : Cases... {
    using Cases::operator()...;
};

struct TFormValue {
    std::variant<TFormString, std::int64_t, TFormFloat, TFormIdent, TFormSet, TFormList, TFormBinary,
                 TFormCollection>
        Data;

    TFormValueKind Kind() const { return static_cast<TFormValueKind>(Data.index()); }
    /// The value as a `T`, nil if it is of another kind.
    template <class T>
    const T* As() const {
        return std::get_if<T>(&Data);
    }
    /// Calls the one of `cases` that takes the value's alternative; together they take all.
    template <class... Cases>
    decltype(auto) Visit(Cases... cases) const {
        return std::visit(TFormValueCases<Cases...>{std::move(cases)...}, Data);
    }
};

struct TFormProperty {
    /// Possibly dotted.
    std::string Name;
    TFormValue Value;
    int Line = 0;
};

enum class TFormObjectKind { Object, Inherited, Inline };
/// The words that open an object, in the order of TFormObjectKind.
inline constexpr std::array<std::string_view, 3> FormObjectWords{"object", "inherited", "inline"};
inline constexpr std::string_view FormObjectWord(TFormObjectKind kind) {
    return FormObjectWords[static_cast<std::size_t>(kind)];
}

struct TFormObject {
    TFormObjectKind Kind = TFormObjectKind::Object;
    /// Empty when the file gives a class only.
    std::string Name;
    std::string ClassName;
    /// Place among the parent's children, `[n]`.
    std::optional<int> Order;
    int Line = 0;
    /// Index into the file's objects; -1 for the root.
    int Parent = -1;
    /// Indices in file order.
    std::vector<int> Children;
    std::vector<TFormProperty> Properties;
};

struct TFormFile {
    std::string FileName;
    /// In file order: the root first, every object before its children and these before its next sibling.
    /// Never empty in a file that was read.
    std::vector<TFormObject> Objects;
};

}  // namespace rux
