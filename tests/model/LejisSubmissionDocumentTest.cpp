#include "model/LejisSubmissionDocument.h"

#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;
using support::FailedWith;
using support::NewDocument;
using support::SameXml;

// A contributing system with a version that does not change with the library's.
constexpr wchar_t kSystem[] =
    L"<lejis:ContributingSystem><ext:companyName>Talvex</ext:companyName><ext:systemName>TalvexSuite</ext:systemName>"
    L"<ext:systemVersion>3.1.27</ext:systemVersion></lejis:ContributingSystem>";

platform::Ref<LejisSubmissionDocument> NewSubmission() {
    auto submission = platform::Create<LejisSubmissionDocument>();
    submission->ContributingSystem->Read(ElementReader(support::ParseElement(kSystem)));
    return submission;
}

platform::Ref<LejisIncidentIndexCard> AddIncident(const platform::Ref<LejisSubmissionDocument>& submission,
                                                  const wchar_t* id) {
    auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->ActivityID = id;
    submission->Add(incident);
    return incident;
}

TEST(LejisSubmissionDocument, HasItsMembersInTheirOrder) {
    const auto submission = platform::Create<LejisSubmissionDocument>();
    EXPECT_TRUE(support::MembersInOrder(
        submission->Dispatch(), {L"IncidentIndexCards", L"ContributingSystem", L"ToXmlElement", L"ToXmlDocument"}));
}

TEST(LejisSubmissionDocument, HoldsNoIncidentsAndTheSuitesSystemWhenNew) {
    const auto submission = platform::Create<LejisSubmissionDocument>();
    EXPECT_EQ(0u, submission->IncidentIndexCards->Count());
    EXPECT_EQ(L"Talvex", submission->ContributingSystem->CompanyName);
    EXPECT_EQ(L"TalvexSuite", submission->ContributingSystem->SystemName);
    EXPECT_EQ(platform::Create<LejisContributingSystem>()->SystemVersion,
              submission->ContributingSystem->SystemVersion);
}

TEST(LejisSubmissionDocument, HandsOutItsOwnParts) {
    const auto submission = platform::Create<LejisSubmissionDocument>();
    ComPtr<ICollection> incidents;
    EXPECT_OK(submission->get_IncidentIndexCards(incidents.GetAddressOf()));
    EXPECT_OK(incidents->Add(_variant_t(platform::Create<LejisIncidentIndexCard>()->Dispatch())));
    EXPECT_EQ(1u, submission->IncidentIndexCards->Count());
    ComPtr<ILejisContributingSystem> system;
    EXPECT_OK(submission->get_ContributingSystem(system.GetAddressOf()));
    EXPECT_EQ(submission->ContributingSystem.Get(), system.Get());
}

TEST(LejisSubmissionDocument, WritesTheSystemAloneWithoutIncidents) {
    EXPECT_TRUE(SameXml(NewSubmission()->ToDocument().Get(),
                        std::wstring(L"<lejis:SubmitRmsIndex>") + kSystem + L"</lejis:SubmitRmsIndex>"));
}

TEST(LejisSubmissionDocument, WritesIncidentsInTheirOrderBeforeTheSystem) {
    const auto submission = NewSubmission();
    AddIncident(submission, L"FIRST");
    AddIncident(submission, L"SECOND");
    const auto children = msxml::ChildElements(msxml::Root(submission->ToDocument()));
    ASSERT_EQ(3u, children.size());
    EXPECT_EQ(L"RMSIncidentIndexCard", msxml::LocalName(children[0]));
    EXPECT_EQ(L"http://lejis.example/lejis/jxdm/1.0/service", msxml::NamespaceUri(children[0]));
    EXPECT_TRUE(std::wstring(msxml::Text(children[0])).starts_with(L"FIRST"));
    EXPECT_TRUE(std::wstring(msxml::Text(children[1])).starts_with(L"SECOND"));
    EXPECT_TRUE(SameXml(children[2].Get(), kSystem));
}

