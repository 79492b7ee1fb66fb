#include "search/SearchSettings.h"

#include "text/Number.h"

namespace lejis_client {
namespace {

constexpr long kUsualWait = 120;
// A day. A longer wait would be a mistake.
constexpr long kLongestWait = 86400;

std::optional<long> Seconds(const CommandLine& commandLine) {
    return commandLine.wait ? ParseNumber(*commandLine.wait, 1, kLongestWait) : kUsualWait;
}

}  // namespace

std::wstring SearchComplaint(const CommandLine& commandLine) {
    for (const SearchValue& value : commandLine.search) {
        const std::wstring complaint = value.option->complaint(value.value);
        if (!complaint.empty()) return value.option->name + (L": " + complaint);
    }
    if (!Seconds(commandLine)) {
        return L"--wait: '" + *commandLine.wait + L"' is no whole number from 1 to " + std::to_wstring(kLongestWait);
    }
    if (!HasCriterion(commandLine.search)) return L"nothing to search for";
    return commandLine.user ? L"" : L"--user is missing";
}

long SecondsToWait(const CommandLine& commandLine) { return *Seconds(commandLine); }

}  // namespace lejis_client
