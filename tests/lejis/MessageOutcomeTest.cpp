// What each kind of message tells about an incident, with the texts as the library and the server write them.
#include "submission/MessageOutcome.h"

#include <gtest/gtest.h>

#include <TVLejisCore.h>

namespace lejis_client {
namespace {

constexpr HRESULT kOfFormatter = static_cast<HRESULT>(0x80070057);

struct Message {
    HRESULT number;
    const wchar_t* text;
    Reachability reachability;
    Result result;
    bool canTryAgain;
    bool affectsEveryIncident;
};

const Message kMessages[] = {
    // Nothing was sent, and that is known.
    {tvTransientError, L"The LEJIS Interface service is down. It may need to be restarted.", Reachability::Unreachable,
     Result::NotSent, true, true},
    {tvTransientError, L"Invalid URL 'nonsense'", Reachability::InvalidAddress, Result::NotSent, false, false},
    {E_FAIL, L"The formatter is not registered.", Reachability::Unreachable, Result::NotSent, false, false},
    // The same words after a request may speak of a server that has acted.
    {tvTransientError, L"The LEJIS Interface service is down. It may need to be restarted.", Reachability::Reachable,
     Result::Unknown, true, true},
    {tvTransientError, L"Invalid URL 'http://x/'", Reachability::Reachable, Result::Unknown, true, true},
    {tvTransientError, L"Host not found.", Reachability::Reachable, Result::Unknown, true, true},
    {tvTransientError, L"Network error: Connection reset.", Reachability::Reachable, Result::Unknown, true, true},
    // LEJIS lives, and has an answer of its own to this one.
    {tvTransientError, L"Unexpected error returned from LEJIS: 7 bad card", Reachability::Reachable, Result::Unknown,
     true, false},
    // The steps before the request.
    {tvFatalError, L"Internal error -2147024809: Error in DoSubmit (line 1): Bad parameter. (Line 1)",
     Reachability::Reachable, Result::NotSent, false, false},
    {tvFatalError, L"Internal error -2147024809: Error in DoSubmit (line 2): No folder. (Line 1)",
     Reachability::Reachable, Result::NotSent, false, false},
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 3): The WSDL could not be read. (Line 1)",
     Reachability::Reachable, Result::NotSent, true, true},
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 3): Schema validation error: no. (Line 1)",
     Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 4): No. (Line 1)", Reachability::Reachable,
     Result::NotSent, false, false},
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 5): No. (Line 1)", Reachability::Reachable,
     Result::NotSent, false, false},
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 6): No. (Line 1)", Reachability::Reachable,
     Result::NotSent, false, false},
    // The request itself, and what comes after.
    {tvFatalError, L"Internal error 5: Error in DoSubmit (line 7): No. (Line 1)", Reachability::Reachable,
     Result::Unknown, true, false},
    {tvFatalError, L"Internal error in web service code: Object required (Line 3)", Reachability::Reachable,
     Result::Unknown, true, false},
    {E_OUTOFMEMORY, L"Not enough memory.", Reachability::Reachable, Result::Unknown, true, false},
    // A refusal may begin in any words.
    {tvFatalError, L"The person is not known.", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"Internal error 5", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"Internal error of the person: no name (Line 1)", Reachability::Reachable, Result::Refused, false,
     false},
    {tvFatalError, L"Internal error 5: no line", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"Internal error 5: no number (Line )", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"Internal error -: no number (Line 1)", Reachability::Reachable, Result::Refused, false, false},
    {tvFatalError, L"The LEJIS Interface service is down. It may need to be restarted.", Reachability::Unreachable,
     Result::Refused, false, false},
};

TEST(MessageOutcome, FollowsFromNumberRoadAndWords) {
    for (const Message& message : kMessages) {
        SCOPED_TRACE(testing::PrintToString(std::wstring(message.text)));
        const Outcome outcome = OutcomeOf({message.number, message.text}, message.reachability);
        EXPECT_EQ(message.result, outcome.result);
        EXPECT_EQ(message.canTryAgain, outcome.canTryAgain);
        EXPECT_EQ(message.affectsEveryIncident, outcome.affectsEveryIncident);
        EXPECT_EQ(message.number, outcome.number);
        EXPECT_EQ(std::vector<std::wstring>{message.text}, outcome.errors);
    }
}

TEST(MessageOutcome, OfAFormattersNumberIsThatOfTheSystem) {
    const Outcome outcome = OutcomeOf({kOfFormatter, L"Invalid URL 'x'"}, Reachability::InvalidAddress);
    EXPECT_EQ(Result::Unknown, outcome.result);
}

}  // namespace
}  // namespace lejis_client
