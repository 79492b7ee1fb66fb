#include "text/Json.h"

#include "text/Utf8.h"

namespace lejis_client {

Json JsonText(std::wstring_view text) { return Utf8(text); }

Json JsonTexts(const std::vector<std::wstring>& texts) {
    Json list = Json::array();
    for (const std::wstring& text : texts) list.push_back(JsonText(text));
    return list;
}

Json JsonDocument(const std::optional<std::wstring>& command, int exitCode) {
    return {{"command", command ? JsonText(*command) : Json()}, {"exitCode", exitCode}, {"error", nullptr}};
}

void SetError(Json& document, std::wstring_view kind, std::wstring_view message) {
    document["error"] = {{"kind", JsonText(kind)}, {"message", JsonText(message)}};
}

std::string OneLine(const Json& object) { return object.dump(-1, ' ', true) + '\n'; }

}  // namespace lejis_client
