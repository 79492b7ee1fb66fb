#include "search/Search.h"

#include "commandline/LibraryForUrl.h"
#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "library/Members.h"
#include "search/FoundJson.h"
#include "search/FoundTable.h"
#include "search/FoundXml.h"
#include "search/SearchFailure.h"
#include "search/SearchSettings.h"
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

int PrintFound(const CommandLine& commandLine, const Cards& cards) {
    const std::wstring count =
        cards.empty() ? L"Nothing was found.\n" : Counted(cards.size(), L"incident") + L" found.\n";
    if (commandLine.json) {
        Json document = JsonDocument(L"search", kExitDone);
        document["incidents"] = FoundJson(cards);
        Print(document);
    } else if (commandLine.xml) {
        Console::Output().Write(FoundXml(cards));
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

int PrintFailure(const CommandLine& commandLine, const Failure& failure) {
    if (commandLine.json) {
        Print(JsonOf(failure));
    } else {
        Console::Errors().Write(failure.text);
    }
    return failure.exitCode;
}

void TellInterruption() { Console::Errors().Write(L'\n' + kInterrupted.text); }
void TellInterruptionInJson() { Print(JsonOf(kInterrupted)); }

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

int Search(const CommandLine& commandLine) {
    RequireLibraryForUrl(commandLine);
    const Interruption interruption(commandLine.json ? TellInterruptionInJson : TellInterruption, kPatience);
    SearchConnection connection(commandLine);
    ShowSearching(0);
    connection.Send(commandLine.search);
    const long seconds = SecondsToWait(commandLine);
    AwaitOutcome(connection, interruption, seconds);
    const SearchOutcome& outcome = connection.Outcome();
    if (outcome.end == SearchEnd::Completed) {
        return PrintFound(commandLine, Objects<ILejisIncidentIndexCard>(outcome.results.Get()));
    }
    if (outcome.end != SearchEnd::None) return PrintFailure(commandLine, FailureOf(outcome));
    return PrintFailure(commandLine, interruption.HasHappened() ? kInterrupted : NoAnswer(seconds));
}

}  // namespace lejis_client
