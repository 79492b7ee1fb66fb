#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lejis_client {

// A variable of the environment that stands in for an option.
struct Variable {
    enum class Use {
        // In place of an option of the doctor that is left out.
        kTaken,
        // That option is given.
        kOverridden,
        // The doctor has no such option.
        kByOthers,
    };

    const wchar_t* name;
    const wchar_t* option;
    // Nothing where it is not set.
    std::optional<std::wstring> value;
    Use use;
};

// What the doctor looks at.
struct DoctorSettings {
    std::optional<std::wstring> url;
    std::optional<std::wstring> searchUrl;
    // How long to wait for what each line tells.
    long seconds = 10;
    std::vector<Variable> variables;
};

}  // namespace lejis_client
