// Where this Windows keeps its own programs.
#pragma once

#include <string>

namespace kit {

// A 64-bit Windows, on which both bitnesses run.
bool HasBothBitnesses();

// C:\Windows, and its folder of the programs of one bitness ("x86" or "x64"), as this program sees it.
std::wstring WindowsFolder();
std::wstring SystemFolder(const std::wstring& bits);

// "" on Windows.
std::string WineVersion();

}  // namespace kit
