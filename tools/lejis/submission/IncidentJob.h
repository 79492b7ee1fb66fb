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

    Attempt Do(const Task& task) override;

private:
    void Read(const Task& task, Attempt& attempt);
    void Run(ILejisIncidentIndexCard* incident, Attempt& attempt);

    const JobSettings& settings_;
    const LedgerIndex& done_;
    std::unique_ptr<Operation> operation_;
};

}  // namespace lejis_client
