#include "submission/LedgerEntry.h"

#include "text/Json.h"
#include "text/Utf8.h"

namespace lejis_client {
namespace {

std::wstring WideText(const Json& object, const char* member) { return Utf16(object.at(member).get<std::string>()); }

std::vector<std::wstring> WideTexts(const Json& object, const char* member) {
    std::vector<std::wstring> texts;
    for (const Json& text : object.at(member)) texts.push_back(Utf16(text.get<std::string>()));
    return texts;
}

// Reads only the members that callers use: warnings and times stay empty.
LedgerEntry EntryOf(const Json& object) {
    LedgerEntry entry;
    entry.command = WideText(object, "command");
    entry.url = WideText(object, "url");
    entry.file = WideText(object, "file");
    entry.digest = object.at("digest").get<std::string>();
    entry.identity = {WideText(object, "ori"), WideText(object, "number")};
    entry.outcome = WideText(object, "outcome");
    entry.canTryAgain = object.at("tryAgain").get<bool>();
    entry.number = object.at("error").is_null() ? S_OK : object.at("error").get<HRESULT>();
    entry.errors = WideTexts(object, "errors");
    return entry;
}

}  // namespace

std::string LineOf(const LedgerEntry& entry) {
    const Json object = {{"command", JsonText(entry.command)},
                         {"url", JsonText(entry.url)},
                         {"file", JsonText(entry.file)},
                         {"digest", entry.digest},
                         {"ori", JsonText(entry.identity.ori)},
                         {"number", JsonText(entry.identity.number)},
                         {"outcome", JsonText(entry.outcome)},
                         {"tryAgain", entry.canTryAgain},
                         {"error", entry.number ? Json(entry.number) : Json()},
                         {"errors", JsonTexts(entry.errors)},
                         {"warnings", JsonTexts(entry.warnings)},
                         {"start", entry.start},
                         {"seconds", entry.seconds}};
    return OneLine(object);
}

std::optional<LedgerEntry> ParseLedgerLine(std::string_view line) {
    try {
        return EntryOf(Json::parse(line));
    } catch (const Json::exception&) {
        return std::nullopt;
    }
}

}  // namespace lejis_client
