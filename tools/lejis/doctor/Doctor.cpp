#include "doctor/Doctor.h"

#include "commandline/UsageError.h"
#include "doctor/Diagnosis.h"
#include "doctor/DumpCheck.h"
#include "doctor/LibraryCheck.h"
#include "doctor/ProxyCheck.h"
#include "doctor/ServiceCheck.h"
#include "text/Number.h"

namespace lejis_client {
namespace {

constexpr long kUsualSeconds = 10;
// An hour for each line. More would be a mistake.
constexpr long kMostSeconds = 3600;

long Seconds(const CommandLine& commandLine) {
    if (!commandLine.timeout) return kUsualSeconds;
    if (const auto seconds = ParseNumber(*commandLine.timeout, 1, kMostSeconds)) return *seconds;
    throw UsageError{
        L"--timeout: '" + *commandLine.timeout + L"' is no whole number from 1 to " + std::to_wstring(kMostSeconds),
        commandLine.command->name};
}

void Examine(const CommandLine& commandLine, Diagnosis& diagnosis) {
    const auto lejisHost = CheckLibrary(diagnosis);
    diagnosis.Add(CheckProxy());
    if (commandLine.url) CheckService(ServiceKind::kSubmission, *commandLine.url, lejisHost, diagnosis);
    if (commandLine.searchUrl) CheckService(ServiceKind::kSearch, *commandLine.searchUrl, lejisHost, diagnosis);
    CheckDumps(diagnosis);
}

}  // namespace

int Diagnose(const CommandLine& commandLine) {
    Diagnosis diagnosis(commandLine.json, Seconds(commandLine));
    Examine(commandLine, diagnosis);
    diagnosis.Finish();
    // Work that was given up goes on in a thread, which must not find the program half taken apart.
    if (diagnosis.HasGivenUpWork()) TerminateProcess(GetCurrentProcess(), static_cast<UINT>(diagnosis.ExitCode()));
    return diagnosis.ExitCode();
}

}  // namespace lejis_client
