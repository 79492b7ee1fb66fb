#include "inquiry/NumberReading.h"

#include "platform/Conversions.h"

namespace lejis {

void ReadNumber(const std::wstring& text, NullableInteger& holder) {
    if (platform::ParseNumber(text)) {
        holder.Assign(_variant_t(platform::LeadingNumber(text)));
    } else {
        holder.Set(std::nullopt);
    }
}

}  // namespace lejis
