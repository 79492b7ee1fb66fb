#include "commandline/Requirements.h"

#include "commandline/DidYouMean.h"
#include "commandline/Shell.h"
#include "commandline/UsageError.h"
#include "text/Layout.h"

namespace lejis_client {
namespace {

[[noreturn]] void Throw(const CommandLine& commandLine, const std::wstring& reason) {
    throw UsageError{reason, commandLine.command->name};
}

const wchar_t* WordFor(Operand operand) {
    switch (operand) {
        case Operand::kShell:
            return L"shell";
        case Operand::kCommand:
            return L"command";
        default:
            return L"file";
    }
}

void CheckOperands(const CommandLine& commandLine) {
    const Command& command = *commandLine.command;
    const auto& operands = commandLine.operands;
    if (operands.size() < command.leastOperands) {
        Throw(commandLine, std::wstring(L"no ") + WordFor(command.operand) + L" given");
    }
    if (operands.size() > command.mostOperands) {
        Throw(commandLine, L"unexpected argument " + operands[command.mostOperands]);
    }
}

void CheckIncidents(CommandLine& commandLine) {
    IncidentSettings& incidents = commandLine.incidents;
    incidents.job.operation = commandLine.command->operation;
    incidents.files = commandLine.operands;
    if (incidents.quiet && incidents.verbose) Throw(commandLine, L"give either --quiet or --verbose");
    const IncidentName& named = incidents.job.named;
    if (!named.IsGiven()) {
        if (incidents.files.empty()) Throw(commandLine, L"no file given");
        return;
    }
    if (!incidents.files.empty()) Throw(commandLine, L"give either files or the identifiers of an incident");
    if (!named.ori) Throw(commandLine, L"--ori is missing");
    if (!named.number) Throw(commandLine, L"--id is missing");
    if (!named.submitted) Throw(commandLine, L"--submitted is missing");
}

void CheckSearch(const CommandLine& commandLine) {
    const SearchSettings& search = commandLine.search;
    if (search.xml + search.csv + commandLine.json > 1) Throw(commandLine, L"give one of --xml, --csv and --json");
    if (search.criteria.empty()) Throw(commandLine, L"nothing to search for");
}

void CheckShell(const CommandLine& commandLine) {
    const std::wstring& shell = commandLine.operands.front();
    if (!FindShell(shell)) Throw(commandLine, L"unknown shell " + shell + L"; there are " + Enumerated(ShellNames()));
}

// The help of another command, or the general one.
void CheckHelp(CommandLine& commandLine) {
    commandLine.help = true;
    const Command* wanted = nullptr;
    for (const std::wstring& name : commandLine.operands) {
        wanted = FindCommand(name);
        if (!wanted) throw UsageError{L"unknown command " + name + CommandThatWasMeant(name), {}};
    }
    commandLine.command = wanted;
}

void CheckOptions(const CommandLine& commandLine, const GivenOptions& given) {
    for (const Option* option : OptionsOf(commandLine.command->action)) {
        if (option->isRequired && !given.contains(option))
            Throw(commandLine, option->name + std::wstring(L" is missing"));
    }
}

}  // namespace

void CheckRequirements(CommandLine& commandLine, const GivenOptions& given) {
    CheckOperands(commandLine);
    const Command& command = *commandLine.command;
    if (command.operation) CheckIncidents(commandLine);
    if (command.action == kSearchIndex) CheckSearch(commandLine);
    if (command.action == kPrintCompletion) CheckShell(commandLine);
    CheckOptions(commandLine, given);
    if (command.action == kPrintHelp) CheckHelp(commandLine);
}

}  // namespace lejis_client
