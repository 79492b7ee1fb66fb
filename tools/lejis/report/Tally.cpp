#include "report/Tally.h"

#include "console/ExitCode.h"

namespace lejis_client {

void Tally::Add(const Outcome& outcome) {
    ++total_;
    ++counts_[outcome.result];
    if (outcome.result == Result::Done && !outcome.warnings.empty()) ++withWarnings_;
    if (outcome.result == Result::Done || outcome.result == Result::LeftOut) return;
    exitCode_ |= outcome.canTryAgain ? kExitTryAgain : kExitRefused;
}

std::size_t Tally::Count(Result result) const { return counts_.contains(result) ? counts_.at(result) : 0; }

}  // namespace lejis_client
