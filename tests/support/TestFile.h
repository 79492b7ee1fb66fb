// Files that test programs read.
#pragma once

#include <string>

namespace support {

// The file of this name beside the program, as a kit brings it along, or else the one at builtPath.
std::wstring TestFile(const std::wstring& name, const std::wstring& builtPath);

}  // namespace support
