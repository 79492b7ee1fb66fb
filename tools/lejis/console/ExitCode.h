// What the program ends with; scripts rely on it.
#pragma once

namespace lejis_client {

enum ExitCode {
    kExitDone = 0,
    // Refused, unreadable, or the library is not there: the same again would end the same.
    kExitRefused = 1,
    // To be tried again, or nobody knows.
    kExitTryAgain = 2,
    // Both of these in one run.
    kExitRefusedAndTryAgain = kExitRefused | kExitTryAgain,
    kExitUsage = 64,
    // What shells make of a program that Ctrl-C has ended.
    kExitInterrupted = 130,
};

}  // namespace lejis_client
