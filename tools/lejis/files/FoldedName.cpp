#include "files/FoldedName.h"

#include <windows.h>

namespace lejis_client {

std::wstring FoldedName(std::wstring_view name) {
    std::wstring folded(name.size(), L'\0');
    LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, name.data(), static_cast<int>(name.size()), folded.data(),
                  static_cast<int>(folded.size()), nullptr, nullptr, 0);
    return folded;
}

}  // namespace lejis_client
