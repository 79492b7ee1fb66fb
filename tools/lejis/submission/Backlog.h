// Has workers go through a list of tasks, some at a time. It lives in one thread, which also does the telling.
#pragma once

#include "console/Interruption.h"
#include "submission/BacklogSettings.h"
#include "submission/StartPace.h"
#include "submission/Worker.h"

#include <deque>
#include <map>
#include <set>
#include <vector>

namespace lejis_client {

// Is told, in the thread of the backlog, how the work goes on.
class BacklogListener {
public:
    virtual void Begun(const Task& task) = 0;
    // One try has ended.
    virtual void Tried(const Task& task, const Attempt& attempt) = 0;
    // That try has failed, and another one follows.
    virtual void Retried(const Task& task, const Attempt& attempt) = 0;
    // That try was the last one.
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

    // Comes back when all is done, when the user interrupts it, or when LEJIS cannot be reached any more.
    void Run(const Interruption& interruption);

    // Begins no more tasks.
    void Stop() { isStopped_ = true; }

    // How many tasks were not begun at all.
    std::size_t Left() const { return fresh_.size(); }
    // How many incidents in a row failed at the network or LEJIS as a whole, where that ended the run; 0 elsewhere.
    std::size_t FailuresInARow() const { return IsRoadGone() ? failing_.size() : 0; }
    // Whether a thread is still at work, or waits for an answer that nobody waits for any more.
    bool HasWorkersAtWork() const { return abandoned_ > 0 || IsAnyAtWork(); }
    // Whether the run ended because too many threads wait for answers that never come.
    bool HasTooManyAbandoned() const;

private:
    bool IsStopping(const Interruption& interruption) const {
        return isStopped_ || interruption.HasHappened() || IsRoadGone() || HasTooManyAbandoned();
    }
    bool IsRoadGone() const { return failing_.size() >= static_cast<std::size_t>(settings_.stopAfter); }
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
    // The retries by the tick at which they are due.
    std::multimap<ULONGLONG, Retry> retries_;
    std::vector<std::unique_ptr<Worker>> workers_;
    // Set whenever a worker has done something.
    HANDLE done_;
    StartPace pace_;
    // The names of the incidents that failed so since the last answer: the tries of one count once.
    std::set<std::wstring> failing_;
    bool isStopped_ = false;
    std::size_t abandoned_ = 0;
};

}  // namespace lejis_client
