#include "com/Values.h"

#include "com/Numbers.h"
#include "com/Texts.h"
#include "platform/Text.h"

#include <oleauto.h>

#include <algorithm>
#include <array>
#include <cstring>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

// The types that a value may have by itself.
constexpr VARTYPE kPlainTypes[] = {VT_EMPTY, VT_NULL, VT_I2,   VT_I4,      VT_R4,       VT_R8,     VT_CY,  VT_DATE,
                                   VT_BSTR,  VT_BOOL, VT_I1,   VT_DECIMAL, VT_UI1,      VT_UI2,    VT_UI4, VT_I8,
                                   VT_UI8,   VT_INT,  VT_UINT, VT_ERROR,   VT_DISPATCH, VT_UNKNOWN};

// The types of an array's elements.
constexpr VARTYPE kElementTypes[] = {VT_UI1,  VT_I1,       VT_I2,      VT_UI2,     VT_I4,    VT_UI4,  VT_INT,
                                     VT_UINT, VT_R4,       VT_R8,      VT_CY,      VT_DATE,  VT_BOOL, VT_DECIMAL,
                                     VT_BSTR, VT_DISPATCH, VT_UNKNOWN, VT_VARIANT, VT_ERROR, VT_I8,   VT_UI8};

// Types that no value of automation has; some of the numbers stand for nothing at all.
constexpr VARTYPE kForeignTypes[] = {
    VT_VARIANT,     15,         VT_VOID,   VT_HRESULT, VT_PTR,       VT_SAFEARRAY, VT_CARRAY,
    VT_USERDEFINED, VT_LPSTR,   VT_LPWSTR, VT_INT_PTR, VT_UINT_PTR,  VT_FILETIME,  VT_BLOB,
    VT_STREAM,      VT_STORAGE, VT_CF,     VT_CLSID,   VT_BSTR_BLOB, 100,          0x0FFE};

bool IsObject(VARTYPE type) { return type == VT_DISPATCH || type == VT_UNKNOWN; }

}  // namespace

Values::~Values() {
    for (SAFEARRAY* array : arrays_) SafeArrayDestroy(array);
    for (BSTR text : texts_) SysFreeString(text);
}

BSTR Values::Kept(BSTR text) {
    texts_.push_back(text);
    return text;
}

IUnknown* Values::Kept(ComPtr<IUnknown> object) {
    objects_.push_back(std::move(object));
    return objects_.back().Get();
}

BSTR Values::Text() {
    if (case_.OneIn(10)) return nullptr;
    const std::wstring text = AnyText(case_);
    return Kept(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
}

IDispatch* Values::Object() {
    ComPtr<IDispatch> object;
    if (const ComPtr<IUnknown> made = makeObject_()) made.As(&object);
    Kept(ComPtr<IUnknown>(object.Get()));
    return object.Get();
}

VARIANT Values::AnyToDispatch() {
    VARIANT value = Any();
    const VARIANT* behind = &value;
    if (V_VT(behind) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(behind)) behind = V_VARIANTREF(behind);
    const VARTYPE type = V_VT(behind);
    if ((type & VT_TYPEMASK) != VT_UNKNOWN && type != (VT_BYREF | VT_DISPATCH)) return value;
    constexpr uint32_t kOnceIn = 50;
    if (!case_.OneIn(kOnceIn)) return VARIANT{};
    case_.PardonLeaks();
    return value;
}

VARIANT Values::OfType(VARTYPE type) { return type == VT_VARIANT ? Any() : Plain(type); }

VARIANT Values::Any(int depth) {
    const uint32_t kind = case_.Below(10);
    if (depth > 0 && (kind == 6 || kind == 7)) return Reference(depth - 1);
    if (depth > 0 && kind == 8) return Array();
    if (kind == 9) return Broken();
    return Plain(case_.Pick(kPlainTypes));
}

VARIANT Values::Plain(VARTYPE type) {
    VARIANT value{};
    V_VT(&value) = type;
    switch (type) {
        case VT_EMPTY:
        case VT_NULL:
            break;
        case VT_BSTR:
            V_BSTR(&value) = Text();
            break;
        case VT_DISPATCH:
            V_DISPATCH(&value) = Object();
            break;
        case VT_UNKNOWN:
            V_UNKNOWN(&value) = Kept(makeObject_());
            break;
        case VT_R8:
        case VT_DATE:
            V_R8(&value) = AnyDouble(case_);
            break;
        case VT_R4: {
            const uint32_t bits = case_.Bits();
            V_R4(&value) = static_cast<float>(static_cast<int32_t>(bits));
            if (case_.OneIn(2)) std::memcpy(&V_R4(&value), &bits, sizeof bits);
            break;
        }
        case VT_DECIMAL:
            V_DECIMAL(&value).Hi32 = case_.Bits();
            V_DECIMAL(&value).Lo64 = static_cast<ULONGLONG>(AnyInteger(case_));
            // More than 28 decimals and other signs than the two are no decimal numbers.
            V_DECIMAL(&value).scale = static_cast<BYTE>(case_.Below(32));
            V_DECIMAL(&value).sign = static_cast<BYTE>(case_.OneIn(2) ? 0x80 : case_.Below(3));
            V_VT(&value) = VT_DECIMAL;
            break;
        default:
            V_I8(&value) = AnyInteger(case_);
    }
    return value;
}

// Behind the reference stands a whole value, so that it can be followed whatever its type says.
VARIANT Values::Reference(int depth) {
    VARIANT value{};
    storage_.push_back(Any(depth));
    VARIANT& target = storage_.back();
    if (case_.OneIn(3) || (V_VT(&target) & VT_BYREF) || V_VT(&target) <= VT_NULL) {
        V_VT(&value) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&value) = &target;
    } else {
        V_VT(&value) = static_cast<VARTYPE>(VT_BYREF | V_VT(&target));
        V_BYREF(&value) = V_VT(&target) == VT_DECIMAL ? static_cast<void*>(&target) : &V_I8(&target);
    }
    return value;
}

