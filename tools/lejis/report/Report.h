// Tells what becomes of the incidents, one after the other, and sums up.
#pragma once

#include "commandline/Command.h"
#include "console/Progress.h"
#include "report/Tally.h"
#include "submission/Outcome.h"

#include <memory>
#include <string>
#include <vector>

namespace lejis_client {

class Report {
public:
    // For people or, where the command line asks for it, for programs. The names of the incidents are in the order in
    // which they will be worked on.
    static std::unique_ptr<Report> Create(const CommandLine& commandLine, const std::vector<std::wstring>& names);

    virtual ~Report() = default;
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    void Begin(const std::wstring& name);
    void End(const std::wstring& name, const Outcome& outcome);
    // Sums up.
    virtual void Finish() = 0;
    int ExitCode() const { return tally_.ExitCode(); }

protected:
    Report(const Command& command, std::size_t total) : command_(command), progress_(total) {}

    virtual void Tell(const std::wstring& name, const Outcome& outcome) = 0;

    const Command& command_;
    Progress progress_;
    Tally tally_;
};

}  // namespace lejis_client
