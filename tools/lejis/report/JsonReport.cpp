#include "report/JsonReport.h"

#include "console/PrintJson.h"
#include "submission/ResultWords.h"
#include "text/Duration.h"

namespace lejis_client {
namespace {

constexpr struct {
    Result result;
    const char* name;
} kCounts[] = {
    {Result::Done, "done"},       {Result::Refused, "refused"}, {Result::NotSent, "notSent"},
    {Result::Unknown, "unknown"}, {Result::LeftOut, "leftOut"},
};

Json TextOrNull(const Attempt& attempt, std::wstring Identity::*part) {
    return attempt.identity ? JsonText(*attempt.identity.*part) : Json();
}

}  // namespace

Json JsonReport::LineOf(const std::wstring& name, const Attempt& attempt) const {
    const Outcome& outcome = attempt.outcome;
    return {{"name", JsonText(name)},
            {"ori", TextOrNull(attempt, &Identity::ori)},
            {"number", TextOrNull(attempt, &Identity::number)},
            {"outcome", JsonText(WordOf(operation_, outcome.result))},
            {"tryAgain", outcome.canTryAgain},
            {"errorNumber", outcome.number ? Json(outcome.number) : Json()},
            {"errors", JsonTexts(outcome.errors)},
            {"warnings", JsonTexts(outcome.warnings)},
            {"advice", JsonText(outcome.advice)},
            {"seconds", Seconds(attempt.milliseconds)}};
}

void JsonReport::TellTry(const std::wstring& name, long number, const Attempt& attempt) {
    Json line = LineOf(name, attempt);
    line["try"] = number;
    PrintLine(line);
}

void JsonReport::Tell(const std::wstring& name, const Attempt& attempt) { PrintLine(LineOf(name, attempt)); }

void JsonReport::SumUp(const Ending& ending, int exitCode) {
    Json line = JsonDocument(operation_.name, exitCode);
    if (!ending.fault.empty()) SetError(line, L"stopped", ending.fault);
    Json& counts = line["counts"];
    for (const auto& row : kCounts) counts[row.name] = tally_.Count(row.result);
    counts["notBegun"] = ending.left;
    counts["withWarnings"] = tally_.WithWarnings();
    line["seconds"] = Seconds(ending.milliseconds);
    PrintLine(line);
}

}  // namespace lejis_client
