#include "commandline/CommandLine.h"

#include "commandline/UsageError.h"
#include "files/FileList.h"
#include "search/SearchSettings.h"
#include "text/Day.h"
#include "text/NearestName.h"

#include <windows.h>

#include <algorithm>

namespace lejis_client {
namespace {

using Arguments = std::vector<std::wstring>;

struct Switch {
    const wchar_t* name;
    bool CommandLine::*value;
    bool Command::*allowed;
};

constexpr Switch kSwitches[] = {
    {L"--validate-schema", &CommandLine::validateSchema, &Command::canValidateSchema},
    {L"--xml", &CommandLine::xml, &Command::searches},
    {L"--csv", &CommandLine::csv, &Command::searches},
    {L"--recurse", &CommandLine::recurse, &Command::takesIncidents},
    {L"-q", &CommandLine::quiet, &Command::takesIncidents},
    {L"--quiet", &CommandLine::quiet, &Command::takesIncidents},
    {L"-v", &CommandLine::verbose, &Command::takesIncidents},
    {L"--verbose", &CommandLine::verbose, &Command::takesIncidents},
    {L"--force", &CommandLine::force, &Command::needsUrl},
};

struct Option {
    const wchar_t* name;
    std::optional<std::wstring> CommandLine::*value;
    bool Command::*allowed;
};

constexpr Option kOptions[] = {
    {L"--url", &CommandLine::url, &Command::takesUrl},
    {L"--search-url", &CommandLine::searchUrl, &Command::diagnoses},
    {L"--ori", &CommandLine::ori, &Command::canNameIncident},
    {L"--id", &CommandLine::id, &Command::canNameIncident},
    {L"--submitted", &CommandLine::submitted, &Command::canNameIncident},
    {L"--organization", &CommandLine::organization, &Command::canNameIncident},
    {L"--user", &CommandLine::user, &Command::searches},
    {L"--wait", &CommandLine::wait, &Command::searches},
    {L"--jobs", &CommandLine::jobs, &Command::takesIncidents},
    {L"--ledger", &CommandLine::ledger, &Command::submits},
    {L"--retry", &CommandLine::retry, &Command::submits},
    {L"--stop-after", &CommandLine::stopAfter, &Command::submits},
    {L"--rate", &CommandLine::rate, &Command::submits},
    {L"--timeout", &CommandLine::timeout, &Command::submits},
    {L"--timeout", &CommandLine::timeout, &Command::diagnoses},
};

template <typename Row, std::size_t count>
const Row* Find(const Row (&table)[count], const std::wstring& name, const Command& command) {
    for (const Row& row : table) {
        if (row.name == name && command.*row.allowed) return &row;
    }
    return nullptr;
}

[[noreturn]] void Throw(const CommandLine& commandLine, const std::wstring& reason) {
    throw UsageError{reason, commandLine.command ? commandLine.command->name : L""};
}

constexpr wchar_t kJson[] = L"--json";
constexpr wchar_t kHelpCommand[] = L"help";

constexpr wchar_t kEndOfOptions[] = L"--";
constexpr std::wstring_view kOptionPrefix = L"--";

bool AsksForHelp(const std::wstring& argument) { return argument == L"--help" || argument == L"-h"; }

bool AsksForVersion(const std::wstring& argument) { return argument == L"--version" || argument == L"-V"; }

// "; did you mean --url?", or nothing.
std::wstring DidYouMean(std::wstring_view written, const std::vector<std::wstring_view>& names,
                        std::wstring_view prefix) {
    const auto nearest = NearestName(written, names);
    return nearest ? L"; did you mean " + std::wstring(prefix) + std::wstring(names[*nearest]) + L"?" : L"";
}

std::vector<std::wstring_view> OptionNames(const Command& command) {
    std::vector<std::wstring_view> names = {L"json", L"help"};
    const auto add = [&](const auto& table) {
        for (const auto& row : table) {
            const bool isLong = std::wstring_view(row.name).starts_with(kOptionPrefix);
            if (isLong && command.*row.allowed)
                names.push_back(std::wstring_view(row.name).substr(kOptionPrefix.size()));
        }
    };
    add(kSwitches);
    add(kOptions);
    if (!command.searches) return names;
    for (const std::wstring_view name : SearchOptionNames()) names.push_back(name.substr(kOptionPrefix.size()));
    return names;
}

[[noreturn]] void ThrowUnknownOption(const CommandLine& commandLine, const std::wstring& name) {
    std::wstring hint;
    if (name.starts_with(kOptionPrefix)) {
        hint = DidYouMean(name.substr(kOptionPrefix.size()), OptionNames(*commandLine.command), kOptionPrefix);
    }
    Throw(commandLine, L"unknown option " + name + hint);
}

// An option is one of this program's or one of those that go into a search.
bool IsOption(const CommandLine& commandLine, const std::wstring& name) {
    if (Find(kOptions, name, *commandLine.command)) return true;
    return commandLine.command->searches && FindSearchOption(name);
}

void Set(CommandLine& commandLine, const std::wstring& name, const std::wstring& value) {
    if (const Option* option = Find(kOptions, name, *commandLine.command)) {
        if (commandLine.*option->value) Throw(commandLine, name + L" is given twice");
        commandLine.*option->value = value;
        return;
    }
    const SearchOption* const option = FindSearchOption(name);
    const auto isGiven = [&](const SearchValue& given) { return given.option->put == option->put; };
    if (!option->mayRepeat && std::any_of(commandLine.search.begin(), commandLine.search.end(), isGiven)) {
        Throw(commandLine, name + L" is given twice");
    }
    commandLine.search.push_back({option, value});
}

// Takes the option at this place, with its value behind an equals sign or in the next argument; returns the next place.
std::size_t TakeOption(CommandLine& commandLine, const Arguments& arguments, std::size_t place) {
    const std::wstring& argument = arguments[place];
    if (const Switch* found = Find(kSwitches, argument, *commandLine.command)) {
        commandLine.*found->value = true;
        return place + 1;
    }
    const std::size_t equals = argument.find(L'=');
    const std::wstring name = argument.substr(0, equals);
    if (Find(kSwitches, name, *commandLine.command)) Throw(commandLine, name + L" takes no value");
    if (!IsOption(commandLine, name)) ThrowUnknownOption(commandLine, name);
    if (equals != std::wstring::npos) {
        Set(commandLine, name, argument.substr(equals + 1));
        return place + 1;
    }
    if (place + 1 == arguments.size() || arguments[place + 1].starts_with(L"--")) {
        Throw(commandLine, name + L" needs a value");
    }
    Set(commandLine, name, arguments[place + 1]);
    return place + 2;
}

void RequireIncident(const CommandLine& commandLine) {
    if (commandLine.quiet && commandLine.verbose) Throw(commandLine, L"give either --quiet or --verbose");
    if (!commandLine.NamesIncident()) {
        if (commandLine.files.empty()) Throw(commandLine, L"no file given");
        return;
    }
    if (!commandLine.files.empty()) Throw(commandLine, L"give either files or the identifiers of an incident");
    if (!commandLine.ori) Throw(commandLine, L"--ori is missing");
    if (!commandLine.id) Throw(commandLine, L"--id is missing");
    if (!commandLine.submitted) Throw(commandLine, L"--submitted is missing");
    if (!ParseDay(*commandLine.submitted)) {
        Throw(commandLine, L"'" + *commandLine.submitted + L"' is no day; write it as in 2024-03-09");
    }
}

void RefuseFiles(const CommandLine& commandLine) {
    if (!commandLine.files.empty()) Throw(commandLine, L"unexpected argument " + commandLine.files.front());
}

void RequireFile(const CommandLine& commandLine) {
    if (commandLine.files.empty()) Throw(commandLine, L"no file given");
    if (commandLine.files.size() > 1) Throw(commandLine, L"unexpected argument " + commandLine.files[1]);
}

void RequireSearch(const CommandLine& commandLine) {
    RefuseFiles(commandLine);
    if (commandLine.xml + commandLine.csv + commandLine.json > 1) {
        Throw(commandLine, L"give one of --xml, --csv and --json");
    }
    const std::wstring complaint = SearchComplaint(commandLine);
    if (!complaint.empty()) Throw(commandLine, complaint);
}

void RequireLedger(const CommandLine& commandLine) {
    if (commandLine.files.size() != 1) Throw(commandLine, L"give one ledger");
}

void RequireAll(const CommandLine& commandLine) {
    if (commandLine.command->diagnoses) return RefuseFiles(commandLine);
    if (commandLine.command->action == Action::Ledger) return RequireLedger(commandLine);
    if (commandLine.command->action == Action::Show) return RequireFile(commandLine);
    commandLine.command->searches ? RequireSearch(commandLine) : RequireIncident(commandLine);
    if (commandLine.command->needsUrl && !commandLine.url) Throw(commandLine, L"--url is missing");
}

CommandLine WithoutCommand(const std::wstring& argument) {
    CommandLine commandLine;
    commandLine.help = AsksForHelp(argument);
    commandLine.version = AsksForVersion(argument);
    if (commandLine.help || commandLine.version) return commandLine;
    if (argument.starts_with(L'-')) Throw(commandLine, L"unknown option " + argument);
    Throw(commandLine, L"unknown command " + argument + DidYouMean(argument, CommandNames(), {}));
}

// "lejis help", "lejis help submit".
CommandLine Help(const Arguments& arguments) {
    CommandLine commandLine;
    commandLine.help = true;
    if (arguments.size() == 1) return commandLine;
    commandLine.command = FindCommand(arguments[1]);
    return commandLine.command ? commandLine : WithoutCommand(arguments[1]);
}

struct Variable {
    const wchar_t* name;
    std::optional<std::wstring> CommandLine::*value;
    bool (*concerns)(const Command& command);
};

constexpr Variable kVariables[] = {
    {L"LEJIS_URL", &CommandLine::url, [](const Command& command) { return command.takesUrl && !command.searches; }},
    {L"LEJIS_SEARCH_URL", &CommandLine::url, [](const Command& command) { return command.searches; }},
    {L"LEJIS_SEARCH_URL", &CommandLine::searchUrl, [](const Command& command) { return command.diagnoses; }},
    {L"LEJIS_USER", &CommandLine::user, [](const Command& command) { return command.searches; }},
};

std::optional<std::wstring> ValueOf(const wchar_t* variable) {
    std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(variable, value.data(), static_cast<DWORD>(value.size())));
    return value.empty() ? std::nullopt : std::optional(value);
}

// What the command line leaves out may stand in the environment.
void TakeEnvironment(CommandLine& commandLine) {
    for (const Variable& variable : kVariables) {
        std::optional<std::wstring>& value = commandLine.*variable.value;
        if (!value && variable.concerns(*commandLine.command)) value = ValueOf(variable.name);
    }
}

}  // namespace

