#pragma once

#include "commandline/Shell.h"

#include <string>

namespace lejis_client {

// What makes the shell complete the commands and options of this program, with line feeds alone at the ends of its
// lines: bash takes no others.
std::wstring CompletionScript(Shell shell);

}  // namespace lejis_client