TEST(LejisSubmissionDocument, MakesItsElementTheRoot) {
    const auto submission = NewSubmission();
    const auto document = NewDocument();
    ComPtr<IDispatch> element;
    EXPECT_OK(submission->ToXmlElement(document.Get(), element.GetAddressOf()));
    const std::wstring expected = std::wstring(L"<lejis:SubmitRmsIndex>") + kSystem + L"</lejis:SubmitRmsIndex>";
    EXPECT_TRUE(SameXml(element.Get(), expected));
    EXPECT_TRUE(SameXml(document.Get(), expected));
}

TEST(LejisSubmissionDocument, FailsForADocumentThatHasARoot) {
    const auto submission = NewSubmission();
    const auto document = NewDocument();
    ComPtr<IDispatch> element;
    EXPECT_OK(submission->ToXmlElement(document.Get(), element.GetAddressOf()));
    AddIncident(submission, L"LATER");
    EXPECT_TRUE(FailedWith(submission->ToXmlElement(document.Get(), element.ReleaseAndGetAddressOf()), E_FAIL,
                           L"Only one top level element is allowed in an XML document."));
    EXPECT_TRUE(
        SameXml(document.Get(), std::wstring(L"<lejis:SubmitRmsIndex>") + kSystem + L"</lejis:SubmitRmsIndex>"));
}

TEST(LejisSubmissionDocument, MakesANewDocumentEachTime) {
    const auto submission = NewSubmission();
    ComPtr<IDispatch> first;
    ComPtr<IDispatch> second;
    EXPECT_OK(submission->ToXmlDocument(first.GetAddressOf()));
    AddIncident(submission, L"LATER");
    EXPECT_OK(submission->ToXmlDocument(second.GetAddressOf()));
    EXPECT_EQ(1u, msxml::ChildElements(msxml::Root(msxml::DocumentFrom(first.Get()))).size());
    EXPECT_EQ(2u, msxml::ChildElements(msxml::Root(msxml::DocumentFrom(second.Get()))).size());
}

TEST(LejisSubmissionDocument, WritesNothingButTheRootIntoItsDocument) {
    const msxml::Document document = NewSubmission()->ToDocument();
    VARIANT_BOOL async = VARIANT_TRUE;
    EXPECT_OK(document->get_async(&async));
    EXPECT_EQ(VARIANT_FALSE, async);
    ComPtr<IXMLDOMNodeList> nodes;
    long count = 0;
    EXPECT_OK(document->get_childNodes(nodes.GetAddressOf()));
    EXPECT_OK(nodes->get_length(&count));
    EXPECT_EQ(1, count);
}

TEST(LejisSubmissionDocument, RefusesForeignObjectsAmongItsIncidents) {
    const auto submission = NewSubmission();
    AddIncident(submission, L"FIRST");
    submission->IncidentIndexCards->AddObject(platform::Create<LejisPersonIndexCard>()->Dispatch());
    ComPtr<IDispatch> document;
    EXPECT_TRUE(FailedWith(submission->ToXmlDocument(document.GetAddressOf()), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    EXPECT_EQ(nullptr, document.Get());
}

TEST(LejisSubmissionDocument, AppendsEachCardBeforeItAsksForTheNext) {
    const auto submission = NewSubmission();
    AddIncident(submission, L"FIRST");
    submission->IncidentIndexCards->AddObject(platform::Create<LejisPersonIndexCard>()->Dispatch());
    const auto document = NewDocument();
    ComPtr<IDispatch> element;
    EXPECT_TRUE(FailedWith(submission->ToXmlElement(document.Get(), element.GetAddressOf()), DISP_E_TYPEMISMATCH,
                           L"Type mismatch"));
    const auto children = msxml::ChildElements(msxml::Root(document));
    ASSERT_EQ(1u, children.size());
    EXPECT_TRUE(std::wstring(msxml::Text(children[0])).starts_with(L"FIRST"));
}

TEST(LejisSubmissionDocument, NeedsADocumentToWriteTo) {
    ComPtr<IDispatch> element;
    EXPECT_TRUE(FailedWith(NewSubmission()->ToXmlElement(nullptr, element.GetAddressOf()), support::kObjectRequired,
                           L"Object required"));
    EXPECT_EQ(E_POINTER, NewSubmission()->ToXmlDocument(nullptr));
}

}  // namespace
}  // namespace lejis
