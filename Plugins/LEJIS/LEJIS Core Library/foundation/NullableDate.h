// The holder of a date, and the texts of dates and times as LEJIS writes them.
#pragma once

#include "platform/com/ComObject.h"

#include <comutil.h>
#include <TVLejisCore.h>

#include <optional>
#include <string>

namespace lejis {

// Null, or a date and time. A failed assignment leaves it as it was.
class NullableDate final : public platform::ComObject<::NullableDate, INullableDate> {
public:
    STDMETHODIMP get_Value(VARIANT* result) override;
    STDMETHODIMP put_Value(VARIANT newValue) override;

    // Takes null, a date, or a text that is a date under the user's regional settings. Throws for anything else.
    void Assign(const VARIANT& value);
    void Set(std::optional<DATE> date) { date_ = date; }

    const std::optional<DATE>& Date() const { return date_; }

private:
    std::optional<DATE> date_;
};

// "yyyy-mm-dd", for example 2007-03-09; empty for an empty holder.
std::wstring FormatNullableDate(const NullableDate& holder);

// "hh:nn:ss" on the 24-hour clock, for example 14:05:00; empty for an empty holder.
std::wstring FormatNullableTime(const NullableDate& holder);

}  // namespace lejis
