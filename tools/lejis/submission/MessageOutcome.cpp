#include "submission/MessageOutcome.h"

#include <TVLejisCore.h>

#include <string_view>

namespace lejis_client {
namespace {

struct Row {
    // How the message begins.
    std::wstring_view message;
    Result result;
    bool canTryAgain;
};

// In this order: the first row that fits counts. docs/messages.md has the same in its column "lejis", message by
// message.
constexpr Row kRows[] = {
    {L"Invalid URL '", Result::NotSent, false},
    {L"Host not found.", Result::NotSent, true},
    {L"The LEJIS Interface is down or not accessible. ", Result::NotSent, true},
};

constexpr std::wstring_view kServiceDown = L"The LEJIS Interface service is down. ";

// Steps of the library before it sends, within its internal errors. What fails there has not left the workstation.
constexpr Row kStepRows[] = {
    {L"Error in DoSubmit (line 3): Schema validation error: ", Result::Refused, false},
    {L"Error in DoSubmit (line 1): ", Result::NotSent, false},
    {L"Error in DoSubmit (line 2): ", Result::NotSent, false},
    {L"Error in DoSubmit (line 3): ", Result::NotSent, true},
    {L"Error in DoSubmit (line 4): ", Result::NotSent, false},
    {L"Error in DoSubmit (line 5): ", Result::NotSent, false},
    {L"Error in DoSubmit (line 6): ", Result::NotSent, false},
};

constexpr std::wstring_view kInternalError = L"Internal error ";

template <std::size_t count>
const Row* Find(const Row (&rows)[count], std::wstring_view message) {
    for (const Row& row : rows) {
        if (message.starts_with(row.message)) return &row;
    }
    return nullptr;
}

// Without the words before it: "Internal error -2147220735: ".
std::wstring_view StepIn(std::wstring_view message) {
    const std::size_t colon = message.find(L": ");
    return colon == std::wstring_view::npos ? message : message.substr(colon + 2);
}

Row RowOf(const LibraryError& error, bool mayHaveSent) {
    const std::wstring_view message = error.description;
    // A server that takes connections has broken off.
    if (message.starts_with(kServiceDown)) return {kServiceDown, mayHaveSent ? Result::Unknown : Result::NotSent, true};
    if (const Row* const row = Find(kRows, message)) return *row;
    // An internal error may come after the answer, when LEJIS has taken the incident.
    if (message.starts_with(kInternalError)) {
        const Row* const row = Find(kStepRows, StepIn(message));
        return row ? *row : Row{kInternalError, Result::Unknown, true};
    }
    // The rest is what LEJIS or the checks have against the incident, in their own words; or the road to LEJIS.
    if (error.number == tvFatalError) return {{}, Result::Refused, false};
    return {{}, Result::Unknown, true};
}

}  // namespace

Outcome OutcomeOf(const LibraryError& error, bool mayHaveSent) {
    const Row row = RowOf(error, mayHaveSent);
    Outcome outcome;
    outcome.result = row.result;
    outcome.errors = {error.description};
    outcome.canTryAgain = row.canTryAgain;
    outcome.number = error.number;
    return outcome;
}

}  // namespace lejis_client
