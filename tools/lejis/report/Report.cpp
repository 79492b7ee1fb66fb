#include "report/Report.h"

#include "console/ExitCode.h"

namespace lejis_client {

void Report::Begin(const std::wstring& name) { progress_.Begin(name); }

void Report::End(const std::wstring& name, const Attempt& attempt) {
    progress_.End();
    tally_.Add(attempt.outcome);
    Tell(name, attempt);
    if (tally_.Total() < total_) progress_.Show();
}

int Report::Finish(const Ending& ending) {
    const int failures = tally_.ExitCode() | (ending.left > 0 ? kExitTryAgain : kExitDone) |
                         (ending.fault.empty() ? kExitDone : kExitRefused);
    const int exitCode = ending.isInterrupted ? kExitInterrupted : failures;
    SumUp(ending, exitCode);
    return exitCode;
}

}  // namespace lejis_client
