// Tells the user what becomes of the incidents, one after the other, and sums up.
#pragma once

#include "Command.h"
#include "Outcome.h"

#include <map>
#include <string>
#include <vector>

namespace lejis_client {

class Report {
public:
    // The names of the incidents in the order in which they will be worked on.
    Report(const Command& command, const std::vector<std::wstring>& names);

    // Where a console shows it, the user sees which incident is worked on.
    void Begin(const std::wstring& name);
    void End(const std::wstring& name, const Outcome& outcome);
    void Finish() const;
    int ExitCode() const;

private:
    std::wstring Number() const;
    std::wstring Status(const Outcome& outcome) const;
    void ClearProgress() const;

    const Command& command_;
    std::size_t total_;
    std::size_t current_ = 0;
    std::size_t nameWidth_ = 0;
    std::size_t withWarnings_ = 0;
    std::map<Result, std::size_t> counts_;
};

}  // namespace lejis_client
