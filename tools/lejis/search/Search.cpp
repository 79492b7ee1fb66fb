#include "search/Search.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "library/Members.h"
#include "search/FoundCsv.h"
#include "search/FoundJson.h"
#include "search/FoundTable.h"
#include "search/FoundXml.h"
#include "search/SearchFailure.h"
#include "search/SearchWait.h"
#include "text/Layout.h"

namespace lejis_client {
namespace {

using Cards = std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>;

// How long the user waits for the end, in milliseconds: long enough for the program to end by itself.
constexpr DWORD kPatience = 1000;

// A search without an answer.
struct Failure {
    const wchar_t* kind;
    int exitCode;
    std::wstring message;
    // What people are told.
    std::wstring text;
};

const Failure kInterrupted = {L"interrupted", kExitInterrupted, L"Interrupted.", L"Interrupted.\n"};

// LEJIS does not send more than were asked for; the library does not tell how many it has.
// It may have a limit of its own, so without one of the user's nothing is known.
std::optional<bool> MayHaveMore(const SearchSettings& settings, std::size_t found) {
    if (!settings.most) return std::nullopt;
    return static_cast<std::size_t>(*settings.most) == found;
}

std::wstring CountText(std::size_t found, bool mayHaveMore) {
    if (found == 0) return L"Nothing was found.\n";
    return Counted(found, L"incident") + L" found" +
           (mayHaveMore ? L", as many as --max allows; LEJIS may have more.\n" : L".\n");
}

// Without the mark Excel takes the bytes for those of its own code page.
std::wstring Marked(const std::wstring& csv) { return Console::Output().IsInteractive() ? csv : L'\uFEFF' + csv; }

int PrintFound(const SearchSettings& settings, bool json, const Cards& cards) {
    const std::optional<bool> mayHaveMore = MayHaveMore(settings, cards.size());
    const std::wstring count = CountText(cards.size(), mayHaveMore.value_or(false));
    if (json) {
        Json document = JsonDocument(L"search", kExitDone);
        document["incidents"] = FoundJson(cards);
        document["mayHaveMore"] = mayHaveMore ? Json(*mayHaveMore) : Json();
        Print(document);
    } else if (settings.xml || settings.csv) {
        Console::Output().Write(settings.xml ? FoundXml(cards) : Marked(FoundCsv(cards)));
        // The document is for a program, the count for a person.
        Console::Errors().Write(count);
    } else {
        Console::Output().Write(cards.empty() ? count : FoundTable(cards) + L'\n' + count);
    }
    return kExitDone;
}

Json JsonOf(const Failure& failure) {
    Json document = JsonDocument(L"search", failure.exitCode);
    SetError(document, failure.kind, failure.message);
    document["incidents"] = Json::array();
    return document;
}

int PrintFailure(bool json, const Failure& failure) {
    if (json) {
        Print(JsonOf(failure));
    } else {
        Console::Errors().Write(failure.text);
    }
    return failure.exitCode;
}

void TellInterruption() { Console::Errors().Write(L'\n' + kInterrupted.text); }

Failure FailureOf(const SearchOutcome& outcome) {
    const bool canTryAgain = CanTryAgain(outcome);
    const std::wstring reason = outcome.message.empty() ? L"No reason was given." : outcome.message;
    const std::wstring advice = canTryAgain ? L"Trying again later can help; the search is not at fault."
                                            : L"Trying again does not help until this is put right.";
    return {canTryAgain ? L"tryAgain" : L"refused", canTryAgain ? kExitTryAgain : kExitRefused, reason,
            L"The search failed.\n" + ListItem(L'!', reason) + L"    " + advice + L'\n'};
}

Failure NoAnswer(long seconds) {
    const std::wstring message = L"No answer within " + Counted(static_cast<std::size_t>(seconds), L"second") + L".";
    return {L"tryAgain", kExitTryAgain, message, message + L'\n'};
}

}  // namespace

int Search(const SearchSettings& settings, bool json) {
    const Interruption interruption(TellInterruption, kPatience);
    SearchConnection connection(settings);
    ShowSearching(0);
    connection.Send(settings);
    AwaitOutcome(connection, interruption, settings.seconds);
    const SearchOutcome& outcome = connection.Outcome();
    if (outcome.end == SearchEnd::Completed) {
        return PrintFound(settings, json, Objects<ILejisIncidentIndexCard>(outcome.results.Get()));
    }
    if (outcome.end != SearchEnd::None) return PrintFailure(json, FailureOf(outcome));
    return PrintFailure(json, interruption.HasHappened() ? kInterrupted : NoAnswer(settings.seconds));
}

}  // namespace lejis_client
