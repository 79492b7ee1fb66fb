// How warnings and errors name the record that they are about.
#pragma once

#include "model/LejisPersonIndexCard.h"
#include "model/LejisPropertyIndexCard.h"
#include "model/LejisVehicleIndexCard.h"

#include <string>

namespace lejis {

inline constexpr wchar_t kMainRecordLabel[] = L"Main record";

// "JOHN Q PUBLIC (Victim)". The blank behind the given name is written even without one.
std::wstring LabelOf(const LejisPersonIndexCard& person);

// "SONY BRAVIA (123)", without blanks at its ends.
std::wstring LabelOf(const LejisPropertyIndexCard& property);

// "Vehicle RED FORD F150  ". It ends in two blanks on purpose.
std::wstring LabelOf(const LejisVehicleIndexCard& vehicle);

// The label, a colon, a blank and the message.
std::wstring Labelled(const std::wstring& label, const std::wstring& message);

}  // namespace lejis
