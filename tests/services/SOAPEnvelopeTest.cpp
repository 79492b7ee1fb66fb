#include "services/SOAPEnvelope.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Raises.h"
#include "unit_support/Soap.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::kObjectRequired;
using support::NewDocument;
using support::Parse;
using support::Raises;
using support::SameXml;

namespace lejis {
namespace {

ComPtr<SOAPEnvelope> Read(const std::wstring& xml) {
    auto envelope = platform::Create<SOAPEnvelope>();
    envelope->FromXmlDocument(Parse(xml));
    return envelope;
}

TEST(SOAPEnvelope, IsEmptyWhenNew) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    EXPECT_EQ(L"", envelope->Username);
    EXPECT_EQ(L"", envelope->Body());
}

TEST(SOAPEnvelope, ReadsAFault) {
    const auto envelope = Read(support::SoapFault(L"soap:Server", L"x"));
    EXPECT_TRUE(envelope->IsFault());
    EXPECT_EQ(L"soap:Server", envelope->FaultCode());
    EXPECT_EQ(L"x", envelope->FaultMessage());
}

TEST(SOAPEnvelope, ReadsAFaultWithoutItsTexts) {
    const auto envelope = Read(support::Soap(L"<soap:Fault/>"));
    EXPECT_TRUE(envelope->IsFault());
    EXPECT_EQ(L"", envelope->FaultCode());
    EXPECT_EQ(L"", envelope->FaultMessage());
}

TEST(SOAPEnvelope, ReadsABodyWithoutFault) {
    const auto envelope = Read(support::Soap(L"<x><soap:Fault/></x>"));
    EXPECT_FALSE(envelope->IsFault());
    EXPECT_EQ(L"", envelope->FaultCode());
    EXPECT_EQ(L"", envelope->FaultMessage());
}

TEST(SOAPEnvelope, BodyIsTheMarkupOfTheBodyElementWithItsDeclarations) {
    const auto envelope = Read(L"<soap:Envelope><soap:Header/><soap:Body><j:x>1</j:x></soap:Body></soap:Envelope>");
    EXPECT_TRUE(envelope->Body().starts_with(L"<soap:Body"));
    EXPECT_TRUE(SameXml(envelope->BodyXml().Get(), L"<soap:Body><j:x>1</j:x></soap:Body>"));
}

TEST(SOAPEnvelope, BodyXmlIsANewDocumentEachTime) {
    const auto envelope = Read(support::Soap(L"<x/>"));
    EXPECT_NE(envelope->BodyXml().Get(), envelope->BodyXml().Get());
}

TEST(SOAPEnvelope, BodyXmlAnswersQueriesWithTheLibrarysPrefixes) {
    const auto envelope = Read(support::SubmissionResponse(L"0"));
    ComPtr<IXMLDOMNode> found;
    EXPECT_OK(envelope->BodyXml()->selectSingleNode(support::Bstr(L"soap:Body/lejis:submissionResponse"),
                                                    found.GetAddressOf()));
    EXPECT_NE(nullptr, found);
}

TEST(SOAPEnvelope, BodyXmlHasNoRootWhenTheBodyDoesNotParse) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    for (const wchar_t* body : {L"", L"no xml", L"<a>", L"<!DOCTYPE a><a/>"}) {
        envelope->put_Body(support::Bstr(body));
        ComPtr<IXMLDOMElement> root;
        EXPECT_OK(envelope->BodyXml()->get_documentElement(root.GetAddressOf()));
        EXPECT_EQ(nullptr, root) << body;
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->IsFault(); }));
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->FaultMessage(); }));
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->FaultCode(); }));
    }
}

TEST(SOAPEnvelope, ABodyThatAClientSetsReplacesTheOneThatWasRead) {
    const auto envelope = Read(support::SoapFault(L"a", L"b"));
    envelope->put_Body(support::Bstr(L"<soap:Body xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>"));
    EXPECT_FALSE(envelope->IsFault());
}

TEST(SOAPEnvelope, ReadingAnEnvelopeWithoutBodyLeavesItEmpty) {
    const auto envelope = Read(support::Soap(L"<x/>"));
    envelope->FromXmlDocument(Parse(L"<soap:Envelope/>"));
    EXPECT_EQ(L"", envelope->Body());
    EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->IsFault(); }));
}

TEST(SOAPEnvelope, DoesNotReadTheHeaderBack) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->Username = L"u";
    envelope->FromXmlDocument(Parse(support::Soap(L"<x/>")));
    EXPECT_EQ(L"", envelope->Username);
}

TEST(SOAPEnvelope, RefusesADocumentThatIsNoEnvelope) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    for (const wchar_t* xml : {L"<html/>", L"<Envelope/>", L"<x><soap:Envelope/></x>"}) {
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->FromXmlDocument(Parse(xml)); })) << xml;
    }
    EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->FromXmlDocument(NewDocument()); }));
}

TEST(SOAPEnvelope, WritesNoHeaderWithoutUsername) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    EXPECT_TRUE(SameXml(envelope->ToXmlElement(NewDocument()).Get(),
                        L"<soap:Envelope><soap:Body></soap:Body></soap:Envelope>"));
}

TEST(SOAPEnvelope, WritesTheUsernameIntoTheSecurityHeader) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->Username = L"u";
    EXPECT_TRUE(SameXml(envelope->ToXmlElement(NewDocument()).Get(),
                        L"<soap:Envelope><soap:Header><wsse:Security><wsse:UsernameToken>"
                        L"<wsse:Username>u</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header>"
                        L"<soap:Body></soap:Body></soap:Envelope>"));
}

TEST(SOAPEnvelope, WritesMarkupInItsBodyEscaped) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->put_Body(support::Bstr(L"<a/>"));
    EXPECT_TRUE(SameXml(envelope->ToXmlElement(NewDocument()).Get(),
                        L"<soap:Envelope><soap:Body>&lt;a/&gt;</soap:Body></soap:Envelope>"));
}

}  // namespace
}  // namespace lejis
