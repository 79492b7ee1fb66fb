#include "doctor/Doctor.h"

#include "doctor/Diagnosis.h"
#include "doctor/DumpCheck.h"
#include "doctor/EnvironmentCheck.h"
#include "doctor/LibraryCheck.h"
#include "doctor/ProxyCheck.h"
#include "doctor/ServiceCheck.h"

namespace lejis_client {
namespace {

void Examine(const DoctorSettings& settings, Diagnosis& diagnosis) {
    const auto lejisHost = CheckLibrary(diagnosis);
    CheckEnvironment(settings.variables, diagnosis);
    CheckProxy(diagnosis);
    if (settings.url) CheckService(ServiceKind::kSubmission, *settings.url, lejisHost, diagnosis);
    if (settings.searchUrl) CheckService(ServiceKind::kSearch, *settings.searchUrl, lejisHost, diagnosis);
    CheckDumps(diagnosis);
}

}  // namespace

int Diagnose(const DoctorSettings& settings, bool json) {
    Diagnosis diagnosis(json, settings.seconds);
    Examine(settings, diagnosis);
    diagnosis.Finish();
    // Work that was given up goes on in a thread, which must not find the program half taken apart.
    if (diagnosis.HasGivenUpWork()) TerminateProcess(GetCurrentProcess(), static_cast<UINT>(diagnosis.ExitCode()));
    return diagnosis.ExitCode();
}

}  // namespace lejis_client
