// The program's end without having done anything.
#pragma once

#include "commandline/UsageError.h"

namespace lejis_client {

struct Refusal {
    // For programs.
    const wchar_t* kind;
    int exitCode;
    std::wstring message;
    // What people are told to do, in lines; empty where there is nothing to say.
    std::wstring hint;
};

Refusal RefusalOf(const UsageError& error);

// Prints it and returns its exit code. The command is empty where none was understood.
int Complain(const std::wstring& command, bool json, const Refusal& refusal);

}  // namespace lejis_client
