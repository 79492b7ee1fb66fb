#pragma once

#include "submission/ServiceOperation.h"

namespace lejis_client {

class DeleteOperation : public ServiceOperation {
public:
    explicit DeleteOperation(const ServiceSettings& settings);

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) override;
};

}  // namespace lejis_client
