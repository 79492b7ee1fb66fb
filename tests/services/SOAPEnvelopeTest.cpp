#include "services/SOAPEnvelope.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Printing.h"
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

platform::Ref<SOAPEnvelope> Read(const std::wstring& xml) {
    auto envelope = platform::Create<SOAPEnvelope>();
    envelope->ReadDocument(Parse(xml));
    return envelope;
}

TEST(SOAPEnvelope, IsEmptyWhenNew) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    EXPECT_EQ(L"", envelope->Username);
    EXPECT_EQ(L"", envelope->Body());
}

TEST(SOAPEnvelope, WritesEachElementWithItsPrefix) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->Username = L"u";
    envelope->put_Body(support::Bstr(L"<soap:Body xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>"));
    const std::wstring written = msxml::Markup(envelope->Write(msxml::CreateDocument()));
    EXPECT_TRUE(written.starts_with(L"<soap:Envelope")) << support::Utf8(written);
    for (const wchar_t* name :
         {L"soap:Header", L"wsse:Security", L"wsse:UsernameToken", L"wsse:Username", L"soap:Body"}) {
        EXPECT_NE(std::wstring::npos, written.find(std::wstring(L"<") + name)) << support::Utf8(name);
    }
}

TEST(SOAPEnvelope, ReadsAFault) {
    const auto envelope = Read(support::SoapFault(L"soap:Server", L"x"));
    EXPECT_TRUE(envelope->HasFault());
    EXPECT_EQ(L"soap:Server", envelope->CodeOfFault());
    EXPECT_EQ(L"x", envelope->TextOfFault());
}

TEST(SOAPEnvelope, ReadsAFaultWithoutItsTexts) {
    for (const wchar_t* content : {L"", L"<soap:faultcode>a</soap:faultcode><soap:faultstring>b</soap:faultstring>",
                                   L"<detail><faultcode>a</faultcode><faultstring>b</faultstring></detail>"}) {
        const auto envelope = Read(support::Soap(std::wstring(L"<soap:Fault>") + content + L"</soap:Fault>"));
        EXPECT_TRUE(envelope->HasFault());
        EXPECT_EQ(L"", envelope->CodeOfFault());
        EXPECT_EQ(L"", envelope->TextOfFault());
    }
}

TEST(SOAPEnvelope, ReadsABodyWithoutFault) {
    const auto envelope = Read(support::Soap(L"<x><soap:Fault/></x>"));
    EXPECT_FALSE(envelope->HasFault());
    EXPECT_EQ(L"", envelope->CodeOfFault());
    EXPECT_EQ(L"", envelope->TextOfFault());
}

TEST(SOAPEnvelope, BodyIsTheMarkupOfTheBodyElementWithItsDeclarations) {
    const auto envelope = Read(L"<soap:Envelope><soap:Header/><soap:Body><j:x>1</j:x></soap:Body></soap:Envelope>");
    EXPECT_TRUE(envelope->Body().starts_with(L"<soap:Body"));
    EXPECT_TRUE(SameXml(envelope->BodyDocument().Get(), L"<soap:Body><j:x>1</j:x></soap:Body>"));
}

TEST(SOAPEnvelope, BodyXmlIsANewDocumentEachTime) {
    const auto envelope = Read(support::Soap(L"<x/>"));
    EXPECT_NE(envelope->BodyDocument().Get(), envelope->BodyDocument().Get());
}

TEST(SOAPEnvelope, BodyXmlAnswersQueriesWithTheLibrarysPrefixes) {
    const auto envelope = Read(support::SubmissionResponse(L"0"));
    ComPtr<IXMLDOMNode> found;
    EXPECT_OK(envelope->BodyDocument()->selectSingleNode(support::Bstr(L"soap:Body/lejis:submissionResponse"),
                                                         found.GetAddressOf()));
    EXPECT_NE(nullptr, found);
}

TEST(SOAPEnvelope, BodyXmlHasNoRootWhenTheBodyDoesNotParse) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    for (const wchar_t* body : {L"", L"no xml", L"<a>", L"<!DOCTYPE a><a/>"}) {
        envelope->put_Body(support::Bstr(body));
        ComPtr<IXMLDOMElement> root;
        EXPECT_OK(envelope->BodyDocument()->get_documentElement(root.GetAddressOf()));
        EXPECT_EQ(nullptr, root) << body;
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->HasFault(); }));
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->TextOfFault(); }));
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->CodeOfFault(); }));
    }
}

TEST(SOAPEnvelope, ABodyThatAClientSetsReplacesTheOneThatWasRead) {
    const auto envelope = Read(support::SoapFault(L"a", L"b"));
    envelope->put_Body(support::Bstr(L"<soap:Body xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'/>"));
    EXPECT_FALSE(envelope->HasFault());
}

TEST(SOAPEnvelope, ReadingAnEnvelopeWithoutBodyLeavesItEmpty) {
    const auto read = Read(support::Soap(L"<x/>"));
    const auto set = platform::Create<SOAPEnvelope>();
    EXPECT_OK(set->put_Body(support::Bstr(L"<x/>")));
    for (const auto& envelope : {read, set}) {
        envelope->ReadDocument(Parse(L"<soap:Envelope/>"));
        EXPECT_EQ(L"", envelope->Body());
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->HasFault(); }));
    }
}

TEST(SOAPEnvelope, DoesNotReadTheHeaderBack) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->Username = L"u";
    envelope->ReadDocument(Parse(support::Soap(L"<x/>")));
    EXPECT_EQ(L"", envelope->Username);
}

