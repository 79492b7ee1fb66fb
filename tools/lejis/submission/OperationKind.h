// What a run does with its incidents, and how that is called.
#pragma once

#include "submission/Operation.h"
#include "submission/ServiceSettings.h"

namespace lejis_client {

struct OperationKind {
    // In ledgers and for programs.
    const wchar_t* name;
    // How a success is called in a result line and in the summary.
    const wchar_t* success;
    // Whether it sends what it makes of the incidents.
    bool sends;
    // Whether it uses all of a file, so that it warns of what is not read.
    bool tellsLosses;
    // What to do about an incident whose outcome at LEJIS is unknown; empty for an operation that sends nothing.
    const wchar_t* adviceOnUnknown;
    std::unique_ptr<Operation> (*make)(const ServiceSettings& service);
};

extern const OperationKind kCheck;
extern const OperationKind kSubmit;
extern const OperationKind kDelete;

}  // namespace lejis_client
