// What callers hand in as arguments, looked at before anybody follows it: the platform's dispatcher follows all of it.
#pragma once

#include <oaidl.h>
#include <windows.h>

namespace platform {

// Whether the value is a reference to nothing.
bool LeadsNowhere(const VARIANT& value);

// Whether the arguments are there, as many as are named, and lead somewhere.
bool IsSound(const DISPPARAMS& parameters);

}  // namespace platform
