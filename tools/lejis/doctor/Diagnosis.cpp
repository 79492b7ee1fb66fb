#include "doctor/Diagnosis.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "text/Layout.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr std::size_t kHealthWidth = 9;
constexpr std::size_t kSubjectWidth = 20;

struct HealthWords {
    Health health;
    const wchar_t* word;
    Tone tone;
};

constexpr HealthWords kWords[] = {
    {Health::kOk, L"ok", Tone::kGood},
    {Health::kWarning, L"warning", Tone::kDoubtful},
    {Health::kFailed, L"failed", Tone::kBad},
    {Health::kSkipped, L"skipped", Tone::kPlain},
};

const HealthWords& WordsOf(Health health) {
    return *std::find_if(std::begin(kWords), std::end(kWords), [&](const auto& row) { return row.health == health; });
}

void PrintForPeople(const Finding& finding) {
    const HealthWords& words = WordsOf(finding.health);
    const Console& output = Console::Output();
    output.Write(PaddedRight(words.word, kHealthWidth), words.tone);
    output.Write(PaddedRight(finding.subject, kSubjectWidth) + finding.text + L'\n');
    if (!finding.cure.empty()) output.Write(std::wstring(kHealthWidth, L' ') + finding.cure + L'\n');
}

Json JsonOf(const Finding& finding) {
    return {{"subject", JsonText(finding.subject)},
            {"health", JsonText(WordsOf(finding.health).word)},
            {"text", JsonText(finding.text)},
            {"cure", JsonText(finding.cure)}};
}

}  // namespace

void Diagnosis::Add(Finding finding) {
    if (!forProgram_) PrintForPeople(finding);
    findings_.push_back(std::move(finding));
}

int Diagnosis::ExitCode() const {
    int exitCode = kExitDone;
    for (const Finding& finding : findings_) {
        if (finding.health == Health::kFailed) exitCode |= finding.mayPass ? kExitTryAgain : kExitRefused;
    }
    return exitCode;
}

void Diagnosis::Finish() const {
    if (!forProgram_) return;
    Json document = JsonDocument(L"doctor", ExitCode());
    Json& list = document["findings"] = Json::array();
    for (const Finding& finding : findings_) list.push_back(JsonOf(finding));
    Print(document);
}

}  // namespace lejis_client
