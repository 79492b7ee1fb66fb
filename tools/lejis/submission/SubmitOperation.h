#pragma once

#include "submission/ServiceOperation.h"

namespace lejis_client {

class SubmitOperation : public ServiceOperation {
public:
    explicit SubmitOperation(const CommandLine& commandLine);

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) override;
};

}  // namespace lejis_client
