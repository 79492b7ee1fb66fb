#pragma once

#include "submission/ServiceOperation.h"

namespace lejis_client {

class DeleteOperation : public ServiceOperation {
public:
    explicit DeleteOperation(const ServiceSettings& settings);

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) override;
    void RequireFit(ILejisIncidentIndexCard* incident) const override;
};

}  // namespace lejis_client
