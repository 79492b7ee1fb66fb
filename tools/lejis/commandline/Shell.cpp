#include "commandline/Shell.h"

namespace lejis_client {
namespace {

constexpr ShellName kShells[] = {{L"bash", Shell::kBash}, {L"powershell", Shell::kPowerShell}};

}  // namespace

const ShellName* FindShell(std::wstring_view name) {
    for (const ShellName& shell : kShells) {
        if (shell.name == name) return &shell;
    }
    return nullptr;
}

std::vector<std::wstring_view> ShellNames() {
    std::vector<std::wstring_view> names;
    for (const ShellName& shell : kShells) names.push_back(shell.name);
    return names;
}

}  // namespace lejis_client
