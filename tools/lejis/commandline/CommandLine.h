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
    // Whether to send by a library that is made for no true LEJIS.
    bool force = false;
    // What stands there beside options.
    std::vector<std::wstring> operands;
    // Those of the command, of whichever kind it is.
    IncidentSettings incidents;
    SearchSettings search;
    DoctorSettings doctor;
};

}  // namespace lejis_client
