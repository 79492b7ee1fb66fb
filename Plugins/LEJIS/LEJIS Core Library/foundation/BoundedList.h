#pragma once

#include <array>
#include <cstddef>
#include <span>

namespace lejis {

// A list without memory of its own to allocate. Its owner looks whether it is full.
template <typename Item, size_t kCapacity>
class BoundedList {
public:
    bool IsFull() const { return count_ == kCapacity; }
    size_t Count() const { return count_; }
    const Item& Last() const { return items_[count_ - 1]; }
    std::span<const Item> Items() const { return {items_.data(), count_}; }

    void Add(const Item& item) { items_[count_++] = item; }
    void Shorten(size_t count) { count_ = count; }

private:
    std::array<Item, kCapacity> items_;
    size_t count_ = 0;
};

}  // namespace lejis
