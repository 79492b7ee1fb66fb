#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <new>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

// A fixed number of texts, held one behind the other in one block of memory: for objects that come in thousands and
// have many short texts each. To set a text moves those behind it.
template <size_t kTexts>
class TextBlock {
public:
    TextBlock() = default;
    TextBlock(const TextBlock&) = delete;
    TextBlock& operator=(const TextBlock&) = delete;

    // Valid until a text is set.
    std::wstring_view View(size_t index) const { return {characters_.get() + Begin(index), lengths_[index]}; }

    // The text may be one of the block's own, or a part of one. Raises when memory is short; all texts are then as they
    // were.
    void Set(size_t index, std::wstring_view text) {
        const size_t length = Length() - lengths_[index] + text.size();
        if (length > capacity_ || (text.size() > lengths_[index] && IsOwn(text))) {
            Rebuild(index, text, RoundedUp(length));
        } else {
            Replace(index, text);
        }
        lengths_[index] = static_cast<uint32_t>(text.size());
    }

    // Empties all texts and keeps their memory for others.
    void Clear() { lengths_.fill(0); }

    // Gives back the memory that the texts do not need. Raises as Set does.
    void Fit() {
        if (const size_t length = Length(); length < capacity_) Rebuild(0, View(0), length);
    }

private:
    using Traits = std::char_traits<wchar_t>;

    // Room for more, since texts are set one after another: enough for all texts of most objects.
    static constexpr size_t kStep = 256;
    // No BSTR is longer.
    static constexpr size_t kMost = 0x3fffffff;

    static size_t RoundedUp(size_t length) {
        if (length > kMost) throw std::bad_alloc();
        return (length + kStep - 1) / kStep * kStep;
    }

    size_t Begin(size_t index) const { return std::accumulate(lengths_.begin(), lengths_.begin() + index, size_t{0}); }
    size_t Length() const { return Begin(kTexts); }

    bool IsOwn(std::wstring_view text) const {
        return !std::less<>()(text.data(), characters_.get()) &&
               std::less<>()(text.data(), characters_.get() + capacity_);
    }

    // Within the memory there is. A shorter text is moved before those behind it, for it may be a part of them; a
    // longer one comes from elsewhere.
    void Replace(size_t index, std::wstring_view text) {
        wchar_t* const begin = characters_.get() + Begin(index);
        const wchar_t* const end = begin + lengths_[index];
        const size_t behind = Length() - Begin(index + 1);
        if (text.size() <= lengths_[index]) Traits::move(begin, text.data(), text.size());
        Traits::move(begin + text.size(), end, behind);
        if (text.size() > lengths_[index]) Traits::copy(begin, text.data(), text.size());
    }

    // In new memory.
    void Rebuild(size_t index, std::wstring_view text, size_t capacity) {
        auto characters = capacity > 0 ? std::make_unique_for_overwrite<wchar_t[]>(capacity) : nullptr;
        const std::wstring_view all(characters_.get(), Length());
        wchar_t* at = characters.get();
        for (const std::wstring_view part : {all.substr(0, Begin(index)), text, all.substr(Begin(index + 1))}) {
            Traits::copy(at, part.data(), part.size());
            at += part.size();
        }
        characters_ = std::move(characters);
        capacity_ = static_cast<uint32_t>(capacity);
    }

    std::unique_ptr<wchar_t[]> characters_;
    uint32_t capacity_ = 0;
    std::array<uint32_t, kTexts> lengths_{};
};

}  // namespace platform
