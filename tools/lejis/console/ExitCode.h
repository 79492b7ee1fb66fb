// What the program ends with; scripts rely on it. A run in which some incidents are refused and others are to be tried
// again ends with the bits of both, 3.
#pragma once

namespace lejis_client {

enum ExitCode {
    kExitDone = 0,
    // Refused, unreadable, or the library is not there: the same again would end the same.
    kExitRefused = 1,
    // To be tried again, or nobody knows.
    kExitTryAgain = 2,
    kExitUsage = 64,
    // What shells make of a program that Ctrl-C has ended.
    kExitInterrupted = 130,
};

}  // namespace lejis_client
