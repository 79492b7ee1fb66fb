#include "text/Trimmed.h"

namespace lejis_client {

std::wstring_view Trimmed(std::wstring_view text) {
    const std::size_t begin = text.find_first_not_of(kWhiteSpace);
    if (begin == std::wstring_view::npos) return {};
    return text.substr(begin, text.find_last_not_of(kWhiteSpace) + 1 - begin);
}

}  // namespace lejis_client
