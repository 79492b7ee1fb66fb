#include "report/Tally.h"

#include "commandline/ExitCode.h"

namespace lejis_client {

void Tally::Add(const Outcome& outcome) {
    ++counts_[outcome.result];
    if (outcome.result == Result::Done && !outcome.warnings.empty()) ++withWarnings_;
}

std::size_t Tally::Count(Result result) const { return counts_.contains(result) ? counts_.at(result) : 0; }

int Tally::ExitCode() const {
    if (Count(Result::Refused) || Count(Result::Unreadable)) return kExitRefused;
    return Count(Result::TryAgain) ? kExitTryAgain : kExitDone;
}

}  // namespace lejis_client
