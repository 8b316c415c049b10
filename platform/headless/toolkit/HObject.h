// Live objects of the desktop in memory: an ordinary chain of classes; each level that the engine knows adds
// its facet through With.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/toolkit/Classes.h"

namespace rux {

class HObject;
class HToolkit;
struct HClassDef;

/// A reference to an object that somebody else may free; it is nil from then on.
class HAnyRef {
 public:
    HObject* Get() const;
    void Set(HObject* object);

 private:
    HObject* FObject = nullptr;
    HToolkit* FKit = nullptr;
    std::uint64_t FRef = 0;
};
template <class T>
class HRef {
 public:
    HRef(T* object = nullptr) { FAny.Set(object); }
    T* Get() const { return static_cast<T*>(FAny.Get()); }
    T* operator->() const { return Get(); }
    explicit operator bool() const { return FAny.Get() != nullptr; }

 private:
    HAnyRef FAny;
};

class HObject : public TObject {
 public:
    HObject(HToolkit& kit, const HClassDef& def);
    HObject(const HObject&) = delete;
    HObject& operator=(const HObject&) = delete;
    ~HObject() override;

    const TClass& ClassType() const override;
    void* Facet(TFacetId) override { return nullptr; }
    std::uint64_t RefNumber() const override { return FRef; }
    /// The class's table first, then what a form file stored beyond it.
    bool GetProp(TName name, TPropValue& value) override;
    /// Through the class's setter where it has one; any other value is kept as it is, so that it can be read.
    void SetProp(TName name, TPropValue value);
    /// A value that the object keeps beyond its class's table; nil if there is none.
    const TPropValue* Stored(TName name) const;
    /// The same, else the default of its class; nil for a property that neither has.
    const TPropValue* Kept(TName name) const;
    /// The number of what is kept, the fallback where nothing is.
    std::int64_t KeptOrdinal(TName name, std::int64_t fallback = 0) const {
        const TPropValue* value = Kept(name);
        return value ? value->Ordinal : fallback;
    }
    /// Reads that as a property: what was freed is nil, and a part is made when it is first asked for.
    bool GetKept(TName name, TPropValue& value);
    void Store(TName name, TPropValue value);
    const std::vector<std::pair<TName, TPropValue>>& StoredProps() const { return FBag; }

    /// Bytes that a form file stores beside the published properties; nil if there are none.
    const std::string* Blob(TName name) const;
    /// Kept as they are; an object that knows what they mean takes them apart.
    virtual void StoreBlob(TName name, std::string bytes);

    HToolkit& Kit() const { return FKit; }
    const HClassDef& Def() const { return FDef; }
    const std::string& ClassName() const { return ClassType().Name(); }
    /// From here on the object has no operations; its storage goes when no message is being handled any more.
    bool Dead() const { return FDead; }

    /// A sub-object that dies with this one, such as a font or a list of strings.
    HObject& Adopt(std::unique_ptr<HObject> part);

 protected:
    void MarkDead() { FDead = true; }

 private:
    HToolkit& FKit;
    const HClassDef& FDef;
    const std::uint64_t FRef;
    bool FDead = false;
    std::vector<std::pair<TName, TPropValue>> FBag;
    std::vector<std::pair<TName, std::string>> FBlobs;
    std::vector<std::unique_ptr<HObject>> FParts;
};

/// Adds the operations of one toolkit class to the chain.
template <class Base, class T>
class With : public Base, public T {
 public:
    using Base::Base;
    void* Facet(TFacetId id) override {
        if (id != T::Id) return Base::Facet(id);
        return this->Dead() ? nullptr : static_cast<T*>(this);
    }
};

}  // namespace rux
