#include "text/IsoTime.h"

#include <cwchar>

namespace lejis_client {

std::wstring IsoTime(DATE date) {
    SYSTEMTIME time = {};
    if (!VariantTimeToSystemTime(date, &time)) return {};
    wchar_t text[32];
    std::swprintf(text, std::size(text), L"%04u-%02u-%02uT%02u:%02u:%02u", time.wYear, time.wMonth, time.wDay,
                  time.wHour, time.wMinute, time.wSecond);
    return text;
}

}  // namespace lejis_client
