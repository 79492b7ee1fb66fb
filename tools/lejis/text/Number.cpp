#include "text/Number.h"

namespace lejis_client {

std::optional<long> ParseNumber(const std::wstring& text, long least, long most) {
    if (text.empty()) return std::nullopt;
    long number = 0;
    for (const wchar_t character : text) {
        if (character < L'0' || character > L'9') return std::nullopt;
        const long digit = character - L'0';
        if (number > (most - digit) / 10) return std::nullopt;
        number = number * 10 + digit;
    }
    if (number < least) return std::nullopt;
    return number;
}

}  // namespace lejis_client
