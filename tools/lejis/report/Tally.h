// Counts what became of the incidents.
#pragma once

#include "submission/Outcome.h"

#include <map>

namespace lejis_client {

class Tally {
public:
    void Add(const Outcome& outcome);
    std::size_t Count(Result result) const;
    std::size_t Total() const { return total_; }
    std::size_t WithWarnings() const { return withWarnings_; }
    int ExitCode() const { return exitCode_; }

private:
    std::map<Result, std::size_t> counts_;
    std::size_t total_ = 0;
    std::size_t withWarnings_ = 0;
    int exitCode_ = 0;
};

}  // namespace lejis_client
