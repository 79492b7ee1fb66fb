// fuzz.exe: runs one target, or one saved case. Started by fuzz.sh, which turns heap checking on for it.
#include "engine/Campaign.h"
#include "engine/CaseFile.h"
#include "engine/ExitCodes.h"
#include "engine/Watch.h"
#include "targets/Targets.h"
#include "world/Documents.h"
#include "world/World.h"

#include <ole2.h>
#include <windows.h>

#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <optional>
#include <string>

using namespace fuzzing;

namespace {

using Factory = std::unique_ptr<Target> (*)();

const std::map<std::string, Factory> kTargets = {
    {"readers", CreateReaders},     {"values", CreateValues},   {"automation", CreateAutomation},
    {"sequences", CreateSequences}, {"answers", CreateAnswers}, {"planted", CreatePlanted},
};

constexpr char kUsage[] =
    "fuzz.exe --target NAME --corpus FOLDER --findings PREFIX [--seconds N] [--seed S] [--first N] [--cases N]\n"
    "         [--each] [--case-limit SECONDS] [--replay FILE]\n";

std::optional<Options> Parse(int count, char** arguments) {
    Options options;
    const std::map<std::string, std::function<void(const std::string&)>> takers = {
        {"--target", [&](const std::string& value) { options.target = value; }},
        {"--corpus", [&](const std::string& value) { options.corpus = value; }},
        {"--findings", [&](const std::string& value) { options.findings = value; }},
        {"--replay", [&](const std::string& value) { options.replay = value; }},
        {"--seconds", [&](const std::string& value) { options.seconds = std::stod(value); }},
        {"--seed", [&](const std::string& value) { options.seed = std::stoull(value); }},
        {"--first", [&](const std::string& value) { options.first = std::stoull(value); }},
        {"--cases", [&](const std::string& value) { options.cases = std::stoull(value); }},
        {"--case-limit",
         [&](const std::string& value) { options.secondsForCase = static_cast<unsigned>(std::stoul(value)); }},
    };
    for (int index = 1; index < count; ++index) {
        if (std::string(arguments[index]) == "--each") {
            options.eachCase = true;
            continue;
        }
        const auto taker = takers.find(arguments[index]);
        if (taker == takers.end() || ++index == count) return std::nullopt;
        taker->second(arguments[index]);
    }
    if (!options.replay.empty()) options.target = ReadCaseFile(options.replay).target;
    if (!kTargets.contains(options.target) || options.corpus.empty()) return std::nullopt;
    return options;
}

// Turns off the cache of BSTRs, because the heap check sees no overrun of a cached text.
void KeepNoTexts() {
    const auto keepNone = reinterpret_cast<void(STDMETHODCALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SetOaNoCache")));
    if (keepNone) keepNone();
}

int Fuzz(const Options& options) {
    KeepNoTexts();
    LoadDocuments(options.corpus + "/documents");
    // What the simulator's tests send is as good a start.
    LoadDocuments(options.corpus + "/../../tests/simulator");
    World::Host();
    const std::unique_ptr<Target> target = kTargets.at(options.target)();
    StartWatch({options.target, options.findings + options.target + "-" + std::to_string(options.seed),
                options.secondsForCase, World::ForgetHost});
    Campaign campaign(*target, options);
    return options.replay.empty() ? campaign.Run() : campaign.Replay();
}

int Run(int count, char** arguments) {
    try {
        const std::optional<Options> options = Parse(count, arguments);
        if (options) return Fuzz(*options);
        std::fputs(kUsage, stdout);
        return kWrongUsage;
    } catch (const std::exception& error) {
        std::printf("fuzz.exe: %s\n", error.what());
        return kCannotRun;
    }
}

}  // namespace

int main(int count, char** arguments) {
    if (FAILED(OleInitialize(nullptr))) return kCannotRun;
    const int code = Run(count, arguments);
    World::ForgetHost();
    std::fflush(stdout);
    // Without the ends of what cases share: nothing of that is looked for here.
    TerminateProcess(GetCurrentProcess(), static_cast<UINT>(code));
}
