#pragma once

#include <string>

namespace lejis_client {

// Something in an incident file that the library does not read, and LEJIS will not get.
struct Loss {
    int line;
    // A sentence.
    std::wstring text;
    // Whether the library cannot read its card to the end because of it.
    bool isFatal = false;
};

}  // namespace lejis_client
