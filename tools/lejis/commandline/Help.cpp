#include "commandline/Help.h"

#include "commandline/Environment.h"
#include "commandline/Option.h"
#include "text/Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

// The examples need as much.
constexpr std::size_t kWidth = 85;
constexpr std::size_t kCommandColumn = 36;
constexpr std::size_t kCriterionColumn = 13;
constexpr std::size_t kMostOfOptionColumn = 26;
// A value that its option's name explains.
constexpr std::wstring_view kPlainValue = L"TEXT";

constexpr wchar_t kIntroduction[] =
    LR"(lejis checks incidents, submits them to LEJIS, withdraws them and searches for
them, through the registered TVLejisCore.

)";

constexpr wchar_t kArguments[] =
    L"A FILE is one incident card in XML (docs/incident-format.md tells its elements), a pattern such as "
    L"incidents\\*.xml, @LIST for the names in a text file, or - for standard input; with --recurse it may be a "
    L"folder. "
    L"A URL is the address of a service of the LEJIS Interface; ask who looks after it. A value may follow its option "
    L"after a blank or an equals sign; what follows -- is a FILE. What is left out is taken from the environment: ";

constexpr wchar_t kFirstSteps[] =
    LR"(The first steps, from an incident in a file to the index:

  lejis doctor --url http://lejis-interface:8080/lejis-core-Rev01/services/submission
  lejis check incident.xml
  lejis submit incident.xml ^
      --url http://lejis-interface:8080/lejis-core-Rev01/services/submission

Exit codes:

    0   all done
    1   something was refused, could not be read, or the library is not there; or the
        doctor found what does not pass by itself: the same again would end the same
    2   something is to be tried again, or nobody knows what LEJIS made of it
    3   both of these in one run
   64   the command line makes no sense
  130   Ctrl-C ended it
)";

// The words in lines that begin at the column; the first one begins there already.
std::wstring Wrapped(const std::vector<std::wstring>& words, std::size_t column) {
    std::wstring text;
    std::size_t place = column;
    for (const std::wstring& word : words) {
        if (place > column && place + 1 + word.size() > kWidth) {
            text += L'\n' + std::wstring(column, L' ');
            place = column;
        }
        if (place > column) text += L' ', ++place;
        text += word;
        place += word.size();
    }
    return text + L'\n';
}

std::vector<std::wstring> WordsOf(std::wstring_view text) {
    std::vector<std::wstring> words;
    while (!text.empty()) {
        const std::size_t length = std::min(text.find(L' '), text.size());
        words.emplace_back(text.substr(0, length));
        text.remove_prefix(std::min(length + 1, text.size()));
    }
    return words;
}

// Two columns, the second on a line of its own where the first is too wide.
std::wstring Row(const std::wstring& left, std::wstring_view right, std::size_t column) {
    const bool isWide = left.size() + 2 > column;
    return PaddedRight(left, column) + (isWide ? L'\n' + std::wstring(column, L' ') : L"") +
           Wrapped(WordsOf(right), column);
}

// "--url URL", "-q, --quiet".
std::wstring NameOf(const Option& option) {
    const bool hasLetter = option.otherName && !std::wstring_view(option.otherName).starts_with(kLongPrefix);
    const std::wstring names = (hasLetter ? option.otherName + std::wstring(L", ") : L"") + option.name;
    return option.value ? names + L' ' + option.value : names;
}

std::wstring OptionRows(const std::vector<const Option*>& options) {
    std::size_t widest = 0;
    for (const Option* option : options) widest = std::max(widest, NameOf(*option).size());
    const std::size_t column = std::min(widest + 5, kMostOfOptionColumn);
    std::wstring text;
    for (const Option* option : options) text += Row(L"  " + NameOf(*option), option->help, column);
    return text;
}

std::wstring CommandRows() {
    std::wstring text;
    for (const Command& command : Commands()) {
        text += Row(std::wstring(L"  lejis ") + command.name + L' ' + command.usage, command.summary, kCommandColumn);
    }
    for (const Option* option : OptionsOf(kNoCommand)) {
        if (option->actions == kNoCommand)
            text += Row(std::wstring(L"  lejis ") + option->name, option->help, kCommandColumn);
    }
    return text;
}

std::vector<const Option*> OptionsOfEveryCommand() {
    std::vector<const Option*> options = OptionsOf(kNoCommand);
    std::erase_if(options, [](const Option* option) { return option->actions == kNoCommand; });
    return options;
}

// Criteria of a kind in a row: what they are for, their names say.
std::wstring CriterionRows(const std::vector<const Option*>& options) {
    std::wstring text;
    std::wstring_view kind;
    std::vector<std::wstring> names;
    const auto end = [&] {
        if (!names.empty())
            text += PaddedRight(L"  " + std::wstring(kind), kCriterionColumn) + Wrapped(names, kCriterionColumn);
        names.clear();
    };
    for (const Option* option : options) {
        if (option->criterion != kind) end();
        kind = option->criterion;
        names.push_back(option->value == kPlainValue ? std::wstring(option->name) : NameOf(*option));
    }
    end();
    return text.empty() ? text : text + L"\nEach takes a value.\n\n";
}

std::wstring Usage(const Command& command, const wchar_t* usage) {
    return std::wstring(L"lejis ") + command.name + L' ' + usage + L" [OPTION...]\n";
}

}  // namespace

std::wstring GeneralHelp() {
    return kIntroduction + CommandRows() + L"\nWith every command:\n\n" + OptionRows(OptionsOfEveryCommand()) + L'\n' +
           Wrapped(WordsOf(kArguments + Enumerated(VariableNames()) + L"."), 0) + L'\n' + kFirstSteps;
}

std::wstring HelpOf(const Command& command) {
    std::vector<const Option*> options = OptionsOf(command.action);
    const auto criteria =
        std::stable_partition(options.begin(), options.end(), [](const Option* option) { return !option->criterion; });
    std::wstring text = Usage(command, command.usage);
    if (command.otherUsage) text += Usage(command, command.otherUsage);
    text += L'\n' + std::wstring(command.about) + L'\n';
    text += CriterionRows({criteria, options.end()});
    text += OptionRows({options.begin(), criteria}) + L'\n';
    if (*command.notes) text += command.notes + std::wstring(L"\n");
    text += L"Examples:\n\n" + std::wstring(command.examples) + L'\n';
    return text + Wrapped(WordsOf(L"Exit codes: " + std::wstring(command.exitCodes)), 0);
}

}  // namespace lejis_client
