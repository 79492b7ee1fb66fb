#include "platform/Wine.h"

#include <windows.h>

namespace platform::wine {
namespace {

std::optional<bool>& Pretended() {
    static std::optional<bool> here;
    return here;
}

bool ExportsItsVersion() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

}  // namespace

bool IsHere() {
    static const bool found = ExportsItsVersion();
    return Pretended().value_or(found);
}

void Pretend(std::optional<bool> here) { Pretended() = here; }

}  // namespace platform::wine
