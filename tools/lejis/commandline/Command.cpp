#include "commandline/Command.h"
#include "commandline/Help.h"

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

using Service = ComPtr<ILejisSubmissionWebService>;

Outcome CheckIncident(const CommandLine&, ILejisIncidentIndexCard* incident) {
    const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
    ComPtr<ILejisIncidentIndexCard> shaped;
    Check(formatter->Format(incident, &shaped));
    ComPtr<ICollection> warnings;
    Check(formatter->get_Warnings(&warnings));

    const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
    VARIANT_BOOL hasErrors = VARIANT_FALSE;
    Check(validator->Validate(shaped.Get(), &hasErrors));
    ComPtr<ICollection> errors;
    Check(validator->get_Errors(&errors));
    return {hasErrors ? Result::Refused : Result::Done, Texts(errors.Get()), Texts(warnings.Get()), {}};
}

Service ServiceFor(const CommandLine& commandLine) {
    Service service = Create<LejisSubmissionWebService, ILejisSubmissionWebService>();
    Check(service->put_URL(_bstr_t(commandLine.url->c_str())));
    Check(service->put_ValidateSchema(commandLine.validateSchema ? VARIANT_TRUE : VARIANT_FALSE));
    return service;
}

Outcome SubmitIncident(const CommandLine& commandLine, ILejisIncidentIndexCard* incident) {
    const Service service = ServiceFor(commandLine);
    try {
        ComPtr<ICollection> warnings;
        Check(service->SubmitIncident(incident, &warnings));
        return {Result::Done, {}, Texts(warnings.Get()), {}};
    } catch (const LibraryError& error) {
        return FailedCall(error);
    }
}

Outcome DeleteIncident(const CommandLine& commandLine, ILejisIncidentIndexCard* incident) {
    const Service service = ServiceFor(commandLine);
    try {
        Check(service->DeleteIncident(incident));
        return {};
    } catch (const LibraryError& error) {
        return FailedCall(error);
    }
}

constexpr Command kCommands[] = {
    {.name = L"check", .help = kCheckHelp, .success = L"fit for submission", .run = CheckIncident},
    {.name = L"submit",
     .help = kSubmitHelp,
     .takesUrl = true,
     .needsUrl = true,
     .canValidateSchema = true,
     .success = L"submitted",
     .run = SubmitIncident},
    {.name = L"delete",
     .help = kDeleteHelp,
     .takesUrl = true,
     .needsUrl = true,
     .canNameIncident = true,
     .success = L"withdrawn",
     .run = DeleteIncident},
    {.name = L"search",
     .help = kSearchHelp,
     .takesUrl = true,
     .needsUrl = true,
     .canValidateSchema = true,
     .searches = true},
    {.name = L"doctor", .help = kDoctorHelp, .takesUrl = true, .diagnoses = true},
};

}  // namespace

const Command* FindCommand(std::wstring_view name) {
    for (const Command& command : kCommands) {
        if (command.name == name) return &command;
    }
    return nullptr;
}

}  // namespace lejis_client
