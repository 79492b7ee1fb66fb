// Has workers go through a list of tasks, some at a time. It lives in one thread, which also does the telling.
#pragma once

#include "console/Interruption.h"
#include "submission/BacklogSettings.h"
#include "submission/Worker.h"

#include <deque>
#include <map>
#include <vector>

namespace lejis_client {

// Is told, in the thread of the backlog, how the work goes on.
class BacklogListener {
public:
    virtual void Begun(const Task& task) = 0;
    // One try has ended.
    virtual void Tried(const Task& task, const Attempt& attempt) = 0;
    // This was the last try.
    virtual void Ended(const Task& task, const Attempt& attempt) = 0;

protected:
    ~BacklogListener() = default;
};

class Backlog {
public:
    Backlog(const BacklogSettings& settings, JobMaker makeJob, std::deque<Task> tasks, BacklogListener& listener);
    ~Backlog();
    Backlog(const Backlog&) = delete;
    Backlog& operator=(const Backlog&) = delete;

    // Comes back when all is done, when the user interrupts it, or when the road to LEJIS is gone.
    void Run(const Interruption& interruption);

    // Begins no more tasks.
    void Stop() { isStopped_ = true; }

    // How many tasks were not begun at all.
    std::size_t Left() const { return fresh_.size(); }
    bool RoadIsGone() const { return failuresInARow_ >= settings_.stopAfter; }
    long FailuresInARow() const { return failuresInARow_; }
    // Whether a thread still waits for an answer that nobody waits for any more.
    bool HasAbandonedWorkers() const { return hasAbandoned_; }

private:
    bool IsStopping(const Interruption& interruption) const {
        return isStopped_ || interruption.HasHappened() || RoadIsGone();
    }
    bool IsAnyAtWork() const;
    void BeginWhatIsDue();
    bool IsAnyDue(ULONGLONG now) const;
    Task TakeDue(ULONGLONG now);
    Worker* IdleWorker();
    void TakeResults();
    void AbandonOverdue();
    void Settle(Task task, const Attempt& attempt);
    void EndRetries();
    DWORD Pause() const;

    struct Retry {
        Task task;
        Attempt failed;
    };

    BacklogSettings settings_;
    JobMaker makeJob_;
    std::deque<Task> fresh_;
    BacklogListener& listener_;
    // By the tick at which they are due.
    std::multimap<ULONGLONG, Retry> retries_;
    std::vector<std::unique_ptr<Worker>> workers_;
    // Set whenever a worker has done something.
    HANDLE done_;
    // No task begins before this tick.
    ULONGLONG nextStart_ = 0;
    long failuresInARow_ = 0;
    bool isStopped_ = false;
    bool hasAbandoned_ = false;
};

}  // namespace lejis_client