bool CommandLine::AsksForJson(const Arguments& arguments) {
    const auto end = std::find(arguments.begin(), arguments.end(), kEndOfOptions);
    return std::find(arguments.begin(), end, kJson) != end;
}

CommandLine CommandLine::Parse(Arguments arguments) {
    const bool json = AsksForJson(arguments);
    const auto end = std::find(arguments.begin(), arguments.end(), kEndOfOptions);
    arguments.erase(std::remove(arguments.begin(), end, kJson), end);
    if (arguments.empty()) throw UsageError{L"no command given", {}};
    CommandLine commandLine;
    commandLine.command = FindCommand(arguments.front());
    if (arguments.front() == kHelpCommand) {
        commandLine = Help(arguments);
    } else if (commandLine.command) {
        commandLine.TakeArguments(arguments);
    } else {
        commandLine = WithoutCommand(arguments.front());
    }
    commandLine.json = json;
    return commandLine;
}

void CommandLine::TakeArguments(const Arguments& arguments) {
    for (std::size_t place = 1; place < arguments.size();) {
        if (arguments[place] == kEndOfOptions) {
            files.insert(files.end(), arguments.begin() + static_cast<std::ptrdiff_t>(place) + 1, arguments.end());
            break;
        }
        if (AsksForHelp(arguments[place])) {
            help = true;
            return;
        }
        if (arguments[place].starts_with(L'-') && arguments[place] != kStandardInput) {
            place = TakeOption(*this, arguments, place);
        } else {
            files.push_back(arguments[place++]);
        }
    }
    TakeEnvironment(*this);
    RequireAll(*this);
}

}  // namespace lejis_client
