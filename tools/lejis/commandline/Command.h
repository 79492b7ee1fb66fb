// The commands of the program, one row each. What people read of them in the help stands here too, but for their
// options (Option.h).
#pragma once

#include "submission/OperationKind.h"

#include <span>
#include <string_view>
#include <vector>

namespace lejis_client {

// Each a bit, so that an option can belong to several; kNoCommand stands for a command line without one.
enum Action : unsigned {
    kNoCommand = 1 << 0,
    kCheckFiles = 1 << 1,
    kShowRequest = 1 << 2,
    kSubmitFiles = 1 << 3,
    kDeleteIncidents = 1 << 4,
    kSearchIndex = 1 << 5,
    kSumUpLedger = 1 << 6,
    kDiagnose = 1 << 7,
    kPrintHelp = 1 << 8,
    kPrintCompletion = 1 << 9,
    kEveryAction = (1 << 10) - 1,
};

// The arguments of the command line that are not options.
enum class Operand { kNone, kFile, kCommand, kShell };

struct Command {
    const wchar_t* name;
    Action action;
    // What follows the name, and, where there is one, another way to write it.
    const wchar_t* usage;
    const wchar_t* otherUsage;
    // For the list of commands.
    const wchar_t* summary;
    Operand operand;
    std::size_t leastOperands;
    std::size_t mostOperands;
    // Null for a command that works on no incidents.
    const OperationKind* operation;
    // What the help of the command says before its options, after them, as examples and about exit codes: whole lines.
    const wchar_t* about;
    const wchar_t* notes;
    const wchar_t* examples;
    const wchar_t* exitCodes;
};

std::span<const Command> Commands();

// Null when there is no such command.
const Command* FindCommand(std::wstring_view name);

std::vector<std::wstring_view> CommandNames();

}  // namespace lejis_client
