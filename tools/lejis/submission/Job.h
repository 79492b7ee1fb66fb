// What a worker does, task by task. It is made, used and destroyed in the worker's thread.
#pragma once

#include "submission/AttemptWatch.h"

#include <functional>
#include <memory>

namespace lejis_client {

class Job {
public:
    Job() = default;
    virtual ~Job() = default;
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    virtual Attempt Do(const Task& task, AttemptWatch& watch) = 0;
};

using JobMaker = std::function<std::unique_ptr<Job>()>;

}  // namespace lejis_client
