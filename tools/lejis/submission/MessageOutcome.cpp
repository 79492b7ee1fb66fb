#include "submission/MessageOutcome.h"

#include <TVLejisCore.h>

#include <iterator>
#include <optional>
#include <string_view>

namespace lejis_client {
namespace {

constexpr std::wstring_view kServiceDown = L"The LEJIS Interface service is down. It may need to be restarted.";

// Who speaks.
enum class Speaker {
    // The library, of the network and of answers that it does not take for one: tvTransientError.
    Network,
    // The library, of a failure of its own: tvFatalError in the form of an internal error.
    Library,
    // LEJIS or the checks, against the incident: any other tvFatalError. The words may be the server's own.
    Lejis,
    // Any other number, such as that of a failing formatter.
    System,
};

struct Row {
    Speaker speaker;
    // Open stands for every road.
    Road road;
    // How the message begins; of an internal error, what follows "Internal error NUMBER: ".
    std::wstring_view message;
    Result result;
    bool canTryAgain;
    // Whether it is a failure of the road or of LEJIS as a whole, which the next incident would meet as well.
    bool isOfRoad;
};

// In this order: the first row that fits counts. docs/messages.md has the same in its column "lejis", message by
// message.
constexpr Row kRows[] = {
    {Speaker::Network, Road::Closed, L"The LEJIS Interface service is down. ", Result::NotSent, true, true},
    {Speaker::Network, Road::NoAddress, L"Invalid URL '", Result::NotSent, false, false},
    {Speaker::Network, Road::Open, L"Unexpected error returned from LEJIS: ", Result::Unknown, true, false},
    // After the call even "Host not found." may speak of the place that a redirect names.
    {Speaker::Network, Road::Open, L"", Result::Unknown, true, true},
    // The steps of the library before it sends. What fails there has not left the workstation.
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 3): Schema validation error: ", Result::Refused, false,
     false},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 1): ", Result::NotSent, false, false},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 2): ", Result::NotSent, false, false},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 3): ", Result::NotSent, true, true},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 4): ", Result::NotSent, false, false},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 5): ", Result::NotSent, false, false},
    {Speaker::Library, Road::Open, L"Error in DoSubmit (line 6): ", Result::NotSent, false, false},
    // It may come after the answer, when LEJIS has taken the incident.
    {Speaker::Library, Road::Open, L"", Result::Unknown, true, false},
    {Speaker::Lejis, Road::Open, L"", Result::Refused, false, false},
    {Speaker::System, Road::Closed, L"", Result::NotSent, false, false},
    {Speaker::System, Road::Open, L"", Result::Unknown, true, false},
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

// Of an internal error, what follows its number; of one about the answer, all that follows "Internal error ". The
// library marks its internal errors by nothing but their form. So the form is looked at from end to end: a fault in
// which LEJIS writes exactly the same is all that is still mistaken for one.
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

const Row& RowOf(Speaker speaker, Road road, std::wstring_view message) {
    for (const Row& row : kRows) {
        if (row.speaker != speaker || !message.starts_with(row.message)) continue;
        if (row.road == Road::Open || row.road == road) return row;
    }
    return *std::rbegin(kRows);
}

const Row& RowOf(const LibraryError& error, Road road) {
    if (error.number == tvTransientError) return RowOf(Speaker::Network, road, error.description);
    if (error.number != tvFatalError) return RowOf(Speaker::System, road, error.description);
    const auto internal = InternalError(error.description);
    return internal ? RowOf(Speaker::Library, road, *internal) : RowOf(Speaker::Lejis, road, error.description);
}

}  // namespace

Outcome OutcomeOf(const LibraryError& error, Road road) {
    const Row& row = RowOf(error, road);
    Outcome outcome;
    outcome.result = row.result;
    outcome.errors = {error.description};
    outcome.canTryAgain = row.canTryAgain;
    outcome.isOfRoad = row.isOfRoad;
    outcome.number = error.number;
    return outcome;
}

LibraryError ServiceIsDown() { return {tvTransientError, std::wstring(kServiceDown)}; }

}  // namespace lejis_client
