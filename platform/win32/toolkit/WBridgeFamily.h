// What families of controls have beyond a control, through the table: one small proxy for each family, beside
// the object's own.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/toolkit/Classes.h"
#include "platform/win32/toolkit/WBridge.h"

namespace rux {

/// Lives with the object's proxy, which asks whether the object lives before it hands the family out.
class WBridgeFamily {
 public:
    virtual ~WBridgeFamily() = default;
    /// nil for what the family has not got.
    virtual void* Facet(TFacetId id) = 0;
};

RUXValue WFlag(bool value);
RUXValue WInteger(int value);
/// Refers to `text`.
RUXValue WText(const std::string& text);
RUXValue WObject(const TObject* object);

/// One object behind the table.
struct WHandle {
    WBridge& Bridge;
    RUXRef Ref;

    bool Flag(std::int32_t what) const { return Bridge.ValueOf(Ref, what).Ordinal != 0; }
    int Integer(std::int32_t what) const { return static_cast<int>(Bridge.ValueOf(Ref, what).Ordinal); }
    std::string Text(std::int32_t what) const { return Bridge.TextOf(Ref, what); }
    TObject* Other(std::int32_t relation) const { return Bridge.Relation(Ref, relation); }
    int Count(std::int32_t row) const { return Bridge.Count(Ref, row); }
    TObject* Child(std::int32_t row, int index) const { return Bridge.Child(Ref, row, index); }
    void Set(std::int32_t what, const RUXValue& value) const { Bridge.SetValue(Ref, what, value); }
    void Invoke(std::int32_t verb) const { Bridge.Invoke(Ref, verb); }
};

/// The lines that an object has.
class WLines final : public TStrings {
 public:
    explicit WLines(const WHandle& handle) : FHandle(handle) {}
    int Count() override { return FHandle.Count(RUX_LINES); }
    std::string Get(int index) override { return FHandle.Bridge.EntryText(FHandle.Ref, RUX_LINES, index); }
    int IndexOf(const std::string& text) override;

 private:
    const WHandle FHandle;
};

// nil for a class that is none of them.
std::unique_ptr<WBridgeFamily> MakeBridgeFamily(const WHandle& handle, const TClass& type);
std::unique_ptr<WBridgeFamily> MakeListFamily(const WHandle& handle, const TClass& type);
std::unique_ptr<WBridgeFamily> MakeTreeFamily(const WHandle& handle, const TClass& type);
std::unique_ptr<WBridgeFamily> MakePageFamily(const WHandle& handle, const TClass& type);

}  // namespace rux
