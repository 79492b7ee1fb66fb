#pragma once

#include "checking/FormattingRules.h"
#include "unit_support/Members.h"

#include <string>
#include <vector>

namespace lejis {

using Warnings = std::vector<std::wstring>;

// An incident with one card of each kind, and its warnings.
struct Records {
    platform::Ref<LejisIncidentIndexCard> incident = platform::Create<LejisIncidentIndexCard>();
    platform::Ref<LejisPersonIndexCard> person = platform::Create<LejisPersonIndexCard>();
    platform::Ref<LejisPropertyIndexCard> property = platform::Create<LejisPropertyIndexCard>();
    platform::Ref<LejisVehicleIndexCard> vehicle = platform::Create<LejisVehicleIndexCard>();

    Records() {
        incident->PersonIndexCards->AddObject(person->Dispatch());
        incident->PropertyIndexCards->AddObject(property->Dispatch());
        incident->VehicleIndexCards->AddObject(vehicle->Dispatch());
        person->Involvement = L"suspect";
        property->SerialID = L"S-1";
    }

    Warnings Apply() {
        const auto warnings = platform::Create<Collection>();
        FormattingRules(*warnings).Apply(*incident);
        return support::Texts(*warnings);
    }
};

}  // namespace lejis
