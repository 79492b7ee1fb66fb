#include "submission/MessageOutcome.h"

#include <TVLejisCore.h>

#include <iterator>
#include <optional>
#include <string_view>

namespace lejis_client {
namespace {

constexpr std::wstring_view kServiceDown = L"The LEJIS Interface service is down. It may need to be restarted.";

// The source of a message.
enum class Speaker {
    // The library reports a network failure, or an answer that it cannot use: tvTransientError.
    Network,
    // The library reports a failure of its own: tvFatalError in the form of an internal error.
    Library,
    // LEJIS or the checks refuse the incident: any other tvFatalError. The words may be the server's own.
    Lejis,
    // Any other number, such as that of a failing formatter.
    System,
};

struct Row {
    Speaker speaker;
    // Reachable stands for every reachability.
    Reachability reachability;
    // How the message begins; of an internal error, what follows "Internal error NUMBER: ".
    std::wstring_view message;
    Result result;
    bool canTryAgain;
    // Whether the network or LEJIS as a whole failed, so that the next incident would fail as well.
    bool affectsEveryIncident;
};

// In this order: the first row that fits counts. docs/messages.md has the same in its column "lejis", message by
// message.
constexpr Row kRows[] = {
    {Speaker::Network, Reachability::Unreachable, L"The LEJIS Interface service is down. ", Result::NotSent, true,
     true},
    {Speaker::Network, Reachability::InvalidAddress, L"Invalid URL '", Result::NotSent, false, false},
    {Speaker::Network, Reachability::Reachable, L"Unexpected error returned from LEJIS: ", Result::Unknown, true,
     false},
    // After the call even "Host not found." may speak of the place that a redirect names.
    {Speaker::Network, Reachability::Reachable, L"", Result::Unknown, true, true},
    // The steps of the library before it sends. What fails there has not left the workstation.
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 3): Schema validation error: ",
     Result::Refused, false, false},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 1): ", Result::NotSent, false, false},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 2): ", Result::NotSent, false, false},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 3): ", Result::NotSent, true, true},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 4): ", Result::NotSent, false, false},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 5): ", Result::NotSent, false, false},
    {Speaker::Library, Reachability::Reachable, L"Error in DoSubmit (line 6): ", Result::NotSent, false, false},
    // It may come after the answer, when LEJIS has taken the incident.
    {Speaker::Library, Reachability::Reachable, L"", Result::Unknown, true, false},
    {Speaker::Lejis, Reachability::Reachable, L"", Result::Refused, false, false},
    {Speaker::System, Reachability::Unreachable, L"", Result::NotSent, false, false},
    {Speaker::System, Reachability::Reachable, L"", Result::Unknown, true, false},
};

constexpr std::wstring_view kInternalError = L"Internal error ";
constexpr std::wstring_view kOfAnswer = L"in web service code: ";
constexpr std::wstring_view kStep = L" (Line ";
constexpr std::wstring_view kDigits = L"0123456789";

bool IsNumber(std::wstring_view text) {
    return !text.empty() && text.find_first_not_of(kDigits) == std::wstring_view::npos;
}

// " (Line 1)" at the end.
bool NamesStep(std::wstring_view message) {
    const std::size_t begin = message.rfind(kStep);
    if (begin == std::wstring_view::npos || !message.ends_with(L')')) return false;
    const std::size_t digits = begin + kStep.size();
    return IsNumber(message.substr(digits, message.size() - 1 - digits));
}

// The part of an internal error that the table lists: the text after its number, or, for an error about the answer, the
// text after "Internal error ". Only the form marks an internal error, so the whole form is checked. A fault in which
// LEJIS writes exactly the same is still mistaken for one.
std::optional<std::wstring_view> InternalError(std::wstring_view message) {
    if (!message.starts_with(kInternalError) || !NamesStep(message)) return {};
    message.remove_prefix(kInternalError.size());
    if (message.starts_with(kOfAnswer)) return message;
    const std::size_t colon = message.find(L": ");
    if (colon == std::wstring_view::npos) return {};
    std::wstring_view number = message.substr(0, colon);
    if (number.starts_with(L'-')) number.remove_prefix(1);
    if (!IsNumber(number)) return {};
    return message.substr(colon + 2);
}

const Row& RowOf(Speaker speaker, Reachability reachability, std::wstring_view message) {
    for (const Row& row : kRows) {
        if (row.speaker != speaker || !message.starts_with(row.message)) continue;
        if (row.reachability == Reachability::Reachable || row.reachability == reachability) return row;
    }
    return *std::rbegin(kRows);
}

const Row& RowOf(const LibraryError& error, Reachability reachability) {
    if (error.number == tvTransientError) return RowOf(Speaker::Network, reachability, error.description);
    if (error.number != tvFatalError) return RowOf(Speaker::System, reachability, error.description);
    const auto internal = InternalError(error.description);
    return internal ? RowOf(Speaker::Library, reachability, *internal)
                    : RowOf(Speaker::Lejis, reachability, error.description);
}

}  // namespace

Outcome OutcomeOf(const LibraryError& error, Reachability reachability) {
    const Row& row = RowOf(error, reachability);
    Outcome outcome;
    outcome.result = row.result;
    outcome.errors = {error.description};
    outcome.canTryAgain = row.canTryAgain;
    outcome.affectsEveryIncident = row.affectsEveryIncident;
    outcome.number = error.number;
    return outcome;
}

LibraryError ServiceIsDown() { return {tvTransientError, std::wstring(kServiceDown)}; }

}  // namespace lejis_client
