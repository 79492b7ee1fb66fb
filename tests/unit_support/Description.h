#pragma once

#include <oaidl.h>

#include <string>

namespace support {

// All properties of an object of the library and of the objects in it, as an automation client reads them: what two
// ways of reading cards are compared by.
std::wstring Description(IDispatch* object);

}  // namespace support
