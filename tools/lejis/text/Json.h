// The one JSON document that --json prints: for the programs that use this one.
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

// Prints a document as plain ASCII, whatever is in it, so that no code page can spoil it.
void Print(const Json& document);

}  // namespace lejis_client
