// The DLL (or test program) that this code is part of.
#pragma once

#include <windows.h>

#include <string>

namespace platform::module {

// Objects and locks that keep the module in memory.
void Retain() noexcept;
void Release() noexcept;
bool InUse() noexcept;

HMODULE Handle();
std::wstring Path();

// The four numbers of the version resource.
struct Version {
    unsigned majorNumber;
    unsigned minorNumber;
    unsigned build;
    unsigned revision;
};
Version ReadVersion();

}  // namespace platform::module
