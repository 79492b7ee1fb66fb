// What the user asks for.
#pragma once

#include "commandline/Command.h"
#include "doctor/DoctorSettings.h"
#include "incidents/IncidentSettings.h"
#include "search/SearchSettings.h"

namespace lejis_client {

struct CommandLine {
    // Null when help or the version is wanted and no command was named.
    const Command* command = nullptr;
    bool help = false;
    bool version = false;
    // Whether the answer is for a program.
    bool json = false;
    // Whether to send by a library that is made for the simulator alone.
    bool force = false;
    // The arguments that are not options.
    std::vector<std::wstring> operands;
    // The settings of the command, in the struct of its kind.
    IncidentSettings incidents;
    SearchSettings search;
    DoctorSettings doctor;
};

}  // namespace lejis_client
