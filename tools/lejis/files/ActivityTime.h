// The date and the time of an incident, which the library reads as one value.
#pragma once

#include "files/IncidentFormat.h"
#include "files/Loss.h"

#include <optional>
#include <string>

namespace lejis_client {

class ActivityTime {
public:
    void Set(const FormatRow& row, int line, std::wstring_view value);
    // What the library drops or changes when it reads the date and the time as one value; nothing when it keeps both.
    std::optional<Loss> FindLoss() const;

private:
    struct Half {
        std::wstring_view name;
        int line = 0;
        std::wstring value;

        std::wstring Text() const;
    };

    Half date_;
    Half time_;
};

}  // namespace lejis_client
