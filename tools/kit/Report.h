// The content of report.json.
#pragma once

#include "Settings.h"
#include "Trial.h"

#include <nlohmann/json.hpp>

#include <string>

namespace kit {

using Json = nlohmann::ordered_json;

// started: when, as text.
Json ReportOf(const Settings& settings, const std::vector<Trial>& trials, const std::string& started);

// Plain ASCII.
std::string TextOf(const Json& report);

// Whether nothing failed, apart from what is known to fail under Wine.
bool IsGood(const Json& report);

}  // namespace kit
