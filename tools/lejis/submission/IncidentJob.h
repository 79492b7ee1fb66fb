// Reads an incident and runs the command's operation on it.
#pragma once

#include "commandline/CommandLine.h"
#include "submission/Job.h"
#include "submission/LedgerIndex.h"
#include "submission/Operation.h"

namespace lejis_client {

class IncidentJob : public Job {
public:
    // Both outlive it. The index says what earlier runs have done.
    IncidentJob(const CommandLine& commandLine, const LedgerIndex& done);

    Attempt Do(const Task& task) override;

private:
    void Read(const Task& task, Attempt& attempt);
    void Run(ILejisIncidentIndexCard* incident, Attempt& attempt);

    const CommandLine& commandLine_;
    const LedgerIndex& done_;
    std::unique_ptr<Operation> operation_;
};

}  // namespace lejis_client
