#include "commandline/Option.h"

#include "commandline/TakeValue.h"

namespace lejis_client {
namespace {

constexpr long kMostOfLong = 2147483647;
// A longer wait would be a mistake.
constexpr long kDay = 86400;
constexpr long kHour = 3600;

using Line = CommandLine;
using Run = IncidentSettings;
using Job = JobSettings;

template <auto member>
constexpr auto kRunFlag = TakeFlag<&Line::incidents, member>;
template <auto member>
constexpr auto kSearchFlag = TakeFlag<&Line::search, member>;
template <auto member>
constexpr auto kService = TakeText<&Line::incidents, &Run::job, &Job::service, member>;
template <auto member>
constexpr auto kNamed = TakeText<&Line::incidents, &Run::job, &Job::named, member>;
template <auto member, long least, long most>
constexpr auto kBacklog = TakeNumber<least, most, &Line::incidents, &Run::backlog, member>;

using Request = ILejisSearchRequest;
using Person = IPersonInquiryArguments;
using Vehicle = IVehicleInquiryArguments;
using Property = IPropertyInquiryArguments;
using Place = ILocationInquiryArguments;
using Words = ILejisAdHocInquiryArguments;

template <auto put>
constexpr auto kPerson = TakeCriterion<&Request::get_personArguments, put>;
template <auto holder>
constexpr auto kPersonNumber = TakeNumberCriterion<&Request::get_personArguments, holder>;
constexpr auto kBirthDate = TakeDayCriterion<&Request::get_personArguments, &Person::get_BirthDate>;
template <auto put>
constexpr auto kVehicle = TakeCriterion<&Request::get_VehicleArguments, put>;
constexpr auto kYear = TakeNumberCriterion<&Request::get_VehicleArguments, &Vehicle::get_Year>;
template <auto put>
constexpr auto kProperty = TakeCriterion<&Request::get_PropertyArguments, put>;
template <auto put>
constexpr auto kPlace = TakeCriterion<&Request::get_LocationArguments, put>;
constexpr auto kWords = TakeCriterion<&Request::get_AdHocInquiryArguments, &Words::put_QueryString>;

constexpr unsigned kSendingActions = kSubmitFiles | kDeleteIncidents;
constexpr unsigned kIncidentActions = kCheckFiles | kSendingActions;

constexpr wchar_t kSubmissionUrl[] = L"address of the submission service of the LEJIS Interface";
constexpr wchar_t kSearchUrl[] = L"address of the search service of the LEJIS Interface";
constexpr wchar_t kJsonDocument[] = L"print one JSON document, for programs";

// Name, other name, value, actions, taker, help. In the order of the help.
constexpr Option kOptions[] = {
    // Which incident.
    {L"--ori", nullptr, L"ORI", kDeleteIncidents, kNamed<&IncidentName::ori>, L"the agency's ORI"},
    {L"--id", nullptr, L"ID", kDeleteIncidents, kNamed<&IncidentName::number>, L"the agency's incident number"},
    {L"--submitted", nullptr, L"YYYY-MM-DD", kDeleteIncidents,
     TakeDay<&Line::incidents, &Run::job, &Job::named, &IncidentName::submitted>,
     L"the day on which the incident was submitted"},
    {L"--organization", nullptr, L"NAME", kDeleteIncidents, kNamed<&IncidentName::organization>, L"the agency's name"},

    // Where to, and by whom.
    {.name = L"--url",
     .otherName = nullptr,
     .value = L"URL",
     .actions = kSendingActions,
     .take = kService<&ServiceSettings::url>,
     .help = kSubmissionUrl,
     .variable = L"LEJIS_URL",
     .isRequired = true},
    {.name = L"--url",
     .otherName = nullptr,
     .value = L"URL",
     .actions = kSearchIndex,
     .take = TakeText<&Line::search, &SearchSettings::url>,
     .help = kSearchUrl,
     .variable = L"LEJIS_SEARCH_URL",
     .isRequired = true},
    {.name = L"--url",
     .otherName = nullptr,
     .value = L"URL",
     .actions = kDiagnose,
     .take = TakeText<&Line::doctor, &DoctorSettings::url>,
     .help = kSubmissionUrl,
     .variable = L"LEJIS_URL"},
    {.name = L"--search-url",
     .otherName = nullptr,
     .value = L"URL",
     .actions = kDiagnose,
     .take = TakeText<&Line::doctor, &DoctorSettings::searchUrl>,
     .help = kSearchUrl,
     .variable = L"LEJIS_SEARCH_URL"},
    {.name = L"--user",
     .otherName = nullptr,
     .value = L"JNETID",
     .actions = kSearchIndex,
     .take = TakeText<&Line::search, &SearchSettings::user>,
     .help = L"the JNET User ID of the user who searches",
     .variable = L"LEJIS_USER",
     .isRequired = true},

    // How.
    {L"--max", nullptr, L"N", kSearchIndex, TakeNumber<1, kMostOfLong, &Line::search, &SearchSettings::most>,
     L"get no more than N incidents"},
    {.name = L"--exclude-ori",
     .otherName = nullptr,
     .value = L"ORI",
     .actions = kSearchIndex,
     .take = TakeOneMore<&Line::search, &SearchSettings::excludedOris>,
     .help = L"leave an agency out; may be given more than once",
     .mayRepeat = true},
    {L"--validate-schema", nullptr, nullptr, kSubmitFiles,
     TakeFlag<&Line::incidents, &Run::job, &Job::service, &ServiceSettings::validateSchema>,
     L"check each request against the service's own schema first"},
    {L"--validate-schema", nullptr, nullptr, kSearchIndex, kSearchFlag<&SearchSettings::validateSchema>,
     L"check the request against the service's own schema first"},
    {L"--ledger", nullptr, L"FILE", kSendingActions, TakeText<&Line::incidents, &Run::ledger>,
     L"write down what became of each incident, and leave out what an earlier run with this ledger has done"},
    {L"--recurse", nullptr, nullptr, kIncidentActions, kRunFlag<&Run::recurse>,
     L"take the files in the folders below too"},
    {L"--jobs", nullptr, L"N", kIncidentActions, kBacklog<&BacklogSettings::jobs, 1, 32>,
     L"work on N incidents at a time, up to 32; 1 if left out"},
    {L"--retry", nullptr, L"N", kSendingActions, kBacklog<&BacklogSettings::retries, 0, 100>,
     L"try up to N times again, with growing pauses, what can end otherwise"},
    {L"--stop-after", nullptr, L"N", kSendingActions, kBacklog<&BacklogSettings::stopAfter, 1, 1000000>,
     L"stop when the network or the server has failed for N incidents in a row; 10 if left out"},
    {L"--rate", nullptr, L"N", kSendingActions, kBacklog<&BacklogSettings::rate, 1, 1000>,
     L"begin no more than N a second"},
    {L"--timeout", nullptr, L"SECONDS", kSendingActions, kBacklog<&BacklogSettings::seconds, 1, kDay>,
     L"how long to wait for LEJIS with one incident; 300 if left out"},
    {L"--timeout", nullptr, L"SECONDS", kDiagnose, TakeNumber<1, kHour, &Line::doctor, &DoctorSettings::seconds>,
     L"how long to wait for what each line tells; 10 if left out"},
    {L"--wait", nullptr, L"SECONDS", kSearchIndex, TakeNumber<1, kDay, &Line::search, &SearchSettings::seconds>,
     L"how long to wait for the answer, once the search is sent; 120 if left out"},
    {L"--force", nullptr, nullptr, kSendingActions | kSearchIndex, TakeFlag<&Line::force>,
     L"send also by a library that is made for lejis.example, which otherwise talks to this machine alone"},

    // What is printed.
    {L"--quiet", L"-q", nullptr, kIncidentActions, kRunFlag<&Run::quiet>,
     L"tell only what did not go through, and warnings"},
    {L"--verbose", L"-v", nullptr, kIncidentActions, kRunFlag<&Run::verbose>,
     L"tell also why each try failed that is made again"},
    {L"--xml", nullptr, nullptr, kSearchIndex, kSearchFlag<&SearchSettings::xml>,
     L"print the incident cards as one XML document"},
    {L"--csv", nullptr, nullptr, kSearchIndex, kSearchFlag<&SearchSettings::csv>,
     L"print a table for spreadsheets, one row a person"},
    {kJsonOption, nullptr, nullptr, kIncidentActions, TakeFlag<&Line::json>,
     L"print one JSON object a line, for programs"},
    {kJsonOption, nullptr, nullptr, kEveryAction & ~kIncidentActions, TakeFlag<&Line::json>, kJsonDocument},
    {L"--help", L"-h", nullptr, kEveryAction, TakeFlag<&Line::help>, L"print this help"},
    {L"--version", L"-V", nullptr, kNoCommand, TakeFlag<&Line::version>,
     L"names this program and the library that it uses"},

    // What is searched for.
    {L"--surname", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_SurName>, L"a person's surname", L"Person"},
    {L"--given", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_GivenName>, L"a given name", L"Person"},
    {L"--middle", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_MiddleName>, L"a middle name", L"Person"},
    {L"--dob", nullptr, L"YYYY-MM-DD", kSearchIndex, kBirthDate, L"a date of birth", L"Person"},
    {L"--ssn", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_SSN>, L"a Social Security number", L"Person"},
    {L"--license", L"--licence", L"TEXT", kSearchIndex, kPerson<&Person::put_DriversLicense>, L"a driver's license",
     L"Person"},
    {L"--license-state", L"--licence-state", L"TEXT", kSearchIndex, kPerson<&Person::put_DriversLicenseState>,
     L"the state of the license, an NCIC code", L"Person"},
    {L"--sex", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_SexNCIC>, L"an NCIC code", L"Person"},
    {L"--race", nullptr, L"TEXT", kSearchIndex, kPerson<&Person::put_RaceNCIC>, L"an NCIC code", L"Person"},
    {L"--height", nullptr, L"N", kSearchIndex, kPersonNumber<&Person::get_Height>, L"in feet and inches, as 510",
     L"Person"},
    {L"--weight", nullptr, L"N", kSearchIndex, kPersonNumber<&Person::get_Weight>, L"in pounds", L"Person"},
    {L"--vin", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_VIN>, L"a vehicle's VIN", L"Vehicle"},
    {L"--plate", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_LicensePlate>, L"a license plate", L"Vehicle"},
    {L"--plate-state", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_LicensePlateState>,
     L"the state of the plate, an NCIC code", L"Vehicle"},
    {L"--vehicle-make", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_Make>, L"who made it", L"Vehicle"},
    {L"--vehicle-model", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_Model>, L"its model", L"Vehicle"},
    {L"--vehicle-year", nullptr, L"N", kSearchIndex, kYear, L"its model year", L"Vehicle"},
    {L"--vehicle-style", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_Style>, L"its style", L"Vehicle"},
    {L"--vehicle-color", nullptr, L"TEXT", kSearchIndex, kVehicle<&Vehicle::put_Color>, L"its color", L"Vehicle"},
    {L"--serial", nullptr, L"TEXT", kSearchIndex, kProperty<&Property::put_SerialNumber>, L"a serial number",
     L"Property"},
    {L"--property-category", nullptr, L"TEXT", kSearchIndex, kProperty<&Property::put_Category>, L"a kind of property",
     L"Property"},
    {L"--property-make", nullptr, L"TEXT", kSearchIndex, kProperty<&Property::put_Make>, L"who made it", L"Property"},
    {L"--property-model", nullptr, L"TEXT", kSearchIndex, kProperty<&Property::put_Model>, L"its model", L"Property"},
    {L"--street-full", nullptr, L"TEXT", kSearchIndex, kPlace<&Place::put_StreetFullText>,
     L"a street with its house number", L"Place"},
    {L"--street", nullptr, L"TEXT", kSearchIndex, kPlace<&Place::put_StreetName>, L"a street's name", L"Place"},
    {L"--city", nullptr, L"TEXT", kSearchIndex, kPlace<&Place::put_City>, L"a city", L"Place"},
    {L"--state", nullptr, L"TEXT", kSearchIndex, kPlace<&Place::put_State>, L"a state, an NCIC code", L"Place"},
    {L"--zip", nullptr, L"TEXT", kSearchIndex, kPlace<&Place::put_ZIP>, L"a ZIP code", L"Place"},
    {L"--text", nullptr, L"TEXT", kSearchIndex, kWords, L"words anywhere in the incident", L"Words"},
};

}  // namespace

std::span<const Option> Options() { return kOptions; }

std::vector<const Option*> OptionsOf(Action action) {
    std::vector<const Option*> options;
    for (const Option& option : kOptions) {
        if (option.BelongsTo(action)) options.push_back(&option);
    }
    return options;
}

const Option* FindOption(Action action, std::wstring_view name) {
    for (const Option& option : kOptions) {
        if (option.BelongsTo(action) && option.IsCalled(name)) return &option;
    }
    return nullptr;
}

}  // namespace lejis_client
