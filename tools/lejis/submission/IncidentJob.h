// Reads an incident and runs an operation on it.
#pragma once

#include "submission/Job.h"
#include "submission/JobSettings.h"
#include "submission/LedgerIndex.h"

namespace lejis_client {

class IncidentJob : public Job {
public:
    // Both outlive it. The index says what earlier runs have done.
    IncidentJob(const JobSettings& settings, const LedgerIndex& done);

    Attempt Do(const Task& task, AttemptWatch& watch) override;

private:
    void ReadAndRun(const Task& task, Attempt& attempt, AttemptWatch& watch);
    void Run(ILejisIncidentIndexCard* incident, Attempt& attempt, AttemptWatch& watch);
    // What is to be told where nothing else becomes known.
    Attempt NotSentYet() const;
    void SetResult(Outcome& outcome, Result result) const;

    const JobSettings& settings_;
    const LedgerIndex& done_;
    std::unique_ptr<Operation> operation_;
};

}  // namespace lejis_client
