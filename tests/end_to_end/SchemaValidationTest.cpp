// The check of a request against what the service publishes, over the wire. The tests run in the folder of the
// simulator's schemas: Wine resolves one schema's import of another there.
#include "end_to_end/EndToEndTest.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace end_to_end {
namespace {

class SchemaValidation : public EndToEndTest {
protected:
    SchemaValidation() { EXPECT_OK(service->put_ValidateSchema(VARIANT_TRUE)); }

    HRESULT Submit(ILejisIncidentIndexCard* incident) {
        ComPtr<ICollection> warnings;
        return service->SubmitIncident(incident, warnings.GetAddressOf());
    }

    // Expects a fatal error whose text is that of an internal error, followed by the reason that the check gives.
    void ExpectRefusal(const std::wstring& beginning) {
        const HRESULT result = Submit(NewIncident().Get());
        EXPECT_EQ(tvFatalError, result);
        const std::wstring description = support::TakeError(result).description;
        EXPECT_NE(std::wstring::npos, description.find(L": Error in DoSubmit (line 3): " + beginning))
            << support::Utf8(description);
        EXPECT_EQ(0u, Posts()) << "a request that fails the check is not sent";
    }
};

TEST_F(SchemaValidation, IsLeftOutUnlessAsked) {
    EXPECT_OK(service->put_ValidateSchema(VARIANT_FALSE));
    EXPECT_OK(Submit(NewIncident().Get()));
    EXPECT_EQ(0u, WsdlRequests());
}

TEST_F(SchemaValidation, PassesWhatIsValid) {
    const auto incident = NewIncident();
    Fill(incident.Get());
    EXPECT_OK(Submit(incident.Get()));
    EXPECT_OK(service->DeleteIncident(incident.Get()));
    EXPECT_EQ(2u, WsdlRequests());
    EXPECT_EQ(2u, Posts());
}

TEST_F(SchemaValidation, KeepsBackADeletionThatItsSchemaRefuses) {
    const auto incident = NewIncident();
    // Deletions pass no check of the library's own; the schema of another namespace wants nine characters.
    EXPECT_OK(incident->put_OrganizationORI(support::Bstr(L"PA")));
    const HRESULT result = service->DeleteIncident(incident.Get());
    EXPECT_EQ(tvFatalError, result);
    EXPECT_NE(std::wstring::npos, support::TakeError(result).description.find(L": Schema validation error: "));
    EXPECT_EQ(0u, Posts());
}

TEST_F(SchemaValidation, KeepsBackASubmissionThatTheSchemaRefuses) {
    Play(R"({"kind": "wrong-schema", "target": "wsdl"})");
    ExpectRefusal(L"Schema validation error: ");
}

TEST_F(SchemaValidation, PassesEverythingWhenNoTypesArePublished) {
    Play(R"({"kind": "no-types", "target": "wsdl"})");
    EXPECT_OK(Submit(NewIncident().Get()));
}

TEST_F(SchemaValidation, RefusesASchemaWithoutInclude) {
    Play(R"({"kind": "no-include", "target": "wsdl"})");
    ExpectRefusal(L"A schema of the WSDL includes no schema document. (Line 1)");
}

TEST_F(SchemaValidation, FetchesTheSchemaOverPlainHttpWhereTheWsdlSaysHttps) {
    Play(R"({"kind": "https-include", "target": "wsdl"})");
    EXPECT_OK(Submit(NewIncident().Get()));
    EXPECT_EQ(1u, Occurrences(Get("/control/exchanges"), "/schemas/lejis-service.xsd\""));
}

TEST_F(SchemaValidation, NamesASchemaThatCannotBeFetched) {
    Play(R"({"kind": "http-status", "target": "schema", "status": 404})");
    ExpectRefusal(L"Cannot load the schema 'http://127.0.0.1:");
}

TEST_F(SchemaValidation, OfAServiceThatIsDownSaysSo) {
    EXPECT_OK(service->put_URL(support::Bstr(L"http://127.0.0.1:1/")));
    EXPECT_TRUE(support::FailedWith(Submit(NewIncident().Get()), tvTransientError,
                                    L"The LEJIS Interface service is down. It may need to be restarted."));
}

TEST_F(SchemaValidation, OfAnInvalidAddressSaysSo) {
    EXPECT_OK(service->put_URL(support::Bstr(L"")));
    EXPECT_TRUE(support::FailedWith(Submit(NewIncident().Get()), tvTransientError, L"Invalid URL ''"));
}

}  // namespace
}  // namespace end_to_end
