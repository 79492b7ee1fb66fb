#include "submission/BacklogSettings.h"

#include "commandline/UsageError.h"
#include "text/Number.h"

namespace lejis_client {
namespace {

struct Setting {
    const wchar_t* name;
    std::optional<std::wstring> CommandLine::*text;
    long BacklogSettings::*value;
    long least;
    long most;
};

constexpr Setting kSettings[] = {
    {L"--jobs", &CommandLine::jobs, &BacklogSettings::jobs, 1, 32},
    {L"--retry", &CommandLine::retry, &BacklogSettings::retries, 0, 100},
    {L"--stop-after", &CommandLine::stopAfter, &BacklogSettings::stopAfter, 1, 1000000},
    {L"--rate", &CommandLine::rate, &BacklogSettings::rate, 1, 1000},
    {L"--timeout", &CommandLine::timeout, &BacklogSettings::seconds, 1, 86400},
};

}  // namespace

BacklogSettings BacklogSettings::Of(const CommandLine& commandLine) {
    BacklogSettings settings;
    for (const Setting& setting : kSettings) {
        const auto& text = commandLine.*setting.text;
        if (!text) continue;
        const auto number = ParseNumber(*text, setting.least, setting.most);
        if (!number) {
            throw UsageError{std::wstring(setting.name) + L": '" + *text + L"' is no whole number from " +
                                 std::to_wstring(setting.least) + L" to " + std::to_wstring(setting.most),
                             commandLine.command->name};
        }
        settings.*setting.value = *number;
    }
    return settings;
}

}  // namespace lejis_client
