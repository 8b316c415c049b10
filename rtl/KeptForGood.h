// A value that any thread may refer to for as long as the program or library that holds it lives.
#pragma once

#include <atomic>
#include <utility>

namespace rux {

/// Holds the newest of the values that were set. Older ones are kept, since somebody may still read them;
/// there are few, as such values are set while a process starts. All go with the holder, which is a static
/// one: a library that is unloaded leaves nothing behind.
template <class T>
class TKeptForGood {
 public:
    constexpr TKeptForGood() = default;
    TKeptForGood(const TKeptForGood&) = delete;
    TKeptForGood& operator=(const TKeptForGood&) = delete;
    ~TKeptForGood() {
        for (TNode* node = FNewest.exchange(nullptr); node;) delete std::exchange(node, node->Older);
    }

    void Set(T value) {
        auto* node = new TNode{std::move(value), FNewest.load(std::memory_order_relaxed)};
        while (!FNewest.compare_exchange_weak(node->Older, node, std::memory_order_release,
                                              std::memory_order_relaxed)) {
        }
    }
    /// The newest value; nullptr before the first.
    const T* Get() const {
        const TNode* node = FNewest.load(std::memory_order_acquire);
        return node ? &node->Value : nullptr;
    }

 private:
    struct TNode {
        T Value;
        TNode* Older;
    };
    std::atomic<TNode*> FNewest{nullptr};
};

}  // namespace rux
