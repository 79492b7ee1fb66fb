#include "report/TextReport.h"

#include "console/Console.h"
#include "text/Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kErrorBullet = L'!';
constexpr wchar_t kWarningBullet = L'\u2022';

// A longer name does not push the others' results out of sight.
constexpr std::size_t kWidestName = 60;

struct ResultWords {
    Result result;
    const wchar_t* inSummary;
};

constexpr ResultWords kFailures[] = {
    {Result::Refused, L"refused"},
    {Result::Unreadable, L"unreadable"},
    {Result::TryAgain, L"to try again"},
};

Tone ToneOf(const Outcome& outcome) {
    if (outcome.result == Result::Done) return outcome.warnings.empty() ? Tone::kGood : Tone::kDoubtful;
    return outcome.result == Result::TryAgain ? Tone::kDoubtful : Tone::kBad;
}

// A single error is seen without being counted.
std::wstring Counts(const Outcome& outcome) {
    if (outcome.errors.size() == 1 && outcome.warnings.empty()) return {};
    const std::wstring errors = L": " + Counted(outcome.errors.size(), L"error");
    return outcome.warnings.empty() ? errors : errors + L", " + Counted(outcome.warnings.size(), L"warning");
}

}  // namespace

TextReport::TextReport(const Command& command, const std::vector<std::wstring>& names)
    : Report(command, names.size()), total_(names.size()) {
    for (const std::wstring& name : names) nameWidth_ = std::max(nameWidth_, std::min(name.size(), kWidestName));
}

void TextReport::Tell(const std::wstring& name, const Outcome& outcome) {
    const Console& output = Console::Output();
    output.Write(progress_.Number() + PaddedRight(name, nameWidth_) + L"  ");
    output.Write(Status(outcome), ToneOf(outcome));
    std::wstring text = L"\n";
    for (const std::wstring& error : outcome.errors) text += ListItem(kErrorBullet, error);
    for (const std::wstring& warning : outcome.warnings) text += ListItem(kWarningBullet, warning);
    if (!outcome.advice.empty()) text += L"    " + outcome.advice + L'\n';
    output.Write(text);
}

void TextReport::Finish() {
    if (total_ < 2) return;
    std::wstring text = L"\n" + Counted(total_, L"file") + L": " + std::to_wstring(tally_.Count(Result::Done)) + L' ' +
                        command_.success;
    if (tally_.WithWarnings()) text += L" (" + std::to_wstring(tally_.WithWarnings()) + L" with warnings)";
    for (const ResultWords& failure : kFailures) {
        const std::size_t count = tally_.Count(failure.result);
        if (count) text += L", " + std::to_wstring(count) + L' ' + failure.inSummary;
    }
    Console::Output().Write(text + L".\n");
}

std::wstring TextReport::Status(const Outcome& outcome) const {
    switch (outcome.result) {
        case Result::Unreadable:
            return L"unreadable";
        case Result::TryAgain:
            return std::wstring(L"not ") + command_.success;
        case Result::Refused:
            return L"refused" + Counts(outcome);
        case Result::Done:
            break;
    }
    return command_.success +
           (outcome.warnings.empty() ? L"" : L" with " + Counted(outcome.warnings.size(), L"warning"));
}

}  // namespace lejis_client
