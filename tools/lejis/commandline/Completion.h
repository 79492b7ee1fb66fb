// What can be completed, as the tables of commands and options have it.
#pragma once

#include "commandline/Command.h"

#include <string>

namespace lejis_client {

struct CompletedWord {
    std::wstring_view word;
    // What people are told of it.
    std::wstring_view help;
};

// What may stand after a command.
struct CommandWords {
    // Empty for what may stand before any.
    std::wstring_view command;
    std::vector<CompletedWord> options;
    // Beside options, and beside files.
    std::vector<CompletedWord> operands;
    // Whether names of files may stand there.
    bool takesFiles;
};

// First those that stand before any command.
std::vector<CommandWords> WordsOfCommands();

// The options whose values cannot be suggested. The shell itself completes the names of files.
std::vector<std::wstring_view> OptionsWithFreeValue();

}  // namespace lejis_client
