// Counted references: the one kind of shared ownership in the system.
#pragma once

#include <atomic>
#include <concepts>
#include <cstddef>
#include <utility>

namespace rux {

/// What a counted reference needs of its target.
class IInterface {
 public:
    virtual void AddRef() noexcept = 0;
    virtual void Release() noexcept = 0;

 protected:
    virtual ~IInterface() = default;
};

/// A counted reference to an interface; nil by default.
template <class T>
class TIntf {
 public:
    TIntf() = default;
    TIntf(std::nullptr_t) {}
    explicit TIntf(T* target) : FTarget(target) { Acquire(); }
    TIntf(const TIntf& other) : FTarget(other.FTarget) { Acquire(); }
    TIntf(TIntf&& other) noexcept : FTarget(std::exchange(other.FTarget, nullptr)) {}
    template <class U>
    requires std::convertible_to<U*, T*> TIntf(const TIntf<U>& other) : FTarget(other.Get()) { Acquire(); }
    TIntf& operator=(TIntf other) noexcept {
        std::swap(FTarget, other.FTarget);
        return *this;
    }
    ~TIntf() {
        if (FTarget) FTarget->Release();
    }

    T* Get() const { return FTarget; }
    T* operator->() const { return FTarget; }
    T& operator*() const { return *FTarget; }
    explicit operator bool() const { return FTarget != nullptr; }
    friend bool operator==(const TIntf& a, const TIntf& b) { return a.FTarget == b.FTarget; }

    /// Gives the count away: the caller now owns one reference (for a message in flight).
    T* Detach() { return std::exchange(FTarget, nullptr); }
    /// Takes over a reference that somebody detached.
    static TIntf Adopt(T* target) {
        TIntf result;
        result.FTarget = target;
        return result;
    }

 private:
    void Acquire() {
        if (FTarget) FTarget->AddRef();
    }
    T* FTarget = nullptr;
};

/// Implements the counting of interface `I`. `Counter` is a plain int for objects that never leave the
/// user-interface thread.
template <class I, class Counter = std::atomic<int>>
class TInterfacedObject : public I {
 public:
    void AddRef() noexcept override { ++FRefCount; }
    void Release() noexcept override {
        if (--FRefCount == 0) delete this;
    }
    int RefCount() const { return FRefCount; }

 protected:
    TInterfacedObject() = default;
    TInterfacedObject(const TInterfacedObject&) = delete;
    TInterfacedObject& operator=(const TInterfacedObject&) = delete;
    ~TInterfacedObject() override = default;

 private:
    Counter FRefCount{0};
};

/// Makes a counted object.
template <class T, class... Args>
TIntf<T> MakeIntf(Args&&... args) {
    return TIntf<T>(new T(std::forward<Args>(args)...));
}

}  // namespace rux
