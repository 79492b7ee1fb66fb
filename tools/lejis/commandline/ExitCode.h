// What the program ends with; scripts rely on it.
#pragma once

namespace lejis_client {

enum ExitCode {
    kExitDone = 0,
    // Refused, unreadable, or the library is not there: the same again would end the same.
    kExitRefused = 1,
    kExitTryAgain = 2,
    kExitUsage = 64,
    // What shells make of a program that Ctrl-C has ended.
    kExitInterrupted = 130,
};

}  // namespace lejis_client
