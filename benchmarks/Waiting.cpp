// What waiting for a slow server costs the processor.
#include "Sections.h"
#include "SlowServer.h"

#include "platform/ComError.h"
#include "services/LejisSubmissionWebService.h"
#include "TypicalIncident.h"

#include <chrono>

namespace benchmarks {
namespace {

double Microseconds(const FILETIME& time) {
    return static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart) / 10;
}

double ProcessorMicroseconds() {
    FILETIME created, ended, kernel, user;
    GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user);
    return Microseconds(kernel) + Microseconds(user);
}

}  // namespace

std::vector<Figure> Waiting() {
    const SlowServer server;
    const auto incident = TypicalIncident();
    const auto service = platform::Create<lejis::LejisSubmissionWebService>();
    service->URL = server.Url();
    Series processor{"submission to a server that answers after 2 s: processor", {}};
    Series wall{"wall time", {}};
    for (int round = 0; round <= kRounds; ++round) {
        const double before = ProcessorMicroseconds();
        const auto start = std::chrono::steady_clock::now();
        Microsoft::WRL::ComPtr<ICollection> warnings;
        platform::Check(service->SubmitIncident(incident.Get(), warnings.GetAddressOf()));
        const std::chrono::duration<double, std::micro> elapsed = std::chrono::steady_clock::now() - start;
        if (round == 0) continue;
        processor.rounds.push_back(ProcessorMicroseconds() - before);
        wall.rounds.push_back(elapsed.count());
    }
    return {Ratio(processor, wall, 0.02)};
}

}  // namespace benchmarks
