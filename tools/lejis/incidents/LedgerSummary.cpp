#include "incidents/LedgerSummary.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "files/FileList.h"
#include "report/FailureList.h"
#include "submission/Ledger.h"
#include "text/Layout.h"
#include "text/Utf8.h"

#include <map>
#include <tuple>

namespace lejis_client {
namespace {

// The address of a service, a file, and the content where the file does not tell the incident.
using Place = std::tuple<std::wstring, std::wstring, std::string>;

Place PlaceOf(const LedgerEntry& entry) {
    return {entry.url, entry.file, entry.file == kStandardInput ? entry.digest : std::string()};
}

// What became of each incident in the end.
struct Summary {
    std::map<Place, LedgerEntry> last;
    std::size_t tries = 0;
    std::size_t unreadableLines = 0;
    std::map<std::wstring, std::size_t> outcomes;
    FailureList failures;
    int exitCode = kExitDone;
};

void Count(const LedgerEntry& entry, Summary& summary) {
    ++summary.outcomes[entry.outcome];
    if (entry.errors.empty()) return;
    summary.failures.Add(entry.outcome, entry.errors.front(), entry.file);
    summary.exitCode |= entry.canTryAgain ? kExitTryAgain : kExitRefused;
}

Summary SummaryOf(const std::wstring& ledger) {
    Summary summary;
    summary.unreadableLines = ReadLedger(ledger, [&](const LedgerEntry& entry) {
        ++summary.tries;
        summary.last[PlaceOf(entry)] = entry;
    });
    for (const auto& [place, entry] : summary.last) Count(entry, summary);
    return summary;
}

std::wstring TextOf(const Summary& summary) {
    std::wstring text = Counted(summary.last.size(), L"incident") + L" in " +
                        (summary.tries == 1 ? L"1 try" : std::to_wstring(summary.tries) + L" tries");
    const wchar_t* separator = L": ";
    for (const auto& [outcome, count] : summary.outcomes) {
        text += separator + std::to_wstring(count) + L' ' + outcome;
        separator = L", ";
    }
    text += L".\n";
    if (summary.unreadableLines) text += Counted(summary.unreadableLines, L"line") + L" cut short and passed over.\n";
    return summary.failures.IsEmpty() ? text : text + L'\n' + summary.failures.Text();
}

Json JsonOf(const Summary& summary) {
    Json document = JsonDocument(L"ledger", summary.exitCode);
    document["incidents"] = summary.last.size();
    document["tries"] = summary.tries;
    document["unreadableLines"] = summary.unreadableLines;
    Json& outcomes = document["outcomes"] = Json::object();
    for (const auto& [outcome, count] : summary.outcomes) outcomes[Utf8(outcome)] = count;
    Json& failures = document["failures"] = Json::array();
    for (const auto& [reason, names] : summary.failures.Groups()) {
        failures.push_back(
            {{"outcome", JsonText(reason.first)}, {"message", JsonText(reason.second)}, {"names", JsonTexts(names)}});
    }
    return document;
}

}  // namespace

int SumUpLedger(const std::wstring& ledger, bool json) {
    const Summary summary = SummaryOf(ledger);
    if (json) {
        Print(JsonOf(summary));
    } else {
        Console::Output().Write(TextOf(summary));
    }
    return summary.exitCode;
}

}  // namespace lejis_client
