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

// Major, minor and revision of the version resource, such as "3.1.27". The build number is not shown.
std::wstring Version();
std::wstring VersionText(const VS_FIXEDFILEINFO& info);

}  // namespace platform::module
