#include "commandline/CompletionScript.h"

#include "commandline/Completion.h"

namespace lejis_client {
namespace {

constexpr wchar_t kBashBegin[] =
    LR"(# Completes the commands and options of lejis; printed by: lejis completion bash
_lejis() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local command='' options='' operands='' files='' place
    COMPREPLY=()
    for ((place = 1; place < COMP_CWORD; ++place)); do
        [[ ${COMP_WORDS[place]} == -* ]] || { command=${COMP_WORDS[place]}; break; }
    done
    case $command in
)";

constexpr wchar_t kBashMiddle[] =
    LR"(    esac
    # Where nothing is found bash completes the names of files, unless it is told not to.
    case $before in
)";

constexpr wchar_t kBashEnd[] =
    LR"( compopt +o default 2>/dev/null; return ;;
    esac
    if [[ $word == -* || -z $operands$files ]]; then operands=$options; fi
    mapfile -t COMPREPLY < <(compgen -W "$operands" -- "$word")
}
complete -o default -F _lejis lejis lejis.exe
)";

constexpr wchar_t kPowerShellBegin[] =
    LR"(# Completes the commands and options of lejis; printed by: lejis completion powershell
Register-ArgumentCompleter -Native -CommandName 'lejis', 'lejis.exe' -ScriptBlock {
    param($word, $line, $place)
    $words = @{
)";

constexpr wchar_t kPowerShellEnd[] =
    LR"script(    $before = @($line.CommandElements | Select-Object -Skip 1 |
        Where-Object { $_.Extent.EndOffset -lt $place } | ForEach-Object { "$_" })
    $command = "$($before | Where-Object { -not $_.StartsWith('-', 'Ordinal') } | Select-Object -First 1)"
    # Where nothing is found PowerShell completes the names of files.
    if ($before.Count -gt 0 -and $freeValue -contains $before[-1]) { return }
    if (-not $words.ContainsKey($command)) { return }
    if ($files -contains $command -and -not $word.StartsWith('-', 'Ordinal')) { return }
    foreach ($entry in $words[$command].GetEnumerator()) {
        if (-not $entry.Key.StartsWith($word, 'Ordinal')) { continue }
        [System.Management.Automation.CompletionResult]::new($entry.Key, $entry.Key, 'ParameterValue', $entry.Value)
    }
}
)script";

template <typename Words, typename Text>
std::wstring Joined(const Words& words, const wchar_t* separator, Text text) {
    std::wstring joined;
    for (const auto& word : words) joined += (joined.empty() ? L"" : separator) + text(word);
    return joined;
}

std::wstring InBash(const std::vector<CompletedWord>& words) {
    return Joined(words, L" ", [](const CompletedWord& word) { return std::wstring(word.word); });
}

std::wstring Bash() {
    std::wstring script = kBashBegin;
    for (const CommandWords& words : WordsOfCommands()) {
        script +=
            L"        '" + std::wstring(words.command) + L"')\n            options='" + InBash(words.options) + L"'";
        if (!words.operands.empty()) script += L"\n            operands='" + InBash(words.operands) + L"'";
        if (words.takesFiles) script += L" files=1";
        script += L" ;;\n";
    }
    const auto plain = [](std::wstring_view name) { return std::wstring(name); };
    return script + kBashMiddle + L"        " + Joined(OptionsWithFreeValue(), L" | ", plain) + L")" + kBashEnd;
}

std::wstring Quoted(std::wstring_view text) {
    std::wstring quoted = L"'";
    for (const wchar_t character : text) quoted += character == L'\'' ? L"''" : std::wstring(1, character);
    return quoted + L'\'';
}

std::wstring InPowerShell(const std::vector<CompletedWord>& words) {
    return Joined(words, L"", [](const CompletedWord& word) {
        return L"            " + Quoted(word.word) + L" = " + Quoted(word.help) + L'\n';
    });
}

std::wstring PowerShell() {
    std::wstring script = kPowerShellBegin;
    std::vector<std::wstring_view> files;
    for (const CommandWords& words : WordsOfCommands()) {
        script += L"        " + Quoted(words.command) + L" = [ordered]@{\n" + InPowerShell(words.operands) +
                  InPowerShell(words.options) + L"        }\n";
        if (words.takesFiles) files.push_back(words.command);
    }
    return script + L"    }\n    $files = " + Joined(files, L", ", Quoted) + L"\n    $freeValue = " +
           Joined(OptionsWithFreeValue(), L", ", Quoted) + L'\n' + kPowerShellEnd;
}

}  // namespace

std::wstring CompletionScript(Shell shell) { return shell == Shell::kBash ? Bash() : PowerShell(); }

}  // namespace lejis_client
