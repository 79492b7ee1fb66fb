// What --json prints, and what ledgers hold: for programs.
#pragma once

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lejis_client {

// Members stay in the order in which they were set.
using Json = nlohmann::ordered_json;

Json JsonText(std::wstring_view text);
Json JsonTexts(const std::vector<std::wstring>& texts);

// What every document begins with; the command is null where none was understood.
Json JsonDocument(const std::optional<std::wstring>& command, int exitCode);
void SetError(Json& document, std::wstring_view kind, std::wstring_view message);

// Plain ASCII in one line, with its line feed.
std::string OneLine(const Json& object);

}  // namespace lejis_client
