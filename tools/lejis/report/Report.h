// Tells what becomes of the incidents, as it becomes known, and sums up.
#pragma once

#include "commandline/CommandLine.h"
#include "console/Progress.h"
#include "report/Ending.h"
#include "report/Tally.h"
#include "submission/Task.h"

#include <memory>
#include <string>
#include <vector>

namespace lejis_client {

class Report {
public:
    // For people or, where the command line asks for it, for programs.
    static std::unique_ptr<Report> Create(const CommandLine& commandLine, const std::vector<std::wstring>& names);

    virtual ~Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void Begin(const std::wstring& name);
    void End(const std::wstring& name, const Attempt& attempt);
    // Sums up; returns the program's exit code.
    int Finish(const Ending& ending);

protected:
    Report(const Command& command, std::size_t total) : command_(command), total_(total), progress_(total) {}

    virtual void Tell(const std::wstring& name, const Attempt& attempt) = 0;
    virtual void SumUp(const Ending& ending, int exitCode) = 0;

    const Command& command_;
    std::size_t total_;
    Progress progress_;
    Tally tally_;
};

}  // namespace lejis_client
