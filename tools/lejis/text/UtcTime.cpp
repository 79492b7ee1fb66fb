#include "text/UtcTime.h"

#include <windows.h>

#include <cstdio>

namespace lejis_client {

std::string UtcNow() {
    SYSTEMTIME now;
    GetSystemTime(&now);
    char text[64];
    std::snprintf(text, sizeof text, "%04u-%02u-%02uT%02u:%02u:%02u.%03uZ", now.wYear, now.wMonth, now.wDay, now.wHour,
                  now.wMinute, now.wSecond, now.wMilliseconds);
    return text;
}

}  // namespace lejis_client
