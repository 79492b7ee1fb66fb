// One JSON object a line: for each incident as it becomes known, and a last one that sums up.
#pragma once

#include "report/Report.h"

namespace lejis_client {

class JsonReport : public Report {
public:
    JsonReport(const OperationKind& operation, std::size_t total) : Report(operation, total) {}

private:
    void Tell(const std::wstring& name, const Attempt& attempt) override;
    void SumUp(const Ending& ending, int exitCode) override;
};

}  // namespace lejis_client
