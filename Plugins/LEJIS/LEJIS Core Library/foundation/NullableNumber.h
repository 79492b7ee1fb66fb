#pragma once

#include "foundation/HolderErrors.h"
#include "platform/com/ComObject.h"
#include "platform/Conversions.h"

#include <optional>

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

    // Takes null or a number, rounding it, halves to the even neighbour; raises for anything else. A number out of
    // range becomes 0 and nobody is told.
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
                // An overflow is swallowed on purpose: clients rely on 0 and no error.
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

}  // namespace lejis
