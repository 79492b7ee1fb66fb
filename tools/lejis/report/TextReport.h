// The report for people: a line for each incident, what is to be said about it below, and a summary.
#pragma once

#include "report/FailureList.h"
#include "report/Report.h"

namespace lejis_client {

class TextReport final : public Report {
public:
    TextReport(const OperationKind& operation, const std::vector<std::wstring>& names, bool isQuiet);

private:
    void TellTry(const std::wstring& name, long number, const Attempt& attempt) override;
    void Tell(const std::wstring& name, const Attempt& attempt) override;
    void SumUp(const Ending& ending, int exitCode) override;
    std::wstring Status(const Outcome& outcome) const;
    std::wstring Counts(const Ending& ending) const;

    std::size_t nameWidth_ = 0;
    FailureList failures_;
};

}  // namespace lejis_client
