// Whatever XML names, by DOCTYPE, entity, hint or instruction: nothing of it is fetched.
#include "inquiry/LejisInquiryResponse.h"
#include "platform/msxml/Document.h"
#include "services/LejisSearchWebService.h"
#include "services/SchemaUtils.h"
#include "services/SOAPEnvelope.h"
#include "support/ComCheck.h"
#include "support/Messages.h"
#include "support/TemporaryFolder.h"
#include "support/Xml.h"
#include "unit_support/EventLog.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/SilentServer.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

class NothingFetched : public testing::Test {
protected:
    ~NothingFetched() override { EXPECT_FALSE(server.WasCalled()); }

    std::wstring Named(const wchar_t* name) const { return server.Address(name); }

    // What could draw something in, around or inside of a SOAP envelope.
    std::vector<std::wstring> Temptations() const {
        const std::wstring envelope = support::Soap(L"<x>&e;</x>");
        return {
            L"<!DOCTYPE x SYSTEM '" + Named(L"external.dtd") + L"'>" + support::Soap(L"<x/>"),
            L"<!DOCTYPE x PUBLIC '-//x' '" + Named(L"public.dtd") + L"'>" + support::Soap(L"<x/>"),
            L"<!DOCTYPE x [<!ENTITY e SYSTEM '" + Named(L"entity.txt") + L"'>]>" + envelope,
            L"<!DOCTYPE x [<!ENTITY % e SYSTEM '" + Named(L"parameter.dtd") + L"'>%e;]>" + support::Soap(L"<x/>"),
            L"<?xml-stylesheet type='text/xsl' href='" + Named(L"style.xsl") + L"'?>" + support::Soap(L"<x/>"),
            support::Soap(L"<x xmlns:i='http://www.w3.org/2001/XInclude'><i:include href='" + Named(L"part.xml") +
                          L"'/></x>"),
            support::Soap(L"<x xmlns:i='http://www.w3.org/2001/XMLSchema-instance' i:schemaLocation='urn:x " +
                          Named(L"hint.xsd") + L"' i:noNamespaceSchemaLocation='" + Named(L"other.xsd") + L"'/>"),
            support::Soap(L"<x xmlns='x-schema:" + Named(L"data.xdr") + L"'/>"),
        };
    }

    support::SilentServer server;
};

TEST(SilentServer, SeesWhoCalls) {
    const support::SilentServer server;
    EXPECT_FALSE(server.WasCalled());
    const SOCKET caller = socket(AF_INET, SOCK_STREAM, IPPROTO_TCP);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const std::wstring url = server.Address(L"");
    address.sin_port = htons(static_cast<u_short>(std::stoi(url.substr(url.rfind(L':') + 1))));
    EXPECT_EQ(0, connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    EXPECT_TRUE(server.WasCalled());
    closesocket(caller);
}

TEST_F(NothingFetched, WhenTextIsLoaded) {
    for (const std::wstring& text : Temptations()) {
        msxml::LoadXml(msxml::CreateDocument(), text);
        const auto envelope = platform::Create<SOAPEnvelope>();
        EXPECT_EQ(S_OK, envelope->put_Body(platform::ToBstr(text)));
        envelope->BodyDocument();
    }
}

TEST_F(NothingFetched, WhenAnAnswerIsRead) {
    for (const std::wstring& text : Temptations()) {
        support::ScriptedHttp http({.responseText = text});
        const auto service = platform::Create<LejisSearchWebService>();
        service->URL = L"http://lejis-interface/search";
        const auto log = support::EventLog::ForSearches();
        log->ConnectTo(service->Dispatch());
        EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
        http.Last().Advance();
        EXPECT_TRUE(support::PumpUntil([&] { return !log->events.empty(); }));
    }
}

TEST_F(NothingFetched, WhenTheUsernameIsMarkup) {
    for (const std::wstring& text : Temptations()) {
        support::ScriptedHttp http({.responseText = support::Soap(L"")});
        const auto service = platform::Create<LejisSearchWebService>();
        service->URL = L"http://lejis-interface/search";
        service->Username = text;
        EXPECT_EQ(S_OK, service->Search(platform::Create<LejisSearchRequest>().Get()));
        if (!http.requests.empty()) http.Last().ClearHandler();
    }
}

TEST_F(NothingFetched, WhenAnswersAreValidated) {
    const support::TemporaryFolder folder;
    const std::wstring schema =
        folder.Write(L"x.xsd",
                     "<xsd:schema xmlns:xsd='http://www.w3.org/2001/XMLSchema' targetNamespace='urn:count'>"
                     "<xsd:element name='count' type='xsd:int'/></xsd:schema>");
    support::ScriptedHttp http(
        {.responseText = L"<wsdl:definitions xmlns:wsdl='http://schemas.xmlsoap.org/wsdl/' "
                         L"xmlns:xsd='http://www.w3.org/2001/XMLSchema'><wsdl:import location='" +
                         Named(L"more.wsdl") +
                         L"'/><wsdl:types><xsd:schema targetNamespace='urn:count'><xsd:include "
                         L"schemaLocation='" +
                         schema + L"'/><xsd:import namespace='urn:y' schemaLocation='" + Named(L"imported.xsd") +
                         L"'/></xsd:schema></wsdl:types></wsdl:definitions>"});
    for (const std::wstring& text : Temptations()) {
        const msxml::Document document = msxml::CreateDocument();
        if (!msxml::LoadXml(document, text)) continue;
        EXPECT_NO_THROW(SchemaUtils::ValidateSchemaFromWSDL(document, L"http://lejis-interface/submission?wsdl"));
    }
}

// A client may load what the library would not. It is refused, for reading an entity costs what its author wants it to.
TEST_F(NothingFetched, WhenAClientHandsInWhatHasADoctype) {
    const support::Document document = support::NewDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    EXPECT_OK(document->setProperty(support::Bstr(L"ProhibitDTD"), _variant_t(false)));
    EXPECT_OK(document->loadXML(
        support::Bstr(L"<!DOCTYPE x [<!ENTITY e SYSTEM '" + Named(L"entity.txt") + L"'>]><x><y>&e;</y></x>"), &loaded));
    ASSERT_EQ(VARIANT_TRUE, loaded);
    const msxml::Element root = msxml::Root(document);
    const auto response = platform::Create<LejisInquiryResponse>();
    const auto vehicle = platform::Create<LejisVehicleIndexCard>();
    EXPECT_TRUE(
        support::FailedWith(response->FromXmlDocument(document.Get()), support::kObjectRequired, L"Object required"));
    constexpr wchar_t kRefused[] = L"XML of a document with a DOCTYPE is not read";
    EXPECT_TRUE(support::FailedWith(response->FromXmlElement(root.Get()), support::kInvalidArgument, kRefused));
    EXPECT_TRUE(support::FailedWith(vehicle->FromXmlElement(root.Get()), support::kInvalidArgument, kRefused));
}

}  // namespace
}  // namespace lejis
