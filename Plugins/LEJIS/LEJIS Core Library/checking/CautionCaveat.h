#pragma once

#include "model/LejisPersonIndexCard.h"

#include <optional>
#include <string>

namespace lejis {

// What is said of a person's caution caveat that is too long; the formatter warns of it and the validator refuses it.
std::optional<std::wstring> CautionCaveatMessage(const LejisPersonIndexCard& person);

}  // namespace lejis
