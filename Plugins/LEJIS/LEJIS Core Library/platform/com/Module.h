// The DLL (or test program) that this code is part of, and the objects that keep it in memory.
#pragma once

#include <windows.h>

#include <string>
#include <typeinfo>
#include <vector>

namespace platform::module {

// Counts the objects and locks that keep the module in memory.
void Retain() noexcept;
void Release() noexcept;
bool InUse() noexcept;

HMODULE Handle();
std::wstring Path();

// Major, minor and revision of the version resource, such as "3.1.27". It has no build number.
std::wstring Version();
std::wstring VersionText(const VS_FIXEDFILEINFO& info);

}  // namespace platform::module

// Which objects keep the module in memory, by the names of their classes. Only builds with checks keep the list.
namespace platform::living {

// Tells the class of an object. It is asked late, because the constructor of a base does not know the class yet.
using ClassOf = const std::type_info& (*)(const void* object);

#ifdef LIST_LIVING_OBJECTS
void Enter(const void* object, ClassOf classOf) noexcept;
void Leave(const void* object) noexcept;

std::vector<std::string> Names();

// Writes the names to the debugger.
void Report() noexcept;
#else
inline void Enter(const void*, ClassOf) noexcept {}
inline void Leave(const void*) noexcept {}
inline void Report() noexcept {}
#endif

}  // namespace platform::living
