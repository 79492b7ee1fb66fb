#include "model/FieldReading.h"

#include "platform/Conversions.h"

namespace lejis {

void ReadFlag(std::wstring_view text, bool& flag) { flag = platform::ParseBoolean(text).value_or(flag); }

void ReadMeasure(std::wstring_view text, NullableInteger& holder) {
    if (const auto number = platform::ParseNumber(text)) holder.Assign(_variant_t(*number));
}

void ReadNumber(std::wstring_view text, NullableInteger& holder) {
    if (platform::ParseNumber(text)) {
        holder.Assign(_variant_t(platform::LeadingNumber(text)));
    } else {
        holder.Set(std::nullopt);
    }
}

}  // namespace lejis
