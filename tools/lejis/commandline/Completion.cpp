#include "commandline/Completion.h"

#include "commandline/Option.h"
#include "commandline/Shell.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr std::wstring_view kFileValue = L"FILE";

std::vector<CompletedWord> OptionWords(Action action) {
    std::vector<CompletedWord> words;
    for (const Option* option : OptionsOf(action)) words.push_back({option->name, option->help});
    return words;
}

std::vector<CompletedWord> CommandOperands() {
    std::vector<CompletedWord> words;
    for (const Command& command : Commands()) words.push_back({command.name, command.summary});
    return words;
}

std::vector<CompletedWord> Operands(Operand operand) {
    if (operand == Operand::kCommand) return CommandOperands();
    std::vector<CompletedWord> words;
    if (operand != Operand::kShell) return words;
    for (const std::wstring_view name : ShellNames()) words.push_back({name, name});
    return words;
}

}  // namespace

std::vector<CommandWords> WordsOfCommands() {
    std::vector<CommandWords> all = {{{}, OptionWords(kNoCommand), CommandOperands(), false}};
    for (const Command& command : Commands()) {
        all.push_back(
            {command.name, OptionWords(command.action), Operands(command.operand), command.operand == Operand::kFile});
    }
    return all;
}

std::vector<std::wstring_view> OptionsWithFreeValue() {
    std::vector<std::wstring_view> names;
    for (const Option& option : Options()) {
        if (!option.value || option.value == kFileValue) continue;
        if (std::ranges::find(names, option.name) == names.end()) names.push_back(option.name);
    }
    return names;
}

}  // namespace lejis_client