TEST(SOAPEnvelope, RefusesADocumentThatIsNoEnvelope) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    for (const wchar_t* xml : {L"<html/>", L"<Envelope/>", L"<x><soap:Envelope/></x>"}) {
        EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->ReadDocument(Parse(xml)); })) << xml;
    }
    EXPECT_TRUE(Raises(kObjectRequired, L"Object required", [&] { envelope->ReadDocument(NewDocument()); }));
}

// What a client has read, by the document or by its root, and how it goes on to change what it handed in.
struct Change {
    const char* name;
    void (*make)(const msxml::Document& document);
};

void RemoveTheBody(const msxml::Document& document) {
    const msxml::Node body = msxml::SelectNode(document, L"//*[local-name() = 'Body']");
    EXPECT_OK(msxml::Root(document)->removeChild(body.Get(), nullptr));
}

const Change kChanges[] = {
    {"AnotherText",
     [](const msxml::Document& document) {
         msxml::SetText(msxml::AsElement(msxml::SelectNode(document, L"//faultstring")), L"changed");
         msxml::SetText(msxml::AsElement(msxml::SelectNode(document, L"//faultcode")), L"changed");
     }},
    {"NoBody", RemoveTheBody},
    {"AnotherDocument", [](const msxml::Document& document) { msxml::LoadXml(document, L"<a/>"); }},
    {"NoSelectionNamespaces",
     [](const msxml::Document& document) {
         msxml::SetProperty(document, L"SelectionNamespaces", L"xmlns:soap='urn:another'");
     }},
    {"WhiteSpace",
     [](const msxml::Document& document) {
         EXPECT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
         msxml::Append(msxml::SelectNode(document, L"//faultstring"), msxml::CreateElement(document, L"more", L""));
     }},
};

class ClientsDocument : public testing::TestWithParam<Change> {
protected:
    static void ExpectWhatWasRead(SOAPEnvelope& envelope, const std::wstring& body) {
        EXPECT_EQ(body, envelope.Body());
        EXPECT_TRUE(envelope.HasFault());
        EXPECT_EQ(L"soap:Server", envelope.CodeOfFault());
        EXPECT_EQ(L"x", envelope.TextOfFault());
        EXPECT_TRUE(SameXml(envelope.BodyDocument().Get(),
                            L"<soap:Body><soap:Fault><faultcode>soap:Server</faultcode><faultstring>x</faultstring>"
                            L"</soap:Fault></soap:Body>"));
    }

    const support::Document document = Parse(support::SoapFault(L"soap:Server", L"x"));
    const platform::Ref<SOAPEnvelope> envelope = platform::Create<SOAPEnvelope>();
};

TEST_P(ClientsDocument, MayChangeWhenItHasBeenRead) {
    EXPECT_OK(envelope->FromXmlDocument(static_cast<IDispatch*>(document.Get())));
    const std::wstring body = envelope->Body();
    GetParam().make(document);
    ExpectWhatWasRead(*envelope, body);
}

TEST_P(ClientsDocument, MayChangeWhenItsRootHasBeenRead) {
    EXPECT_OK(envelope->FromXmlElement(static_cast<IDispatch*>(msxml::Root(document).Get())));
    GetParam().make(document);
    ExpectWhatWasRead(*envelope, envelope->Body());
    EXPECT_TRUE(envelope->Body().starts_with(L"<soap:Body"));
}

TEST_P(ClientsDocument, MayChangeBeforeAnythingIsAskedOfTheEnvelope) {
    EXPECT_OK(envelope->FromXmlDocument(static_cast<IDispatch*>(document.Get())));
    GetParam().make(document);
    EXPECT_EQ(L"x", envelope->TextOfFault());
    EXPECT_TRUE(envelope->HasFault());
}

INSTANTIATE_TEST_SUITE_P(Changes, ClientsDocument, testing::ValuesIn(kChanges),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SOAPEnvelope, ReadsWhiteSpaceAsItsOwnBodyXmlDoesWhateverTheClientsDocumentKeeps) {
    const msxml::Document document = msxml::CreateDocument();
    ASSERT_OK(document->put_preserveWhiteSpace(VARIANT_TRUE));
    ASSERT_TRUE(msxml::LoadXml(document, support::SoapFault(L"a", L"  x  ")));
    const auto envelope = platform::Create<SOAPEnvelope>();
    EXPECT_OK(envelope->FromXmlDocument(static_cast<IDispatch*>(document.Get())));
    const msxml::Node inBodyXml = msxml::SelectNode(envelope->BodyDocument(), L"soap:Body/soap:Fault/faultstring");
    EXPECT_EQ(std::wstring(msxml::Text(inBodyXml)), envelope->TextOfFault());
}

TEST(SOAPEnvelope, WritesNoHeaderWithoutUsername) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    EXPECT_TRUE(
        SameXml(envelope->Write(NewDocument()).Get(), L"<soap:Envelope><soap:Body></soap:Body></soap:Envelope>"));
}

TEST(SOAPEnvelope, WritesTheUsernameIntoTheSecurityHeader) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->Username = L"u";
    EXPECT_TRUE(SameXml(envelope->Write(NewDocument()).Get(),
                        L"<soap:Envelope><soap:Header><wsse:Security><wsse:UsernameToken>"
                        L"<wsse:Username>u</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header>"
                        L"<soap:Body></soap:Body></soap:Envelope>"));
}

TEST(SOAPEnvelope, WritesMarkupInItsBodyEscaped) {
    const auto envelope = platform::Create<SOAPEnvelope>();
    envelope->put_Body(support::Bstr(L"<a/>"));
    EXPECT_TRUE(SameXml(envelope->Write(NewDocument()).Get(),
                        L"<soap:Envelope><soap:Body>&lt;a/&gt;</soap:Body></soap:Envelope>"));
}

}  // namespace
}  // namespace lejis
