// Incidents to submit.
#pragma once

#include "model/LejisIncidentIndexCard.h"

#include <string>

namespace support {

// One that the validator passes and the formatter leaves alone.
platform::Ref<lejis::LejisIncidentIndexCard> CleanIncident();

// The same with persons, a vehicle and property, a charge and a location.
platform::Ref<lejis::LejisIncidentIndexCard> FullIncident();

// A new card, at the end of the cards.
template <typename Card>
platform::Ref<Card> AddNew(const platform::Ref<platform::Collection>& cards) {
    auto card = platform::Create<Card>();
    cards->AddObject(card->Dispatch());
    return card;
}

// The incident's element as it would be sent.
std::wstring XmlOf(const platform::Ref<lejis::LejisIncidentIndexCard>& incident);

}  // namespace support
