// What the nullable holders throw.
#pragma once

#include "platform/ComError.h"

#include <oaidl.h>
#include <windows.h>

#include <string>

namespace lejis {

// The holder does not take values of this type.
platform::ComError CannotAssign(const VARIANT& value, const std::wstring& holder);

// The holder takes values of this type, but not this content: "Not a valid date."
platform::ComError NotAValid(const std::wstring& kind);

}  // namespace lejis
