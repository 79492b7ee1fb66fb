#include "Report.h"

#include "Console.h"
#include "ExitCode.h"
#include "Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kErrorBullet = L'!';
constexpr wchar_t kWarningBullet = L'\u2022';

// So many results can be counted by eye.
constexpr std::size_t kFew = 3;
// A longer name does not push the others' results out of sight.
constexpr std::size_t kWidestName = 60;
constexpr std::size_t kConsoleWidth = 79;

struct ResultWords {
    Result result;
    const wchar_t* inSummary;
};

constexpr ResultWords kFailures[] = {
    {Result::Refused, L"refused"},
    {Result::Unreadable, L"unreadable"},
    {Result::TryAgain, L"to try again"},
};

// A single error is seen without being counted.
std::wstring Counts(const Outcome& outcome) {
    if (outcome.errors.size() == 1 && outcome.warnings.empty()) return {};
    const std::wstring errors = L": " + Counted(outcome.errors.size(), L"error");
    return outcome.warnings.empty() ? errors : errors + L", " + Counted(outcome.warnings.size(), L"warning");
}

}  // namespace

Report::Report(const Command& command, const std::vector<std::wstring>& names)
    : command_(command), total_(names.size()) {
    for (const std::wstring& name : names) nameWidth_ = std::max(nameWidth_, std::min(name.size(), kWidestName));
}

void Report::Begin(const std::wstring& name) {
    ++current_;
    if (total_ <= kFew || !Console::Errors().IsInteractive()) return;
    const std::wstring line = Number() + name + L" ...";
    Console::Errors().Write(L"\r" + PaddedRight(line.substr(0, kConsoleWidth), kConsoleWidth));
}

void Report::End(const std::wstring& name, const Outcome& outcome) {
    ClearProgress();
    ++counts_[outcome.result];
    if (outcome.result == Result::Done && !outcome.warnings.empty()) ++withWarnings_;
    std::wstring text = PaddedRight(name, nameWidth_) + L"  " + Status(outcome) + L'\n';
    if (total_ > kFew && !Console::Errors().IsInteractive()) text.insert(0, Number());
    for (const std::wstring& error : outcome.errors) text += ListItem(kErrorBullet, error);
    for (const std::wstring& warning : outcome.warnings) text += ListItem(kWarningBullet, warning);
    if (!outcome.advice.empty()) text += L"    " + outcome.advice + L'\n';
    Console::Output().Write(text);
}

void Report::Finish() const {
    if (total_ < 2) return;
    const auto count = [&](Result result) { return counts_.contains(result) ? counts_.at(result) : 0; };
    std::wstring text =
        L"\n" + Counted(total_, L"file") + L": " + std::to_wstring(count(Result::Done)) + L' ' + command_.success;
    if (withWarnings_) text += L" (" + std::to_wstring(withWarnings_) + L" with warnings)";
    for (const ResultWords& failure : kFailures) {
        if (count(failure.result)) text += L", " + std::to_wstring(count(failure.result)) + L' ' + failure.inSummary;
    }
    Console::Output().Write(text + L".\n");
}

int Report::ExitCode() const {
    if (counts_.contains(Result::Refused) || counts_.contains(Result::Unreadable)) return kExitRefused;
    return counts_.contains(Result::TryAgain) ? kExitTryAgain : kExitDone;
}

std::wstring Report::Number() const {
    const std::wstring total = std::to_wstring(total_);
    return L"[" + PaddedLeft(std::to_wstring(current_), total.size()) + L"/" + total + L"] ";
}

std::wstring Report::Status(const Outcome& outcome) const {
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

void Report::ClearProgress() const {
    if (total_ <= kFew || !Console::Errors().IsInteractive()) return;
    Console::Errors().Write(L"\r" + std::wstring(kConsoleWidth, L' ') + L"\r");
}

}  // namespace lejis_client