VARIANT Values::Array() {
    VARIANT value{};
    const VARTYPE type = case_.Pick(kElementTypes);
    V_VT(&value) = static_cast<VARTYPE>(VT_ARRAY | type);
    V_ARRAY(&value) = case_.OneIn(12) ? nullptr : NewArray(type);
    return value;
}

SAFEARRAY* Values::NewArray(VARTYPE type) {
    std::array<SAFEARRAYBOUND, 5> bounds{};
    const UINT dimensions = 1 + case_.Below(bounds.size());
    for (SAFEARRAYBOUND& bound : bounds) {
        bound.cElements = case_.Below(4);
        bound.lLbound = static_cast<LONG>(case_.OneIn(4) ? case_.Bits() : 0);
    }
    SAFEARRAY* const array = SafeArrayCreate(type, dimensions, bounds.data());
    if (!array) return nullptr;
    arrays_.push_back(array);
    Fill(array, type);
    // The flag marks an array that must not be resized.
    if (case_.OneIn(10)) array->fFeatures |= FADF_FIXEDSIZE;
    return array;
}

void Values::Fill(SAFEARRAY* array, VARTYPE type) {
    void* data = nullptr;
    UINT elements = 1;
    for (USHORT dimension = 0; dimension < array->cDims; ++dimension) elements *= array->rgsabound[dimension].cElements;
    if (elements == 0 || FAILED(SafeArrayAccessData(array, &data))) return;
    // The array owns what it holds; a few elements are enough.
    for (UINT index = 0; index < std::min(elements, 3U); ++index) {
        if (type == VT_VARIANT) {
            VARIANT item = Plain(case_.Pick(kPlainTypes));
            VariantCopy(&static_cast<VARIANT*>(data)[index], &item);
        } else if (type == VT_BSTR) {
            static_cast<BSTR*>(data)[index] = platform::ToBstr(AnyText(case_)).Detach();
        } else if (IsObject(type)) {
            static_cast<IUnknown**>(data)[index] = ComPtr<IDispatch>(Object()).Detach();
        }
    }
    SafeArrayUnaccessData(array);
}

VARIANT Values::Broken() {
    VARIANT value{};
    V_VT(&value) = case_.Pick(kForeignTypes);
    switch (case_.Below(4)) {
        case 1:
            V_VT(&value) |= VT_VECTOR;
            break;
        case 2:
            V_VT(&value) = static_cast<VARTYPE>(case_.Pick(kPlainTypes) | VT_VECTOR);
            break;
        case 3:
            // A reference or an array to nowhere.
            V_VT(&value) =
                static_cast<VARTYPE>(case_.Pick(kPlainTypes) | (case_.OneIn(2) ? VT_BYREF : VT_BYREF | VT_ARRAY));
            break;
    }
    return value;
}

std::wstring Described(const VARIANT& value) {
    std::wstring text = L"{type " + std::to_wstring(V_VT(&value));
    if (V_VT(&value) == VT_BSTR) {
        text += V_BSTR(&value) ? L" '" + platform::CopyText(V_BSTR(&value)) + L"'" : L" null";
    } else if (V_VT(&value) == VT_R8 || V_VT(&value) == VT_DATE) {
        text += L" " + std::to_wstring(V_R8(&value));
    } else if (V_VT(&value) == (VT_BYREF | VT_VARIANT) && V_VARIANTREF(&value)) {
        text += L" to " + Described(*V_VARIANTREF(&value));
    } else {
        text += L" " + std::to_wstring(V_I8(&value));
    }
    return text + L"}";
}

}  // namespace fuzzing
