// A run of one target: many cases, and after each of them and of each batch a look at what they left behind.
#pragma once

#include "engine/Target.h"

#include <cstdint>
#include <set>
#include <string>
#include <vector>

namespace fuzzing {

struct Options {
    std::string target;
    uint64_t seed = 1;
    double seconds = 60;
    // The range of cases, for a part of a run.
    uint64_t first = 0;
    uint64_t cases = UINT64_MAX;
    // Looks at the heap after each case, which is slow.
    bool eachCase = false;
    unsigned secondsForCase = 20;
    std::string findings;
    std::string corpus;
    // The file of a case to run instead.
    std::string replay;
};

class Campaign {
public:
    Campaign(Target& target, const Options& options) : target_(target), options_(options) {}

    // Exit codes.
    int Run();
    int Replay();

private:
    struct Batch {
        uint64_t first;
        uint64_t count;
    };

    bool RunCorpus();
    bool RunAlone(Case& input, const std::vector<uint32_t>& choices);
    bool RunCase(Case& input, uint64_t index);
    bool RunCase(uint64_t index);
    bool RunBatch(const Batch& batch);
    bool HeapIsSoundAfter(const Batch& batch);
    bool MemoryIsSteady(const Batch& batch);
    template <typename MakeCase>
    bool GrowsAgain(const MakeCase& makeCase, uint64_t index);
    bool TimeIsUp() const;

    Target& target_;
    const Options options_;
    uint64_t done_ = 0;
    uint64_t pardonedInAll_ = 0;
    // The cases of the batch whose growth says nothing.
    std::set<uint64_t> pardoned_;
    unsigned long long start_ = 0;
};

}  // namespace fuzzing
