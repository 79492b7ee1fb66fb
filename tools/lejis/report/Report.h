// Tells what becomes of the incidents, as it becomes known, and sums up.
#pragma once

#include "console/Progress.h"
#include "report/Ending.h"
#include "report/Tally.h"
#include "submission/OperationKind.h"
#include "submission/Task.h"

#include <string>
#include <vector>

namespace lejis_client {

class Report {
public:
    virtual ~Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void Begin(const std::wstring& name);
    // A try has failed, and another one follows.
    void Retry(const std::wstring& name, long number, const Attempt& attempt);
    void End(const std::wstring& name, const Attempt& attempt);
    // Sums up; returns the program's exit code.
    int Finish(const Ending& ending);

protected:
    // A quiet report leaves out what went through without a warning.
    Report(const OperationKind& operation, std::size_t total, bool isQuiet)
        : operation_(operation), total_(total), isQuiet_(isQuiet), progress_(total) {}

    virtual void TellTry(const std::wstring& name, long number, const Attempt& attempt) = 0;
    virtual void Tell(const std::wstring& name, const Attempt& attempt) = 0;
    virtual void SumUp(const Ending& ending, int exitCode) = 0;

    const OperationKind& operation_;
    std::size_t total_;
    bool isQuiet_;
    Progress progress_;
    Tally tally_;
};

}  // namespace lejis_client
