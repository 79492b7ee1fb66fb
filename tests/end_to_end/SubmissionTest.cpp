// Incidents go over the wire and arrive.
#include "end_to_end/Client.h"
#include "end_to_end/EndToEndTest.h"
#include "end_to_end/Simulator.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::Bstr;

namespace end_to_end {
namespace {

class Submission : public EndToEndTest {
protected:
    std::vector<std::wstring> Submit(ILejisIncidentIndexCard* incident) {
        ComPtr<ICollection> warnings;
        EXPECT_OK(service->SubmitIncident(incident, warnings.GetAddressOf()));
        return warnings ? Texts(warnings.Get()) : std::vector<std::wstring>{L"no warnings collection"};
    }
};

TEST_F(Submission, OfAFullIncidentArrivesWhole) {
    const auto incident = NewIncident();
    Fill(incident.Get());
    EXPECT_EQ(std::vector<std::wstring>{}, Submit(incident.Get()));
    EXPECT_EQ(1u, IncidentsHeld());
    const std::string card = CardHeld("PA0250100", "2007-000123");
    for (const char* part : {"ERIE CITY POLICE", "2007-03-08", "23:15:00", "16501", "PUBLIC", "ROE", "FORD", "SN-1"}) {
        EXPECT_NE(std::string::npos, card.find(part)) << part;
    }
}

TEST_F(Submission, OfTheSameIncidentReplacesTheFirst) {
    Submit(NewIncident().Get());
    const auto again = NewIncident();
    EXPECT_OK(again->put_CaveatText(Bstr(L"second thoughts")));
    Submit(again.Get());
    EXPECT_EQ(1u, IncidentsHeld());
    EXPECT_NE(std::string::npos, CardHeld("PA0250100", "2007-000123").find("second thoughts"));
}

TEST_F(Submission, IsWithdrawnByADeletion) {
    const auto incident = NewIncident();
    Fill(incident.Get());
    Submit(incident.Get());
    Submit(NewIncident(L"2007-000124").Get());
    EXPECT_OK(service->DeleteIncident(incident.Get()));
    EXPECT_EQ(1u, IncidentsHeld());
    EXPECT_EQ(std::string::npos, Get("/control/index").find("2007-000123"));
}

TEST_F(Submission, ThatWasNeverMadeCanBeWithdrawn) { EXPECT_OK(service->DeleteIncident(NewIncident().Get())); }

TEST_F(Submission, CarriesCharactersBeyondAscii) {
    const auto incident = NewIncident();
    const std::wstring text = L"Zo\u00EB \u0141ukasz \u4E2D\u6587 \U0001F694 <&>\"'";
    EXPECT_OK(incident->put_CaveatText(Bstr(text)));
    Submit(incident.Get());
    const std::string card = CardHeld("PA0250100", "2007-000123");
    EXPECT_NE(std::string::npos,
              card.find(support::Utf8(L"Zo\u00EB \u0141ukasz \u4E2D\u6587 \U0001F694 &lt;&amp;&gt;")))
        << card;
}

TEST_F(Submission, ReturnsTheWarningsOfWhatWasChanged) {
    const auto incident = NewIncident();
    EXPECT_OK(incident->put_ChargeNCICCode(Bstr(L"9999")));
    const std::vector<std::wstring> expected = {
        L"Main record: Charge NCIC code '9999' is not a valid NCIC offense code. Will submit a blank code instead."};
    EXPECT_EQ(expected, Submit(incident.Get()));
    // Without its code nothing tells this card from a deletion but what else it holds.
    EXPECT_EQ(1u, Posts());
}

TEST_F(Submission, OfAnInvalidIncidentIsNeverSent) {
    const auto incident = NewIncident(L"");
    ComPtr<ICollection> warnings;
    EXPECT_TRUE(support::FailedWith(service->SubmitIncident(incident.Get(), warnings.GetAddressOf()), tvFatalError,
                                    L"ID is required."));
    EXPECT_EQ(nullptr, warnings);
    EXPECT_EQ(0u, Posts());
}

TEST_F(Submission, OfManyIncidentsInARowArrivesToTheLast) {
    for (int number = 1; number <= 50; ++number) Submit(NewIncident(L"2007-" + std::to_wstring(number)).Get());
    EXPECT_EQ(50u, IncidentsHeld());
}

}  // namespace
}  // namespace end_to_end
