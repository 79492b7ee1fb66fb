// The shells that this program has a script for, with which they complete its commands and options.
#pragma once

#include <string_view>
#include <vector>

namespace lejis_client {

enum class Shell { kBash, kPowerShell };

struct ShellName {
    const wchar_t* name;
    Shell shell;
};

// Returns null when no shell has this name.
const ShellName* FindShell(std::wstring_view name);

std::vector<std::wstring_view> ShellNames();

}  // namespace lejis_client
