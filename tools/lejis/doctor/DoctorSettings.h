#pragma once

#include <optional>
#include <string>

namespace lejis_client {

// What the doctor looks at.
struct DoctorSettings {
    std::optional<std::wstring> url;
    std::optional<std::wstring> searchUrl;
    // How long to wait for what each line tells.
    long seconds = 10;
};

}  // namespace lejis_client
