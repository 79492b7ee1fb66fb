// Shapes an incident and checks the result; nothing is sent.
#pragma once

#include "submission/Operation.h"

namespace lejis_client {

class CheckOperation : public Operation {
public:
    Outcome Run(ILejisIncidentIndexCard* incident, const std::function<void()>& beforeSending) override;
};

}  // namespace lejis_client
