#include "report/JsonReport.h"

namespace lejis_client {
namespace {

constexpr struct {
    Result result;
    const char* name;
} kResults[] = {
    {Result::Done, "done"},
    {Result::Refused, "refused"},
    {Result::Unreadable, "unreadable"},
    {Result::TryAgain, "tryAgain"},
};

const char* NameOf(Result result) {
    for (const auto& row : kResults) {
        if (row.result == result) return row.name;
    }
    return "";
}

}  // namespace

void JsonReport::Tell(const std::wstring& name, const Outcome& outcome) {
    incidents_.push_back({{"name", JsonText(name)},
                          {"result", NameOf(outcome.result)},
                          {"errors", JsonTexts(outcome.errors)},
                          {"warnings", JsonTexts(outcome.warnings)}});
}

void JsonReport::Finish() {
    Json document = JsonDocument(command_.name, ExitCode());
    document["incidents"] = incidents_;
    Json& counts = document["counts"];
    for (const auto& row : kResults) counts[row.name] = tally_.Count(row.result);
    counts["withWarnings"] = tally_.WithWarnings();
    Print(document);
}

}  // namespace lejis_client
