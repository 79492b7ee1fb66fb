// The public properties of a class, one line a property: the value by its public name and the accessors of its
// interface.
#pragma once

#include "platform/com/Guard.h"
#include "platform/Text.h"
#include "platform/TextField.h"

#include <oleauto.h>
#include <windows.h>
#include <wrl/client.h>

#include <new>
#include <string>
#include <string_view>

namespace platform {

HRESULT ReturnText(const TextArgument& value, BSTR* result) noexcept;
HRESULT ReturnFlag(bool value, VARIANT_BOOL* result) noexcept;

// Hands a client's text, which may be null, to `assign`; a null text is an empty one.
template <typename Assign>
HRESULT AssignText(BSTR newValue, const Assign& assign) noexcept {
    try {
        assign(std::wstring_view(newValue, SysStringLen(newValue)));
        return S_OK;
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    }
}

template <typename Class, typename Interface>
HRESULT ReturnObject(const Microsoft::WRL::ComPtr<Class>& object, Interface** result) noexcept {
    if (!result) return E_POINTER;
    *result = Microsoft::WRL::ComPtr<Class>(object).Detach();
    return S_OK;
}

}  // namespace platform

// A text that clients read; TEXT_PROPERTY is one that they set too.
#define READ_ONLY_TEXT_PROPERTY(Name) \
    std::wstring Name;                \
    STDMETHODIMP get_##Name(BSTR* result) override { return platform::ReturnText(Name, result); }

#define TEXT_PROPERTY(Name)                                                                     \
    READ_ONLY_TEXT_PROPERTY(Name)                                                               \
    STDMETHODIMP put_##Name(BSTR newValue) override {                                           \
        return platform::AssignText(newValue, [this](std::wstring_view text) { Name = text; }); \
    }

#define BOOLEAN_PROPERTY(Name)                                                                            \
    bool Name = false;                                                                                    \
    STDMETHODIMP get_##Name(VARIANT_BOOL* result) override { return platform::ReturnFlag(Name, result); } \
    STDMETHODIMP put_##Name(VARIANT_BOOL newValue) override {                                             \
        Name = newValue != VARIANT_FALSE;                                                                 \
        return S_OK;                                                                                      \
    }

#define LONG_PROPERTY(Name)                           \
    long Name = 0;                                    \
    STDMETHODIMP get_##Name(long* result) override {  \
        if (!result) return E_POINTER;                \
        *result = Name;                               \
        return S_OK;                                  \
    }                                                 \
    STDMETHODIMP put_##Name(long newValue) override { \
        Name = newValue;                              \
        return S_OK;                                  \
    }

// An object that belongs to this one, made with it; clients fill it in place.
#define OBJECT_PROPERTY(Class, Name)                       \
    platform::Ref<Class> Name = platform::Create<Class>(); \
    STDMETHODIMP get_##Name(I##Class** result) override { return platform::ReturnObject<Class>(Name, result); }

// The text fields of a class whose objects come in thousands, one line a field: the member by its public name, and the
// accessors of its interface. TEXT_BLOCK() stands before the first of them, and no other member between them.
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
