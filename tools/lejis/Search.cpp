#include "Search.h"

#include "Console.h"
#include "ExitCode.h"
#include "FoundTable.h"
#include "FoundXml.h"
#include "Layout.h"
#include "Members.h"
#include "SearchSettings.h"
#include "SearchWait.h"

namespace lejis_client {
namespace {

using Cards = std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>;

int Complain(const std::wstring& text, int exitCode) {
    Console::Errors().Write(text);
    return exitCode;
}

int PrintFound(const CommandLine& commandLine, const Cards& cards) {
    const std::wstring count =
        cards.empty() ? L"Nothing was found.\n" : Counted(cards.size(), L"incident") + L" found.\n";
    if (commandLine.xml) {
        Console::Output().Write(FoundXml(cards));
        // The document is for a program, the count for a person.
        Console::Errors().Write(count);
    } else {
        Console::Output().Write(cards.empty() ? count : FoundTable(cards) + L'\n' + count);
    }
    return kExitDone;
}

int PrintFailure(const SearchOutcome& outcome) {
    const bool canTryAgain = outcome.end == SearchEnd::NetworkError;
    const std::wstring reason = outcome.message.empty() ? L"No reason was given." : outcome.message;
    const std::wstring advice = canTryAgain ? L"Trying again later can help; the search is not at fault."
                                            : L"Trying again does not help until this is put right.";
    return Complain(L"The search failed.\n" + ListItem(L'!', reason) + L"    " + advice + L'\n',
                    canTryAgain ? kExitTryAgain : kExitRefused);
}

}  // namespace

int Search(const CommandLine& commandLine) {
    const Interruption interruption;
    SearchConnection connection(commandLine);
    ShowSearching(0);
    connection.Send(commandLine.search);
    const long seconds = SecondsToWait(commandLine);
    AwaitOutcome(connection, interruption, seconds);
    const SearchOutcome& outcome = connection.Outcome();
    if (outcome.end == SearchEnd::Completed) {
        return PrintFound(commandLine, Objects<ILejisIncidentIndexCard>(outcome.results.Get()));
    }
    if (outcome.end != SearchEnd::None) return PrintFailure(outcome);
    if (interruption.HasHappened()) return Complain(L"Interrupted.\n", kExitInterrupted);
    const std::wstring limit = Counted(static_cast<std::size_t>(seconds), L"second");
    return Complain(L"No answer within " + limit + L".\n", kExitTryAgain);
}

}  // namespace lejis_client
