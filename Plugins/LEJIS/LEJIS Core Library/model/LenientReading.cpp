#include "model/LenientReading.h"

#include "platform/Conversions.h"

namespace lejis {

void ReadFlag(const std::wstring& text, bool& flag) { flag = platform::ParseBoolean(text).value_or(flag); }

void ReadMeasure(const std::wstring& text, NullableInteger& holder) {
    if (const auto number = platform::ParseNumber(text)) holder.Assign(_variant_t(*number));
}

}  // namespace lejis
