#include "platform/TextField.h"

#include <functional>
#include <new>
#include <stdexcept>
#include <utility>

namespace platform {
namespace {

using Traits = std::char_traits<wchar_t>;

// Room for more, since fields are set one after another: enough for all texts of most objects.
constexpr size_t kStep = 256;
// No BSTR is longer, and no length of a field.
constexpr size_t kMaxLength = 0x3fffffff;

size_t RoundedUp(size_t length) {
    if (length > kMaxLength) throw std::bad_alloc();
    return (length + kStep - 1) / kStep * kStep;
}

}  // namespace

void TextBlock::Clear() {
    TextField* field = First();
    while (!field->isLast_) (field++)->length_ = 0;
    field->length_ = 0;
}

void TextBlock::Fit() {
    const size_t length = First()->length_ + First()->After();
    if (length < capacity_) Rebuild(0, 0, {}, length, length);
}

bool TextBlock::IsOwn(std::wstring_view text) const {
    return !std::less<>()(text.data(), characters_.get()) && std::less<>()(text.data(), characters_.get() + capacity_);
}

// A shorter text is moved before those after it, for it may be a part of them; a longer one comes from elsewhere.
void TextBlock::Replace(size_t begin, size_t oldLength, std::wstring_view text, size_t lengthAfter) {
    wchar_t* const to = characters_.get() + begin;
    if (text.size() <= oldLength) Traits::move(to, text.data(), text.size());
    Traits::move(to + text.size(), to + oldLength, lengthAfter);
    if (text.size() > oldLength) Traits::copy(to, text.data(), text.size());
}

void TextBlock::Rebuild(size_t begin, size_t oldLength, std::wstring_view text, size_t lengthAfter, size_t capacity) {
    auto characters = capacity > 0 ? std::make_unique_for_overwrite<wchar_t[]>(capacity) : nullptr;
    const std::wstring_view all(characters_.get(), begin + oldLength + lengthAfter);
    wchar_t* at = characters.get();
    for (const std::wstring_view part : {all.substr(0, begin), text, all.substr(begin + oldLength)}) {
        Traits::copy(at, part.data(), part.size());
        at += part.size();
    }
    characters_ = std::move(characters);
    capacity_ = static_cast<uint32_t>(capacity);
}

TextField::TextField(TextBlock& block) : length_(0), isFirst_(this == block.First()), isLast_(true) {
    if (isFirst_) return;
    if (!(this - 1)->isLast_) throw std::logic_error("a text field away from the others");
    (this - 1)->isLast_ = false;
}

void TextField::Set(std::wstring_view text) {
    TextBlock& block = Block();
    const size_t before = Before();
    const size_t after = After();
    const size_t length = before + text.size() + after;
    if (length > block.capacity_ || (text.size() > length_ && block.IsOwn(text))) {
        block.Rebuild(before, length_, text, after, RoundedUp(length));
    } else {
        block.Replace(before, length_, text, after);
    }
    length_ = static_cast<uint32_t>(text.size()) & kMaxLength;
}

size_t TextField::After() const {
    size_t length = 0;
    for (const TextField* field = this; !field->isLast_;) length += (++field)->length_;
    return length;
}

}  // namespace platform
