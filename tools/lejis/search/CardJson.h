#pragma once

#include "text/Json.h"

#include <ole2.h>
#include <windows.h>

namespace lejis_client {

// A card with every field under its own name: collections as lists, dates as 2024-03-09T14:30:00, Null as null.
Json CardJson(IDispatch* card);

}  // namespace lejis_client
