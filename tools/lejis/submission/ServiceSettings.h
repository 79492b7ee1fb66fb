#pragma once

#include <string>

namespace lejis_client {

// How the submission service is reached and used.
struct ServiceSettings {
    std::wstring url;
    bool validateSchema = false;
};

}  // namespace lejis_client
