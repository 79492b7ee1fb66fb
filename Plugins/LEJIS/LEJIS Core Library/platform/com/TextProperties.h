// The text properties of a class whose objects come in thousands: all texts of an object lie in one block of memory.
//
// The class lists them in a table, which is a macro that hands each name to another macro, and names the table in its
// public part: TEXT_PROPERTIES(VEHICLE_TEXTS). That makes of each name the accessors inside, Make() and SetMake(text),
// and those of the interface. Make() gives a copy: a view would end where another text of the same object is set.
#pragma once

#include "platform/com/Properties.h"
#include "platform/TextBlock.h"

#include <string>
#include <string_view>

#define TEXT_PROPERTIES(TABLE)                              \
private:                                                    \
    enum TextNumber : size_t { TABLE(TEXT_NUMBER) kTexts }; \
    platform::TextBlock<kTexts> texts_;                     \
                                                            \
public:                                                     \
    TABLE(TEXT_ACCESSORS)

#define TEXT_NUMBER(Name) k##Name,

#define TEXT_ACCESSORS(Name)                                                                                      \
    std::wstring Name() const { return std::wstring(texts_.View(k##Name)); }                                      \
    void Set##Name(std::wstring_view text) { texts_.Set(k##Name, text); }                                         \
    STDMETHODIMP get_##Name(BSTR* result) override { return platform::ReturnText(texts_.View(k##Name), result); } \
    STDMETHODIMP put_##Name(BSTR newValue) override {                                                             \
        return platform::AssignText(newValue, [this](std::wstring_view text) { Set##Name(text); });               \
    }
