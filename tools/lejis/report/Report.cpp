#include "report/Report.h"

#include "report/JsonReport.h"
#include "report/TextReport.h"

namespace lejis_client {

std::unique_ptr<Report> Report::Create(const CommandLine& commandLine, const std::vector<std::wstring>& names) {
    if (commandLine.json) return std::make_unique<JsonReport>(*commandLine.command, names.size());
    return std::make_unique<TextReport>(*commandLine.command, names);
}

void Report::Begin(const std::wstring& name) { progress_.Begin(name); }

void Report::End(const std::wstring& name, const Outcome& outcome) {
    progress_.End();
    tally_.Add(outcome);
    Tell(name, outcome);
}

}  // namespace lejis_client
