// Each text at its limit and one character beyond.
#include "checking/FormattedRecords.h"

#include <gtest/gtest.h>

#include <ostream>

namespace lejis {
namespace {

using Field = platform::TextField& (*)(Records&);

struct Limit {
    const char* name;
    Field field;
    size_t limit;
    // {} stands for the text before it is cut.
    const wchar_t* warning;
};

void PrintTo(const Limit& row, std::ostream* out) { *out << row.name; }

std::wstring Filled(std::wstring pattern, const std::wstring& text) {
    for (size_t place = 0; (place = pattern.find(L"{}", place)) != std::wstring::npos; place += text.size()) {
        pattern.replace(place, 2, text);
    }
    return pattern;
}

class TextLimits : public testing::TestWithParam<Limit> {};

TEST_P(TextLimits, CutTheTextAndWarn) {
    Records records;
    platform::TextField& field = GetParam().field(records);
    const std::wstring longest = L"a" + std::wstring(GetParam().limit - 2, L' ') + L"b";
    field = longest;
    EXPECT_EQ(Warnings{}, records.Apply());
    EXPECT_EQ(longest, field);
    field = longest + L"c";
    EXPECT_EQ(Warnings{Filled(GetParam().warning, longest + L"c")}, records.Apply());
    EXPECT_EQ(longest, field);
    EXPECT_EQ(Warnings{}, records.Apply());
}

constexpr Limit kLimits[] = {
    {"IncidentOrganization", [](Records& r) -> platform::TextField& { return r.incident->OrganizationName; }, 75,
     L"Main record: Agency name '{}' was too long (76 characters) and was truncated to 75 characters."},
    {"IncidentCaveat", [](Records& r) -> platform::TextField& { return r.incident->CaveatText; }, 200,
     L"Main record: Caveat text '{}' was too long (201 characters) and was truncated to 200 characters."},
    {"IncidentCharge", [](Records& r) -> platform::TextField& { return r.incident->ChargeDescriptionText; }, 200,
     L"Main record: Charge description '{}' was too long (201 characters) and was truncated to 200 characters."},
    {"PersonOrganization", [](Records& r) -> platform::TextField& { return r.person->OrganizationName; }, 75,
     L"  (Suspect): Agency name '{}' was too long (76 characters) and was truncated to 75 characters."},
    {"PersonCaveat", [](Records& r) -> platform::TextField& { return r.person->CaveatText; }, 200,
     L"  (Suspect): Caveat text '{}' was too long (201 characters) and was truncated to 200 characters."},
    {"PersonCharge", [](Records& r) -> platform::TextField& { return r.person->ChargeDescriptionText; }, 200,
     L"  (Suspect): Charge description '{}' was too long (201 characters) and was truncated to 200 characters."},
    {"GivenName", [](Records& r) -> platform::TextField& { return r.person->GivenName; }, 28,
     L"{}  (Suspect): First name '{}' was 29 characters long. Name was truncated to 28 characters."},
    {"MiddleName", [](Records& r) -> platform::TextField& { return r.person->MiddleName; }, 28,
     L" {}  (Suspect): Middle name '{}' was 29 characters long. Name was truncated to 28 characters."},
    {"SurName", [](Records& r) -> platform::TextField& { return r.person->SurName; }, 28,
     L" {} (Suspect): Last name '{}' was 29 characters long. Name was truncated to 28 characters."},
    {"PropertyCategory", [](Records& r) -> platform::TextField& { return r.property->Category; }, 35,
     L"(S-1): Category '{}' was too long (36 characters) and was truncated to 35 characters."},
    {"PropertyMake", [](Records& r) -> platform::TextField& { return r.property->Make; }, 35,
     L"{}  (S-1): Make '{}' was too long (36 characters) and was truncated to 35 characters."},
    {"PropertyModel", [](Records& r) -> platform::TextField& { return r.property->Model; }, 35,
     L"{} (S-1): Model '{}' was too long (36 characters) and was truncated to 35 characters."},
    {"VehicleModel", [](Records& r) -> platform::TextField& { return r.vehicle->Model; }, 30,
     L"Vehicle   {}  : Model '{}' was too long (31 characters) and was truncated to 30 characters."},
    {"VehicleColor", [](Records& r) -> platform::TextField& { return r.vehicle->Color; }, 30,
     L"Vehicle {}    : Color '{}' was too long (31 characters) and was truncated to 30 characters."},
    {"IncidentStreetFullText", [](Records& r) -> platform::TextField& { return r.incident->Location->StreetFullText; },
     45, L"Main record: Full street address '{}' was too long (46 characters) and was truncated to 45 characters."},
    {"IncidentStreetName", [](Records& r) -> platform::TextField& { return r.incident->Location->StreetName; }, 30,
     L"Main record: Street name '{}' was too long (31 characters) and was truncated to 30 characters."},
    {"IncidentStreetExtension",
     [](Records& r) -> platform::TextField& { return r.incident->Location->StreetExtension; }, 10,
     L"Main record: Street extension '{}' was too long (11 characters) and was truncated to 10 characters."},
    {"IncidentStreetType", [](Records& r) -> platform::TextField& { return r.incident->Location->StreetType; }, 10,
     L"Main record: Street type '{}' was too long (11 characters) and was truncated to 10 characters."},
    {"IncidentStreetDirection",
     [](Records& r) -> platform::TextField& { return r.incident->Location->StreetDirection; }, 9,
     L"Main record: Street directional '{}' was too long (10 characters) and was truncated to 9 characters."},
    {"PersonStreetFullText", [](Records& r) -> platform::TextField& { return r.person->address->StreetFullText; }, 45,
     L"  (Suspect): Full street address '{}' was too long (46 characters) and was truncated to 45 characters."},
};

INSTANTIATE_TEST_SUITE_P(All, TextLimits, testing::ValuesIn(kLimits),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(FormattingRules, LimitNoOtherText) {
    Records records;
    const std::wstring longText(1000, L'x');
    const Field unlimited[] = {
        [](Records& r) -> platform::TextField& { return r.incident->OrganizationORI; },
        [](Records& r) -> platform::TextField& { return r.incident->ActivityID; },
        [](Records& r) -> platform::TextField& { return r.incident->Location->City; },
        [](Records& r) -> platform::TextField& { return r.incident->Location->State; },
        [](Records& r) -> platform::TextField& { return r.person->SSN; },
        [](Records& r) -> platform::TextField& { return r.person->DriversLicense; },
        [](Records& r) -> platform::TextField& { return r.person->SubjectCautionInformationCode; },
        [](Records& r) -> platform::TextField& { return r.person->Involvement; },
        [](Records& r) -> platform::TextField& { return r.property->SerialID; },
        [](Records& r) -> platform::TextField& { return r.property->CaveatText; },
        [](Records& r) -> platform::TextField& { return r.vehicle->Make; },
        [](Records& r) -> platform::TextField& { return r.vehicle->Style; },
        [](Records& r) -> platform::TextField& { return r.vehicle->VIN; },
        [](Records& r) -> platform::TextField& { return r.vehicle->CaveatText; },
    };
    for (const Field field : unlimited) field(records) = longText;
    EXPECT_EQ(Warnings{}, records.Apply());
    for (const Field field : unlimited) EXPECT_EQ(longText, field(records));
}

}  // namespace
}  // namespace lejis
