#include "report/Report.h"

#include "console/ExitCode.h"
#include "report/JsonReport.h"
#include "report/TextReport.h"

namespace lejis_client {

std::unique_ptr<Report> Report::Create(const CommandLine& commandLine, const std::vector<std::wstring>& names) {
    if (commandLine.json) return std::make_unique<JsonReport>(*commandLine.command, names.size());
    return std::make_unique<TextReport>(*commandLine.command, names, commandLine.quiet);
}

void Report::Begin(const std::wstring& name) { progress_.Begin(name); }

void Report::End(const std::wstring& name, const Attempt& attempt) {
    progress_.End();
    tally_.Add(attempt.outcome);
    Tell(name, attempt);
    if (tally_.Total() < total_) progress_.Show();
}

int Report::Finish(const Ending& ending) {
    const int failures = tally_.ExitCode() | (ending.left > 0 ? kExitTryAgain : kExitDone);
    const int exitCode = ending.isInterrupted ? kExitInterrupted : failures;
    SumUp(ending, exitCode);
    return exitCode;
}

}  // namespace lejis_client
