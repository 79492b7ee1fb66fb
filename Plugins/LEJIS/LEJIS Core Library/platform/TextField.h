// The text fields of an object, held one after the other in one block of memory: for objects that come in thousands and
// have many short texts each.
#pragma once

#include "platform/TextArgument.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

class TextField;

// The memory of an object's fields. The fields are the members that follow it, with no other member between them.
class TextBlock {
public:
    TextBlock() = default;
    TextBlock(const TextBlock&) = delete;
    TextBlock& operator=(const TextBlock&) = delete;

    // Empties all fields and keeps their memory for others.
    void Clear();

    // Frees the memory that the fields do not need. Throws when memory is short, and then leaves all fields as they
    // were.
    void Fit();

private:
    friend class TextField;

    TextField* First() { return reinterpret_cast<TextField*>(this + 1); }
    bool IsOwn(std::wstring_view text) const;
    // Puts `text` in the place of some characters: Replace in the present memory, Rebuild in new memory.
    void Replace(size_t begin, size_t oldLength, std::wstring_view text, size_t lengthAfter);
    void Rebuild(size_t begin, size_t oldLength, std::wstring_view text, size_t lengthAfter, size_t capacity);

    std::unique_ptr<wchar_t[]> characters_;
    uint32_t capacity_ = 0;
};

// One text. It is assigned, compared, copied into a std::wstring, or passed as a TextArgument. Setting a field moves
// the characters of the fields after it, so a field gives no view of its characters.
//
// A field is four bytes: its length, and whether it is the first or the last of its object. The first field
// leads to the block; a pointer in each field would take as much memory as the texts.
class TextField {
public:
    // Throws when the field does not follow the block or another of its fields.
    explicit TextField(TextBlock& block);
    TextField(const TextField&) = delete;

    // The text may be a field of the same object, or a part of one. Both operators throw when memory is short, and then
    // leave all fields as they were.
    TextField& operator=(const TextArgument& text) {
        Set(text.View());
        return *this;
    }
    TextField& operator=(const TextField& other) {
        Set(other.View());
        return *this;
    }

    operator std::wstring() const { return std::wstring(View()); }
    operator TextArgument() const { return View(); }

    bool empty() const { return length_ == 0; }
    size_t size() const { return length_; }

    friend bool operator==(const TextField& one, std::wstring_view other) { return one.View() == other; }
    friend bool operator==(const TextField& one, const TextField& other) { return one.View() == other.View(); }

private:
    friend class TextBlock;

    // The view is valid until a field of the object is set.
    std::wstring_view View() const;
    void Set(std::wstring_view text);

    const TextField* First() const;
    TextBlock& Block() const { return *(reinterpret_cast<TextBlock*>(const_cast<TextField*>(First())) - 1); }
    // The lengths of the fields before this one, and of those after it.
    size_t Before() const;
    size_t After() const;

    uint32_t length_ : 30;
    uint32_t isFirst_ : 1;
    uint32_t isLast_ : 1;
};

static_assert(sizeof(TextField) == 4 && sizeof(TextBlock) % alignof(TextField) == 0);

inline const TextField* TextField::First() const {
    const TextField* first = this;
    while (!first->isFirst_) --first;
    return first;
}

inline size_t TextField::Before() const {
    size_t length = 0;
    for (const TextField* field = this; !field->isFirst_;) length += (--field)->length_;
    return length;
}

inline std::wstring_view TextField::View() const { return {Block().characters_.get() + Before(), length_}; }

}  // namespace platform
