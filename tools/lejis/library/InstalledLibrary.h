// What the registry says about the library, for programs of either bitness.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace lejis_client {

enum class Bitness { k32 = 32, k64 = 64 };

inline constexpr Bitness kOwnBitness = sizeof(void*) == 8 ? Bitness::k64 : Bitness::k32;
inline constexpr Bitness kOtherBitness = sizeof(void*) == 8 ? Bitness::k32 : Bitness::k64;

bool SystemHas(Bitness bitness);

// Where the library is registered, by its foremost classes; nothing when none of them is.
std::optional<std::wstring> RegisteredFile(Bitness bitness);

// Where one class is registered.
std::optional<std::wstring> RegisteredFile(Bitness bitness, const CLSID& classId);

}  // namespace lejis_client
