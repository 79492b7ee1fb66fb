// The text fields of a class whose objects come in thousands, one line a field: the member by its public name, and the
// accessors of its interface. TEXT_BLOCK() stands before the first of them, and no other member between them.
#pragma once

#include "platform/com/Properties.h"
#include "platform/TextField.h"

#define TEXT_BLOCK()            \
private:                        \
    platform::TextBlock texts_; \
                                \
public:

#define TEXT_FIELD(Name)                                                                          \
    platform::TextField Name{texts_};                                                             \
    STDMETHODIMP get_##Name(BSTR* result) override { return platform::ReturnText(Name, result); } \
    STDMETHODIMP put_##Name(BSTR newValue) override {                                             \
        return platform::AssignText(newValue, [this](std::wstring_view text) { Name = text; });   \
    }
