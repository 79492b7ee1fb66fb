// What the library makes of a value that is not of its kind. The conversions are the library's own.
#pragma once

#include "files/IncidentFormat.h"

#include <optional>
#include <string>
#include <string_view>

namespace lejis_client {

struct ValueFault {
    // How a sentence ends that begins with the element and its value.
    std::wstring ending;
    // Whether the card cannot be read to the end because of it.
    bool isFatal = false;
};

// Nothing when the library reads the value as it stands. The value has no white space at its ends.
std::optional<ValueFault> FaultOf(Content content, std::wstring_view value);

}  // namespace lejis_client
