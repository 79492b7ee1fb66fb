// A thread with an apartment of its own, which does one task at a time. No object of COM leaves it.
#pragma once

#include "submission/Job.h"

#include <memory>

namespace lejis_client {

class Worker {
public:
    // The event is set whenever a task is done; it lives as long as the program.
    Worker(JobMaker makeJob, HANDLE done);
    // Ends an idle worker's thread. One that is at work is left to itself.
    ~Worker();
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;

    bool IsIdle() const { return !isBusy_; }
    const Task& CurrentTask() const { return task_; }

    void Begin(const Task& task);
    // What has become of the task; nothing as long as it is under way. The worker is idle afterwards.
    std::optional<Attempt> Take();
    // Gives up a task whose preparation or service call has lasted this long, and returns what is known of it by then.
    // Returns nothing when the task is done or has time left. A worker that has given up takes no other task.
    std::optional<Attempt> GiveUp(ULONGLONG milliseconds);

private:
    struct Shared;
    static unsigned __stdcall Work(void* shared);

    std::shared_ptr<Shared> shared_;
    HANDLE thread_ = nullptr;
    Task task_;
    bool isBusy_ = false;
    ULONGLONG start_ = 0;
};

}  // namespace lejis_client
