// The classes that clients can create, as a library's own type library lists them.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lejis_client {

struct ClassEntry {
    CLSID id;
    std::wstring name;
};

// Of a library of either bitness. Raises a platform::ComError when its file holds no type library.
std::vector<ClassEntry> CreatableClasses(const std::wstring& file);

}  // namespace lejis_client
