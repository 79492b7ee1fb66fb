#include "report/Report.h"

#include "console/ExitCode.h"

namespace lejis_client {

void Report::Begin(const std::wstring& name) { progress_.Begin(name); }

void Report::Retry(const std::wstring& name, long number, const Attempt& attempt) {
    progress_.Hide();
    TellTry(name, number, attempt);
    progress_.Show();
}

void Report::End(const std::wstring& name, const Attempt& attempt) {
    const Outcome& outcome = attempt.outcome;
    progress_.End(outcome.result != Result::LeftOut);
    tally_.Add(outcome);
    if (!isQuiet_ || !outcome.errors.empty() || !outcome.warnings.empty()) Tell(name, attempt);
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
