#pragma once

#include "submission/ServiceOperation.h"

namespace lejis_client {

class SubmitOperation : public ServiceOperation {
public:
    explicit SubmitOperation(const ServiceSettings& settings);

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) override;
    void RequireFit(ILejisIncidentIndexCard* incident) const override;
};

}  // namespace lejis_client
