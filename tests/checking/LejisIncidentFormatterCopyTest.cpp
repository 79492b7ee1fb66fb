#include "checking/LejisIncidentFormatter.h"

#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Incidents.h"
#include "unit_support/Members.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

using Microsoft::WRL::ComPtr;
using support::Reparsed;
using support::Texts;
using Warnings = std::vector<std::wstring>;
using Incident = platform::Ref<LejisIncidentIndexCard>;

// An incident with a card of each kind in which nothing is to be mended.
Incident Clean() {
    auto incident = platform::Create<LejisIncidentIndexCard>();
    incident->OrganizationName = L"ERIE PD";
    incident->OrganizationORI = L"PA0250100";
    incident->ActivityID = L"07-1234";
    incident->CaveatText = L"caveat";
    incident->ChargeNCICCode = L"0101";
    incident->SubmittedDate->Assign(support::Date(L"2007-03-10"));
    incident->ActivityDateTime->Assign(support::Date(L"2007-03-09 14:05:00"));
    incident->Location->StreetNumber->Set(123456);
    const auto person = support::AddNew<LejisPersonIndexCard>(incident->PersonIndexCards);
    person->GivenName = L"ANN";
    person->SurName = L"LEE";
    person->Weight->Set(short{999});
    support::AddNew<LejisPropertyIndexCard>(incident->PropertyIndexCards)->Make = L"SONY";
    support::AddNew<LejisVehicleIndexCard>(incident->VehicleIndexCards)->Year->Set(short{1900});
    return incident;
}

TEST(LejisIncidentFormatterCopy, CopiesACleanIncidentWithoutWarnings) {
    const Incident incident = Clean();
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    const Incident copy = formatter->Shape(*incident);
    EXPECT_EQ(Warnings{}, Texts(*formatter->Warnings));
    EXPECT_NE(incident.Get(), copy.Get());
    EXPECT_TRUE(support::SameXml(Reparsed(copy->Write(support::NewDocument()).Get()).Get(), support::XmlOf(incident)));
}

TEST(LejisIncidentFormatterCopy, CopiesAsFarAsTheXmlFormCarries) {
    const Incident incident = Clean();
    incident->SubmittedDate->Assign(support::Date(L"2007-03-10 08:00:00"));
    incident->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0]->CaveatText = std::wstring(201, L'x');
    incident->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0]->CautionIndicator = true;
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    const Incident copy = formatter->Shape(*incident);
    EXPECT_EQ(Warnings{}, Texts(*formatter->Warnings));
    EXPECT_EQ(L"", copy->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0]->CaveatText);
    EXPECT_EQ(39151.0, copy->SubmittedDate->Date());
    EXPECT_TRUE(copy->CautionIndicator);
}

TEST(LejisIncidentFormatterCopy, KeepsBlanksInTheCopy) {
    const Incident incident = Clean();
    incident->ActivityID = L" 07-1234  ";
    incident->OrganizationName = L"   ";
    incident->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0]->SurName = L" LEE ";
    const Incident copy = platform::Create<LejisIncidentFormatter>()->Shape(*incident);
    EXPECT_EQ(L" 07-1234  ", copy->ActivityID);
    EXPECT_EQ(L"   ", copy->OrganizationName);
    EXPECT_EQ(L" LEE ", copy->PersonIndexCards->ItemsAs<LejisPersonIndexCard>()[0]->SurName);
}

TEST(LejisIncidentFormatterCopy, CountsBlanksInTexts) {
    const Incident incident = Clean();
    incident->OrganizationName = std::wstring(76, L' ');
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    const Incident copy = formatter->Shape(*incident);
    EXPECT_EQ(Warnings{L"Main record: Agency name '" + std::wstring(76, L' ') +
                       L"' was too long (76 characters) and was truncated to 75 characters."},
              Texts(*formatter->Warnings));
    EXPECT_EQ(std::wstring(75, L' '), copy->OrganizationName);
}

TEST(LejisIncidentFormatterCopy, WarnsOfAnOffenseCodeOfBlanks) {
    const Incident incident = Clean();
    incident->ChargeNCICCode = L"    ";
    const auto formatter = platform::Create<LejisIncidentFormatter>();
    EXPECT_EQ(L"", formatter->Shape(*incident)->ChargeNCICCode);
    EXPECT_EQ(Warnings{L"Main record: Charge NCIC code '    ' is not a valid NCIC offense code. Will submit a blank "
                       L"code instead."},
              Texts(*formatter->Warnings));
}

}  // namespace
}  // namespace lejis
