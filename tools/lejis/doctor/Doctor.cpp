#include "doctor/Doctor.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "doctor/DumpCheck.h"
#include "doctor/LibraryCheck.h"
#include "doctor/ServiceCheck.h"
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

void Append(Findings& findings, const Findings& more) { findings.insert(findings.end(), more.begin(), more.end()); }

Findings Examine(const CommandLine& commandLine) {
    Findings findings = CheckLibrary();
    if (commandLine.url) Append(findings, CheckService(ServiceKind::kSubmission, *commandLine.url));
    if (commandLine.searchUrl) Append(findings, CheckService(ServiceKind::kSearch, *commandLine.searchUrl));
    findings.push_back(CheckDumps());
    return findings;
}

int ExitCodeOf(const Findings& findings) {
    int exitCode = kExitDone;
    for (const Finding& finding : findings) {
        if (finding.health != Health::kFailed) continue;
        if (!finding.mayPass) return kExitRefused;
        exitCode = kExitTryAgain;
    }
    return exitCode;
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

void PrintForPrograms(const Findings& findings, int exitCode) {
    Json document = JsonDocument(L"doctor", exitCode);
    Json& list = document["findings"] = Json::array();
    for (const Finding& finding : findings) list.push_back(JsonOf(finding));
    Print(document);
}

}  // namespace

int Diagnose(const CommandLine& commandLine) {
    const Findings findings = Examine(commandLine);
    const int exitCode = ExitCodeOf(findings);
    if (commandLine.json) {
        PrintForPrograms(findings, exitCode);
    } else {
        for (const Finding& finding : findings) PrintForPeople(finding);
    }
    return exitCode;
}

}  // namespace lejis_client
