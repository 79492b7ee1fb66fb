// The holders of numbers: null, or one number.
#pragma once

#include "foundation/HolderErrors.h"
#include "platform/com/ComObject.h"
#include "platform/Conversions.h"

#include <TVLejisCore.h>

#include <optional>
#include <string>

namespace lejis {

// What NullableInteger and NullableLong are: null, or one number. A failed assignment leaves it as it was.
template <typename Coclass, typename Interface, typename Integer>
class NullableNumber : public platform::ComObject<Coclass, Interface> {
public:
    STDMETHODIMP get_Value(VARIANT* result) override {
        return this->Guard(result, [&] { return number_ ? _variant_t(*number_) : platform::Null(); });
    }

    STDMETHODIMP put_Value(VARIANT newValue) override {
        return this->Guard([&] { Assign(platform::Dereference(newValue)); });
    }

    // Takes null, or a number, which it rounds, halves to the even neighbour. Throws for anything else. A number out of
    // range becomes 0 without an error.
    void Assign(const VARIANT& value) {
        switch (V_VT(&value)) {
            case VT_NULL:
                number_.reset();
                return;
            case VT_I2:
            case VT_I4:
            case VT_R4:
            case VT_R8:
            case VT_UI1:
                // Hiding the overflow is deliberate: clients rely on 0 and no error.
                number_ = platform::RoundTo<Integer>(value).value_or(Integer{0});
                return;
            default:
                throw CannotAssign(value, platform::ClassNameOf(this->ClassId()));
        }
    }

    void Set(std::optional<Integer> number) { number_ = number; }

    const std::optional<Integer>& Number() const { return number_; }

private:
    std::optional<Integer> number_;
};

// Null, or a 16-bit integer.
class NullableInteger final : public NullableNumber<::NullableInteger, INullableInteger, short> {};

// Null, or a 32-bit integer.
class NullableLong final : public NullableNumber<::NullableLong, INullableLong, long> {};

// The number in decimal digits; empty for an empty holder.
template <typename Coclass, typename Interface, typename Integer>
std::wstring NumberText(const NullableNumber<Coclass, Interface, Integer>& holder) {
    return holder.Number() ? std::to_wstring(*holder.Number()) : std::wstring();
}

}  // namespace lejis
