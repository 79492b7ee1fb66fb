// How warnings and errors name the record that they are about, and a message that both share.
#pragma once

#include "model/LejisPersonIndexCard.h"
#include "model/LejisPropertyIndexCard.h"
#include "model/LejisVehicleIndexCard.h"

#include <optional>
#include <string>

namespace lejis {

inline constexpr wchar_t kMainRecordLabel[] = L"Main record";

// "JOHN Q PUBLIC (Victim)". The blank after the given name is written even without a given name.
std::wstring LabelOf(const LejisPersonIndexCard& person);

// "SONY BRAVIA (123)", without blanks at its ends.
std::wstring LabelOf(const LejisPropertyIndexCard& property);

// "Vehicle RED FORD F150  ". It ends in two blanks on purpose.
std::wstring LabelOf(const LejisVehicleIndexCard& vehicle);

// The label, a colon, a blank and the message.
std::wstring Labelled(const std::wstring& label, const std::wstring& message);

// The message about a person's caution caveat that is too long: the formatter warns of it, and the validator refuses
// it.
std::optional<std::wstring> CautionCaveatMessage(const LejisPersonIndexCard& person);

}  // namespace lejis
