#include "support/TestFile.h"

#include <windows.h>

namespace support {

std::wstring TestFile(const std::wstring& name, const std::wstring& builtPath) {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    path.replace(path.find_last_of(L'\\') + 1, std::wstring::npos, name);
    return GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES ? builtPath : path;
}

}  // namespace support
