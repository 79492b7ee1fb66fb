#pragma once

#include "platform/com/ComObject.h"

#include <comutil.h>
#include <TVLejisCore.h>

#include <optional>

namespace lejis {

// Null, or a date and time. A failed assignment leaves it as it was.
class NullableDate final : public platform::ComObject<::NullableDate, INullableDate> {
public:
    STDMETHODIMP get_Value(VARIANT* result) override;
    STDMETHODIMP put_Value(VARIANT newValue) override;

    // Takes null, a date, or a text that is a date under the user's regional settings; raises for anything else.
    void Assign(const VARIANT& value);
    void Set(std::optional<DATE> date) { date_ = date; }

    const std::optional<DATE>& Date() const { return date_; }

private:
    std::optional<DATE> date_;
};

}  // namespace lejis
