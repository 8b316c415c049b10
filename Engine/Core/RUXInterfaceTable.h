// Interfaces that are called by method name. Each has one table, written once beside it: names of methods and
// parameters. Types, counts and storage are derived from the C++ signatures. Invocation, the interface
// definitions and the report of usable controls all read this table, so that they cannot disagree.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "Engine/Core/RUXTypeInfo.h"
#include "rtl/Exceptions.h"

namespace rux {

/// What a method can be called on.
class TInvokable {
 public:
    virtual ~TInvokable() = default;
};

/// Native storage for the parameters and the result of one call.
class TInvContext {
 public:
    virtual ~TInvContext() = default;
    virtual void* GetParamPointer(std::size_t index) = 0;
    /// nil for a procedure.
    virtual void* GetResultPointer() = 0;
};

inline constexpr std::size_t MaxParams = 6;

struct TIntfParamEntry {
    std::string_view Name;
    const TTypeInfo* Info = nullptr;
    /// Written by the method; never passed by a request.
    bool IsOut = false;
};

struct TIntfMethEntry {
    std::string_view Name;
    /// nil for a procedure.
    const TTypeInfo* ResultType = nullptr;
    std::size_t ParamCount = 0;
    std::array<TIntfParamEntry, MaxParams> Params{};
    std::unique_ptr<TInvContext> (*MakeContext)() = nullptr;
    /// Raises EAccessViolation when `target` does not offer the method's interface.
    void (*Invoke)(TInvokable& target, TInvContext& context) = nullptr;
};

struct TInterfaceInfo {
    std::string_view Name;
    /// nil for the root.
    const TInterfaceInfo* Parent;
    std::span<const TIntfMethEntry> Methods;
};

/// Calls `visit` with each method: those of the ancestors first.
template <class F>
void ForEachMethod(const TInterfaceInfo& info, const F& visit) {
    if (info.Parent) ForEachMethod(*info.Parent, visit);
    for (const TIntfMethEntry& method : info.Methods) visit(method);
}

namespace detail {

template <class A>
using TBare = std::remove_cvref_t<A>;
template <class A>
inline constexpr bool IsOutParam =
    std::is_lvalue_reference_v<A> && !std::is_const_v<std::remove_reference_t<A>>;

template <class M>
struct TSignature;
template <class R, class C, class... A>
struct TSignature<R (C::*)(A...)> {
    using Owner = C;
    static constexpr std::size_t Count = sizeof...(A);
    static_assert(Count <= MaxParams);

    struct TSlots final : TInvContext {
        std::tuple<typename TTypeOf<TBare<A>>::Slot...> Params{};
        std::conditional_t<std::is_void_v<R>, char, TBare<R>> Result{};

        void* GetParamPointer(std::size_t index) override {
            void* found = nullptr;
            [&]<std::size_t... I>(std::index_sequence<I...>) {
                ((I == index ? void(found = &std::get<I>(Params)) : void()), ...);
            }
            (std::make_index_sequence<Count>{});
            return found;
        }
        void* GetResultPointer() override {
            if constexpr (std::is_same_v<R, bool>)
                return &(FBool = Result ? 1 : 0);
            else if constexpr (std::is_void_v<R>)
                return nullptr;
            else
                return &Result;
        }
        std::uint8_t FBool = 0;
    };

    static std::unique_ptr<TInvContext> Make() { return std::make_unique<TSlots>(); }

    template <class A1, class Slot>
    static decltype(auto) Pass(Slot& slot) {
        if constexpr (IsOutParam<A1>)
            return static_cast<TBare<A1>&>(slot);
        else
            return TTypeOf<TBare<A1>>::Take(slot);
    }

    template <auto Method>
    static void Invoke(TInvokable& target, TInvContext& context) {
        auto* owner = dynamic_cast<Owner*>(&target);
        if (!owner) RaiseNilAccess();
        auto& slots = static_cast<TSlots&>(context);
        [&]<std::size_t... I>(std::index_sequence<I...>) {
            if constexpr (std::is_void_v<R>)
                (owner->*Method)(Pass<A>(std::get<I>(slots.Params))...);
            else
                slots.Result = (owner->*Method)(Pass<A>(std::get<I>(slots.Params))...);
        }
        (std::make_index_sequence<Count>{});
    }

    static constexpr const TTypeInfo* ResultType() {
        if constexpr (std::is_void_v<R>)
            return nullptr;
        else
            return &TTypeOf<TBare<R>>::Info;
    }
    template <std::size_t N>
    static constexpr std::array<TIntfParamEntry, MaxParams> Params(
        const std::array<std::string_view, N>& names) {
        std::array<TIntfParamEntry, MaxParams> rows{};
        const std::array<const TTypeInfo*, Count + 1> infos{&TTypeOf<TBare<A>>::Info..., nullptr};
        const std::array<bool, Count + 1> outs{IsOutParam<A>..., false};
        for (std::size_t i = 0; i < Count; ++i) rows[i] = {names[i], infos[i], outs[i]};
        return rows;
    }
};

}  // namespace detail

/// One row of a table: the method, its name, the names of its parameters in order.
template <auto Method, class... Names>
constexpr TIntfMethEntry Row(std::string_view name, Names... params) {
    using S = detail::TSignature<decltype(Method)>;
    static_assert(sizeof...(Names) == S::Count, "one name for each parameter");
    return {name,     S::ResultType(),
            S::Count, S::Params(std::array<std::string_view, sizeof...(Names)>{std::string_view(params)...}),
            &S::Make, &S::template Invoke<Method>};
}

}  // namespace rux
