// One JSON object a line: for each incident as it becomes known, and a last one that sums up.
#pragma once

#include "report/Report.h"
#include "text/Json.h"

namespace lejis_client {

class JsonReport : public Report {
public:
    JsonReport(const OperationKind& operation, std::size_t total, bool isQuiet) : Report(operation, total, isQuiet) {}

private:
    Json LineOf(const std::wstring& name, const Attempt& attempt) const;
    void TellTry(const std::wstring& name, long number, const Attempt& attempt) override;
    void Tell(const std::wstring& name, const Attempt& attempt) override;
    void SumUp(const Ending& ending, int exitCode) override;
};

}  // namespace lejis_client
