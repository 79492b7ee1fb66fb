#pragma once

#include "commandline/Command.h"

#include <string>

namespace lejis_client {

// Both are the end of a complaint: "; did you mean submit?", or nothing where no name is near.
std::wstring CommandThatWasMeant(std::wstring_view written);
std::wstring OptionThatWasMeant(std::wstring_view written, Action action);

}  // namespace lejis_client
