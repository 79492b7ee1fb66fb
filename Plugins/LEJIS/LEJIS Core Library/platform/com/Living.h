// Which objects keep the module in memory, by the names of their classes. Only builds with checks keep the list.
#pragma once

#include <typeinfo>

#ifdef LIST_LIVING_OBJECTS
#include <string>
#include <vector>
#endif

namespace platform::living {

// The class of an object, told only when it is asked for: a constructor of a base does not know it yet.
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
