// What the nullable holders raise.
#pragma once

#include "platform/ComError.h"

#include <oaidl.h>
#include <windows.h>

#include <string>

namespace lejis {

// The value's type is not one that the holder takes.
platform::ComError CannotAssign(const VARIANT& value, const std::wstring& holder);

// The value's type is right and its content is not: "Not a valid date."
platform::ComError NotAValid(const std::wstring& kind);

}  // namespace lejis
