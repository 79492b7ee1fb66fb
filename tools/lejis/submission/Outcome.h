// What became of one incident.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lejis_client {

enum class Result {
    // The command has done what it is for.
    Done,
    // LEJIS or the checks said no: nothing has changed in LEJIS because of this run.
    Refused,
    // Nothing reached LEJIS.
    NotSent,
    // It was sent, and nobody knows what LEJIS made of it.
    Unknown,
    // An earlier run has done it; see Ledger.
    LeftOut,
};

struct Outcome {
    Result result = Result::Done;
    std::vector<std::wstring> errors;
    std::vector<std::wstring> warnings;
    // What to do about it; empty where that goes without saying.
    std::wstring advice;
    // Whether the same again can end otherwise.
    bool canTryAgain = false;
    // Whether the network or LEJIS as a whole failed, so that the next incident would fail as well.
    bool affectsEveryIncident = false;
    // The library's error number; 0 where the library raised no error.
    HRESULT number = S_OK;
};

// The outcome for a file that holds no readable incident; the reason is a sentence.
Outcome Unreadable(const std::wstring& reason);

}  // namespace lejis_client
