#include "report/TextReport.h"

#include "console/Console.h"
#include "submission/ResultWords.h"
#include "text/Duration.h"
#include "text/Layout.h"

#include <algorithm>
#include <cwchar>

namespace lejis_client {
namespace {

constexpr wchar_t kErrorBullet = L'!';
constexpr wchar_t kWarningBullet = L'\u2022';

// A longer name does not push the others' results out of sight.
constexpr std::size_t kWidestName = 60;

// So many results are seen at a glance, and are not listed once more.
constexpr std::size_t kFew = 3;

constexpr Result kOthers[] = {Result::LeftOut, Result::Refused, Result::NotSent, Result::Unknown};

Tone ToneOf(const Outcome& outcome) {
    if (outcome.result == Result::Done) return outcome.warnings.empty() ? Tone::kGood : Tone::kDoubtful;
    if (outcome.result == Result::LeftOut) return Tone::kPlain;
    return outcome.canTryAgain ? Tone::kDoubtful : Tone::kBad;
}

// A single error is seen without being counted.
std::wstring CountsOf(const Outcome& outcome) {
    if (outcome.errors.size() == 1 && outcome.warnings.empty()) return {};
    const std::wstring errors = L": " + Counted(outcome.errors.size(), L"error");
    return outcome.warnings.empty() ? errors : errors + L", " + Counted(outcome.warnings.size(), L"warning");
}

std::wstring Errors(const Outcome& outcome) {
    std::wstring text;
    for (const std::wstring& error : outcome.errors) text += ListItem(kErrorBullet, error);
    return text;
}

std::wstring Pace(std::size_t count, ULONGLONG milliseconds) {
    const double seconds = Seconds(std::max<ULONGLONG>(milliseconds, 1));
    wchar_t text[80];
    std::swprintf(text, std::size(text), L" %.1f s, %.1f a second.", seconds, static_cast<double>(count) / seconds);
    return text;
}

// Why the run ended before its time; empty where it did not.
std::wstring ReasonToStop(const Ending& ending) {
    const std::wstring left = L": " + std::to_wstring(ending.left) + L" not begun.\n";
    std::wstring text = ending.fault.empty() ? L"" : ending.fault + L"\n";
    if (ending.isInterrupted) return text + L"Interrupted" + left;
    if (ending.failuresInARow == 0) return text;
    return text + L"The network or the server failed for " + Counted(ending.failuresInARow, L"incident") +
           L" in a row" + left;
}

}  // namespace

TextReport::TextReport(const OperationKind& operation, const std::vector<std::wstring>& names, bool isQuiet)
    : Report(operation, names.size(), isQuiet) {
    for (const std::wstring& name : names) nameWidth_ = std::max(nameWidth_, std::min(name.size(), kWidestName));
}

void TextReport::TellTry(const std::wstring& name, long number, const Attempt& attempt) {
    const Outcome& outcome = attempt.outcome;
    const std::wstring word = WordOf(operation_, outcome.result);
    Console::Output().Write(name + L"  try " + std::to_wstring(number) + L": " + word + L'\n' + Errors(outcome));
}

void TextReport::Tell(const std::wstring& name, const Attempt& attempt) {
    const Outcome& outcome = attempt.outcome;
    const Console& output = Console::Output();
    output.Write(progress_.Number() + PaddedRight(name, nameWidth_) + L"  ");
    output.Write(Status(outcome), ToneOf(outcome));
    std::wstring text = L'\n' + Errors(outcome);
    for (const std::wstring& warning : outcome.warnings) text += ListItem(kWarningBullet, warning);
    if (!outcome.advice.empty()) text += L"    " + outcome.advice + L'\n';
    output.Write(text);
    if (!outcome.errors.empty()) failures_.Add(WordOf(operation_, outcome.result), outcome.errors.front(), name);
}

void TextReport::SumUp(const Ending& ending, int) {
    if (total_ < 2 && ending.fault.empty() && ending.failuresInARow == 0) return;
    std::wstring text = L"\n";
    if (total_ > kFew && !failures_.IsEmpty()) {
        text += std::wstring(L"Not ") + operation_.success + L":\n" + failures_.Text() + L'\n';
    }
    const std::size_t tried = total_ - ending.left - tally_.Count(Result::LeftOut);
    Console::Output().Write(text + ReasonToStop(ending) + Counts(ending) + Pace(tried, ending.milliseconds) + L'\n');
}

std::wstring TextReport::Counts(const Ending& ending) const {
    std::wstring text =
        Counted(total_, L"file") + L": " + std::to_wstring(tally_.Count(Result::Done)) + L' ' + operation_.success;
    if (tally_.WithWarnings()) text += L" (" + std::to_wstring(tally_.WithWarnings()) + L" with warnings)";
    for (const Result result : kOthers) {
        const std::size_t count = tally_.Count(result);
        if (count) text += L", " + std::to_wstring(count) + L' ' + WordOf(operation_, result);
    }
    if (ending.left) text += L", " + std::to_wstring(ending.left) + L" not begun";
    return text + L'.';
}

std::wstring TextReport::Status(const Outcome& outcome) const {
    const std::wstring word = WordOf(operation_, outcome.result);
    if (outcome.result == Result::Refused) return word + CountsOf(outcome);
    if (outcome.result != Result::Done || outcome.warnings.empty()) return word;
    return word + L" with " + Counted(outcome.warnings.size(), L"warning");
}

}  // namespace lejis_client
