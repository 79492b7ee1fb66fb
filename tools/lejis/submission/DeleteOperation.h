#pragma once

#include "submission/ServiceOperation.h"

namespace lejis_client {

class DeleteOperation : public ServiceOperation {
public:
    explicit DeleteOperation(const CommandLine& commandLine);

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) override;
};

}  // namespace lejis_client
