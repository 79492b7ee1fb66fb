// What the doctor finds out: people are told each finding as soon as it is known, a program all of them in one
// document.
#pragma once

#include "doctor/Finding.h"
#include "doctor/TimeLimit.h"

#include <vector>

namespace lejis_client {

class Diagnosis {
public:
    Diagnosis(bool forProgram, long secondsForEach) : forProgram_(forProgram), limit_(secondsForEach) {}

    void Add(Finding finding);
    // The same for a finding that takes its time. `late` is the finding when it takes too long; its text is written
    // here.
    template <typename Check>
    Health Examine(Finding late, Check check) {
        late.text = L"no answer within " + limit_.Text();
        Add(limit_.Run(std::move(check)).value_or(std::move(late)));
        return findings_.back().health;
    }

    // What the program ends with: as the other commands it tells apart what may pass from what does not.
    int ExitCode() const;
    void Finish() const;
    bool HasGivenUpWork() const { return limit_.WasExceeded(); }

private:
    bool forProgram_;
    TimeLimit limit_;
    std::vector<Finding> findings_;
};

}  // namespace lejis_client
