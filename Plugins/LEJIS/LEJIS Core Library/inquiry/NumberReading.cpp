#include "inquiry/NumberReading.h"

#include "platform/Conversions.h"

namespace lejis {

void ReadNumber(std::wstring_view text, NullableInteger& holder) {
    if (platform::ParseNumber(text)) {
        holder.Assign(_variant_t(platform::LeadingNumber(text)));
    } else {
        holder.Set(std::nullopt);
    }
}

}  // namespace lejis
