// kit [http://HOST:PORT] [--only RUN]
// Registers the library of each bitness that is beside this program, runs the tests, the scripts and the samples, and
// writes report.json and report.html. The address is that of a LEJIS Interface simulator, never of a true LEJIS: the
// tests empty its index. Ends with 0 when nothing failed, 1 when something did, 2 when nothing could be tried.
#include "Files.h"
#include "Machine.h"
#include "Page.h"
#include "Report.h"
#include "Simulator.h"
#include "text/UtcTime.h"
#include "text/Utf8.h"

#include <windows.h>

#include <cstdio>
#include <stdexcept>

namespace kit {
namespace {

constexpr int kGood = 0;
constexpr int kBad = 1;
constexpr int kNotTried = 2;

void Say(const std::string& line) {
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

void SayTrial(const Trial& trial) {
    using lejis_client::Utf8;
    Say(std::string(trial.result.status) + "  " + Utf8(trial.run.bits + L" " + trial.run.name) + ": " +
        trial.result.seen);
}

Settings ReadArguments(int count, wchar_t** arguments) {
    Settings settings;
    settings.folder = OwnFolder();
    settings.results = settings.folder + L"\\results";
    for (int index = 1; index < count; ++index) {
        const std::wstring argument = arguments[index];
        if (argument == L"--only" && index + 1 < count) {
            settings.only = arguments[++index];
        } else if (argument.starts_with(L"http://") && settings.simulator.empty()) {
            settings.simulator = argument.substr(0, argument.find_last_not_of(L'/') + 1);
        } else {
            throw std::runtime_error("usage: check [http://HOST:PORT] [--only RUN]");
        }
    }
    return settings;
}

// What has been installed is not taken out of the registry by a trial.
void RequireFreeMachine() {
    if (!IsAdministrator()) {
        throw std::runtime_error("The library is registered for its tests: start this as administrator.");
    }
    const std::wstring registered = RegisteredLibrary();
    if (registered.empty()) return;
    throw std::runtime_error(
        "TVLejisCore is registered on this machine (" + lejis_client::Utf8(registered) +
        "). Uninstall it first: the kit registers its own. What a check that was broken off has left is taken "
        "out by regsvr32 /u and that path.");
}

void Prepare(const Settings& settings) {
    CreateDirectoryW(settings.results.c_str(), nullptr);
    // No program stops at a message of Windows that it has crashed.
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    SetEnvironmentVariableW(L"LEJIS_SIMULATOR_URL", settings.simulator.empty() ? nullptr : settings.simulator.c_str());
}

int Check(const Settings& settings) {
    RequireFreeMachine();
    if (!settings.simulator.empty()) RequireSimulator(settings.simulator);
    Prepare(settings);
    const std::string started = lejis_client::UtcNow();
    const std::vector<Trial> trials = TryAll(settings, SayTrial);
    const Json report = ReportOf(settings, trials, started);
    Write(settings.folder + L"\\report.json", TextOf(report));
    Write(settings.folder + L"\\report.html", PageOf(report));
    Say("The report: " + lejis_client::Utf8(settings.folder) + "\\report.html");
    return IsGood(report) ? kGood : kBad;
}

}  // namespace
}  // namespace kit

int wmain(int count, wchar_t** arguments) {
    try {
        return kit::Check(kit::ReadArguments(count, arguments));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return kit::kNotTried;
    }
}
