#include "inquiry/LejisInquiryResponse.h"

#include "foundation/Constants.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "support/ComCheck.h"
#include "support/DeepXml.h"
#include "support/Printing.h"
#include "support/Xml.h"
#include "unit_support/Answers.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::AnsweredCard;
using support::ParseElement;

namespace lejis {
namespace {

constexpr wchar_t kTooDeep[] = L"The XML is nested too deep: 260 levels or more";

std::wstring Answer(const std::wstring& content) {
    return L"<lejis:LEJISIndexInquiryResponse>" + content + L"</lejis:LEJISIndexInquiryResponse>";
}

std::wstring Counted(const std::wstring& count) { return L"<lejis:incidentcount>" + count + L"</lejis:incidentcount>"; }

platform::Ref<LejisInquiryResponse> Read(const std::wstring& content) {
    auto response = platform::Create<LejisInquiryResponse>();
    response->Read(ParseElement(Answer(content)));
    return response;
}

TEST(LejisInquiryResponse, IsEmptyWhenNewAndForAnEmptyAnswer) {
    for (const auto& response : {platform::Create<LejisInquiryResponse>(), Read(L"")}) {
        EXPECT_EQ(0u, response->IncidentIndexCards->Count());
        EXPECT_EQ(0, response->IncidentCount);
    }
}

TEST(LejisInquiryResponse, KeepsTheServersCountApartFromTheCards) {
    const auto response = Read(Counted(L"12") + AnsweredCard(L"1") + AnsweredCard(L"2") + AnsweredCard(L"3"));
    EXPECT_EQ(12, response->IncidentCount);
    ASSERT_EQ(3u, response->IncidentIndexCards->Count());
    EXPECT_EQ(L"1", response->IncidentIndexCards->ItemAs<LejisIncidentIndexCard>(1)->ActivityID);
    EXPECT_EQ(L"3", response->IncidentIndexCards->ItemAs<LejisIncidentIndexCard>(3)->ActivityID);
}

TEST(LejisInquiryResponse, TellsClientsTheServersCount) {
    const auto response = Read(Counted(L"12") + AnsweredCard(L"1"));
    long count = 0;
    EXPECT_OK(response->get_IncidentCount(&count));
    EXPECT_EQ(12, count);
}

TEST(LejisInquiryResponse, HasNothingAfterAnAnswerWithoutCardsAndCount) {
    const auto response = Read(Counted(L"7") + AnsweredCard(L"1"));
    response->Read(ParseElement(Answer(L"")));
    EXPECT_EQ(0u, response->IncidentIndexCards->Count());
    EXPECT_EQ(0, response->IncidentCount);
}

TEST(LejisInquiryResponse, RoundsTheCountToEvenAndTakesItsLeadingNumber) {
    const struct {
        const wchar_t* text;
        long count;
    } rows[] = {{L"2.5", 2}, {L"3.5", 4},   {L"12 found", 12}, {L"abc", 0}, {L"", 0},  {L"-3", -3},
                {L"1e2", 1}, {L"1,234", 1}, {L"0.5", 0},       {L".6", 1},  {L"+7", 7}};
    for (const auto& row : rows) EXPECT_EQ(row.count, Read(Counted(row.text))->IncidentCount) << row.text;
}

TEST(LejisInquiryResponse, TakesTheFirstNumberOfSeveral) {
    for (const wchar_t* text : {L"12 34", L"12\n34", L"12\t34", L"12\r\n 34", L"12 . 34", L"\n\t 12 34"}) {
        EXPECT_EQ(12, Read(Counted(text))->IncidentCount) << support::Utf8(text);
    }
    EXPECT_EQ(0, Read(Counted(L"- 12"))->IncidentCount);
}

TEST(LejisInquiryResponse, RaisesForACountOutOfRange) {
    EXPECT_TRUE(support::Raises(DISP_E_OVERFLOW, L"Overflow", [] { Read(Counted(std::wstring(400, L'9'))); }));
    EXPECT_TRUE(support::Raises(DISP_E_OVERFLOW, L"Overflow", [] { Read(Counted(L"3000000000")); }));
}

TEST(LejisInquiryResponse, ReplacesTheCardsOfAnEarlierRead) {
    const auto response = Read(AnsweredCard(L"1") + AnsweredCard(L"2"));
    const platform::Ref<Collection> before = response->IncidentIndexCards;
    response->Read(ParseElement(Answer(AnsweredCard(L"3"))));
    EXPECT_EQ(1u, response->IncidentIndexCards->Count());
    EXPECT_EQ(2u, before->Count());
}

TEST(LejisInquiryResponse, PassesOverCardsThatStandDeeper) {
    EXPECT_EQ(1u, Read(L"<x>" + AnsweredCard(L"1") + L"</x>" + AnsweredCard(L"2"))->IncidentIndexCards->Count());
}

TEST(LejisInquiryResponse, KeepsTheCardsBeforeOneThatCannotBeRead) {
    const auto response = Read(Counted(L"7"));
    EXPECT_TRUE(support::Raises(support::kInvalidArgument, L"elem cannot be Nothing", [&] {
        response->Read(ParseElement(Answer(AnsweredCard(L"1") + L"<lejis:RMSIncidentIndexCard/>" + Counted(L"2"))));
    }));
    EXPECT_EQ(1u, response->IncidentIndexCards->Count());
    EXPECT_EQ(7, response->IncidentCount);
}

TEST(LejisInquiryResponse, FindsTheAnswerAtAnyDepth) {
    const auto response = platform::Create<LejisInquiryResponse>();
    const auto document = support::Parse(support::InquiryResponse(AnsweredCard(L"1")));
    EXPECT_OK(static_cast<ILejisInquiryResponse*>(response.Get())->FromXmlDocument(document.Get()));
    EXPECT_EQ(1u, response->IncidentIndexCards->Count());
}

TEST(LejisInquiryResponse, TakesTheFirstAnswerInDocumentOrder) {
    const auto response = platform::Create<LejisInquiryResponse>();
    response->ReadBelow(
        support::Parse(L"<r><a>text<b>" + Answer(Counted(L"1")) + L"</b></a>" + Answer(Counted(L"2")) + L"</r>"));
    EXPECT_EQ(1, response->IncidentCount);
    response->ReadBelow(ParseElement(Answer(Counted(L"3") + Answer(Counted(L"4")))));
    EXPECT_EQ(4, response->IncidentCount);
}

TEST(LejisInquiryResponse, TakesTheFirstCountOfSeveral) {
    EXPECT_EQ(1, Read(Counted(L"1") + AnsweredCard(L"1") + Counted(L"2"))->IncidentCount);
    EXPECT_EQ(0, Read(L"<lejis:incidentcount/>" + Counted(L"2"))->IncidentCount);
}

TEST(LejisInquiryResponse, RefusesWhatIsTooDeepWhereItReads) {
    const auto document = support::Parse(Answer(Counted(L"1") + AnsweredCard(L"1") + L"<x/>"));
    const auto response = platform::Create<LejisInquiryResponse>();
    const auto read = [&] {
        return static_cast<ILejisInquiryResponse*>(response.Get())->FromXmlDocument(document.Get());
    };
    const msxml::Element answer = msxml::Root(document);
    support::NestIn(msxml::ChildElements(answer)[2].Get(), support::kVeryDeep);
    EXPECT_OK(read());
    EXPECT_EQ(1u, response->IncidentIndexCards->Count());
    support::NestIn(msxml::ChildElements(answer)[1].Get(), support::kVeryDeep, Constants::kJxdmNamespace);
    EXPECT_TRUE(support::FailedWith(read(), support::kInvalidArgument, kTooDeep));
    answer->removeChild(msxml::ChildElements(answer)[1].Get(), nullptr);
    EXPECT_OK(read());
    support::NestIn(msxml::ChildElements(answer)[0].Get(), support::kVeryDeep);
    EXPECT_TRUE(support::FailedWith(read(), support::kInvalidArgument, kTooDeep));
}

TEST(LejisInquiryResponse, LooksForItsAnswerAsDeepAsMsxmlParses) {
    const auto document = support::Parse(L"<r/>");
    support::NestIn(msxml::Root(document).Get(), msxml::kMaximumDepth);
    const auto response = platform::Create<LejisInquiryResponse>();
    EXPECT_TRUE(support::Raises(support::kInvalidArgument, kTooDeep, [&] { response->ReadBelow(document); }));
    EXPECT_TRUE(support::Raises(support::kObjectRequired, L"Object required",
                                [&] { response->ReadBelow(support::Parse(support::Nested(250))); }));
}

TEST(LejisInquiryResponse, RaisesTheObjectErrorWithoutAnAnswer) {
    const auto response = platform::Create<LejisInquiryResponse>();
    auto* client = static_cast<ILejisInquiryResponse*>(response.Get());
    EXPECT_TRUE(support::FailedWith(client->FromXmlDocument(support::Parse(L"<x/>").Get()), support::kObjectRequired,
                                    L"Object required"));
    EXPECT_TRUE(support::FailedWith(client->FromXmlElement(nullptr), support::kObjectRequired, L"Object required"));
}

}  // namespace
}  // namespace lejis
