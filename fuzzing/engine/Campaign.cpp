#include "engine/Campaign.h"

#include "engine/CaseFile.h"
#include "engine/ExitCodes.h"
#include "engine/Finding.h"
#include "engine/HeapCensus.h"
#include "engine/NewProcess.h"
#include "engine/Watch.h"
#include "platform/com/Module.h"
#include "platform/ComError.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <optional>

namespace fuzzing {
namespace {

constexpr uint64_t kBatch = 1000;
// The number of batches from one look at the memory to the next.
constexpr uint64_t kBatchesForMemory = 16;
// The index that stands for a case of the corpus or of a file.
constexpr uint64_t kNoIndex = 0;
constexpr char kMemoryLeak[] = "leak: each run of this case leaves memory behind";
constexpr char kOverrun[] = "overrun: a block of the heap was written beyond its end, or after it was freed";

// How many objects of the library live. The library tells only whether any do, which is enough to count them.
long LivingObjects() {
    long living = 0;
    for (; platform::module::InUse(); ++living) platform::module::Release();
    for (long left = living; left > 0; --left) platform::module::Retain();
    return living;
}

std::string Names() {
    std::string all;
    for (const std::string& name : platform::living::Names()) all.append(" ").append(name);
    return all;
}

// Runs `target` on the case and says what is wrong with that, if anything.
std::optional<std::string> FaultOf(Target& target, Case& input) {
    const long living = LivingObjects();
    try {
        target.Run(input);
    } catch (const Finding& finding) {
        return finding.what;
    } catch (const platform::ComError& error) {
        const std::wstring& text = error.Description();
        return "an exception came out: " + std::string(text.begin(), text.end());
    } catch (const std::exception& error) {
        return std::string("an exception came out: ") + error.what();
    }
    const long left = LivingObjects() - living;
    if (left == 0 || input.AreLeaksPardoned()) return std::nullopt;
    return "leak: " + std::to_string(left) + " objects of the library are left alive, these among them:" + Names();
}

std::vector<std::string> CaseFilesIn(const std::string& folder) {
    std::vector<std::string> files;
    if (!std::filesystem::is_directory(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".case") files.push_back(entry.path().string());
    }
    std::ranges::sort(files);
    return files;
}

}  // namespace

int Campaign::Run() {
    if (!HeapIsChecked()) {
        std::puts("The heap is not checked here: fuzz.sh turns that on.");
        return kCannotRun;
    }
    start_ = GetTickCount64();
    if (!RunCorpus()) return kFound;
    const uint64_t end = options_.cases > UINT64_MAX - options_.first ? UINT64_MAX : options_.first + options_.cases;
    for (uint64_t first = options_.first; first < end && !TimeIsUp();) {
        const Batch batch{first, std::min(options_.eachCase ? 1 : kBatch, end - first)};
        if (!RunBatch(batch)) return kFound;
        first += batch.count;
    }
    std::printf("%s: %llu cases in %.1f s, seed %llu, %llu of them pardoned their leaks, no finding\n",
                options_.target.c_str(), static_cast<unsigned long long>(done_),
                static_cast<double>(GetTickCount64() - start_) / 1000, static_cast<unsigned long long>(options_.seed),
                static_cast<unsigned long long>(pardonedInAll_));
    return kNoFinding;
}

int Campaign::Replay() {
    const std::vector<uint32_t> choices = ReadCaseFile(options_.replay).choices;
    Case input(choices);
    input.SetTraced();
    if (!RunAlone(input, choices)) return kFound;
    std::puts("no finding");
    return kNoFinding;
}

// What once broke something comes first.
bool Campaign::RunCorpus() {
    for (const std::string& file : CaseFilesIn(options_.corpus + "/" + options_.target)) {
        const std::vector<uint32_t> choices = ReadCaseFile(file).choices;
        Case input(choices);
        if (!RunAlone(input, choices)) {
            std::printf("  this was %s\n", file.c_str());
            return false;
        }
    }
    return true;
}

// A case that was recorded, looked at in every way.
bool Campaign::RunAlone(Case& input, const std::vector<uint32_t>& choices) {
    if (!RunCase(input, kNoIndex)) return false;
    if (!HeapIsSound()) {
        Report(input, kNoIndex, kOverrun);
        return false;
    }
    if (input.AreLeaksPardoned() || !GrowsAgain([&] { return Case(choices); }, kNoIndex)) return true;
    Report(input, kNoIndex, kMemoryLeak);
    return false;
}

bool Campaign::RunCase(Case& input, uint64_t index) {
    const Watched watched(input, index);
    const auto fault = FaultOf(target_, input);
    if (fault) Report(input, index, fault->c_str());
    return !fault;
}

bool Campaign::RunCase(uint64_t index) {
    Case input(CaseNumber(options_.seed, index));
    if (!RunCase(input, index)) return false;
    if (input.AreLeaksPardoned() && pardoned_.insert(index).second) ++pardonedInAll_;
    return true;
}

bool Campaign::RunBatch(const Batch& batch) {
    pardoned_.clear();
    uint64_t index = batch.first;
    for (; index < batch.first + batch.count && !TimeIsUp(); ++index, ++done_) {
        if (!RunCase(index)) return false;
    }
    const Batch run{batch.first, index - batch.first};
    if (!HeapIsSoundAfter(run)) return false;
    // It costs several times the batch.
    const uint64_t number = batch.first / kBatch;
    return number % kBatchesForMemory != 0 || MemoryIsSteady(run);
}

bool Campaign::HeapIsSoundAfter(const Batch& batch) {
    if (HeapIsSound()) return true;
    if (batch.count == 1) {
        // Run again for its choices alone.
        Case culprit(CaseNumber(options_.seed, batch.first));
        target_.Run(culprit);
        Report(culprit, batch.first, kOverrun);
        return false;
    }
    std::puts("The heap is broken: running the last cases again, with a look at it after each ...");
    std::fflush(stdout);
    Options narrower = options_;
    narrower.first = batch.first;
    narrower.cases = batch.count;
    // In this process nothing can be told apart any more.
    if (RunEachInNewProcess(narrower)) std::puts("FINDING: overrun, but none of these cases alone");
    return false;
}

// A cache may grow once; what grows each time that the same cases run is a leak.
bool Campaign::MemoryIsSteady(const Batch& batch) {
    constexpr int kRepeats = 2;
    for (int repeat = 0; repeat < kRepeats; ++repeat) {
        const size_t before = BlocksInUse();
        for (uint64_t index = batch.first; index < batch.first + batch.count; ++index) {
            if (pardoned_.contains(index)) continue;
            if (TimeIsUp()) return true;
            if (!RunCase(index)) return false;
        }
        if (BlocksInUse() <= before) return true;
    }
    for (uint64_t index = batch.first; index < batch.first + batch.count; ++index) {
        if (TimeIsUp()) return true;
        if (pardoned_.contains(index) || !GrowsAgain([&] { return Case(CaseNumber(options_.seed, index)); }, index))
            continue;
        Case culprit(CaseNumber(options_.seed, index));
        target_.Run(culprit);
        Report(culprit, index, kMemoryLeak);
        return false;
    }
    return true;
}

// The first run makes what is made once; the heap's own doings are fewer than one block a run.
template <typename MakeCase>
bool Campaign::GrowsAgain(const MakeCase& makeCase, uint64_t index) {
    constexpr size_t kRepeats = 40;
    const auto grownBy = [&](size_t runs) {
        const size_t before = BlocksInUse();
        for (; runs > 0; --runs) {
            Case input = makeCase();
            if (!RunCase(input, index)) return size_t{0};
        }
        const size_t now = BlocksInUse();
        return now > before ? now - before : 0;
    };
    grownBy(1);
    // Most cases are done with after a second run.
    return grownBy(1) > 0 && grownBy(kRepeats) >= kRepeats;
}

bool Campaign::TimeIsUp() const { return static_cast<double>(GetTickCount64() - start_) > options_.seconds * 1000; }

}  // namespace fuzzing
