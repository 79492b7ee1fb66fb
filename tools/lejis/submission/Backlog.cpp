#include "submission/Backlog.h"

#include "submission/RetryPause.h"
#include "text/Duration.h"

#include <algorithm>
#include <utility>

namespace lejis_client {
namespace {

// Each holds a thread for good, and a program of 32 bits has room for few of them.
constexpr std::size_t kMostAbandoned = 100;

// Often enough to see that the user has had enough, or that a worker takes too long.
constexpr ULONGLONG kLongestPause = 250;

Attempt Overdue(Attempt attempt, long seconds) {
    Outcome& outcome = attempt.outcome;
    const wchar_t* const what = outcome.result == Result::Unknown ? L"There was no answer within "
                                                                  : L"It could not be got ready for sending within ";
    outcome.errors = {what + std::to_wstring(seconds) + L" seconds."};
    outcome.canTryAgain = true;
    outcome.affectsEveryIncident = true;
    return attempt;
}

}  // namespace

Backlog::Backlog(const BacklogSettings& settings, JobMaker makeJob, std::deque<Task> tasks, BacklogListener& listener)
    : settings_(settings),
      makeJob_(std::move(makeJob)),
      fresh_(std::move(tasks)),
      listener_(listener),
      done_(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      pace_(settings.rate) {}

// A worker that is left to itself may set the event at any time, so the event stays open then.
Backlog::~Backlog() {
    const bool isAnyLeft = HasWorkersAtWork();
    workers_.clear();
    if (!isAnyLeft) CloseHandle(done_);
}

bool Backlog::HasTooManyAbandoned() const { return abandoned_ >= kMostAbandoned; }

void Backlog::Run(const Interruption& interruption) {
    for (;;) {
        if (!IsStopping(interruption)) BeginWhatIsDue();
        const bool isAnyLeft = !IsStopping(interruption) && (!fresh_.empty() || !retries_.empty());
        if (!isAnyLeft && !IsAnyAtWork()) break;
        WaitForSingleObject(done_, Pause());
        TakeResults();
        AbandonOverdue();
    }
    EndRetries();
}

bool Backlog::IsAnyAtWork() const {
    return std::any_of(workers_.begin(), workers_.end(), [](const auto& worker) { return !worker->IsIdle(); });
}

void Backlog::BeginWhatIsDue() {
    for (ULONGLONG now = GetTickCount64(); pace_.MayStart(now) && IsAnyDue(now); now = GetTickCount64()) {
        Worker* const worker = IdleWorker();
        if (!worker) return;
        Task task = TakeDue(now);
        ++task.attempts;
        listener_.Begun(task);
        worker->Begin(task);
        pace_.Started(now);
    }
}

bool Backlog::IsAnyDue(ULONGLONG now) const {
    return !fresh_.empty() || (!retries_.empty() && retries_.begin()->first <= now);
}

Task Backlog::TakeDue(ULONGLONG now) {
    const auto retry = retries_.begin();
    if (retry != retries_.end() && retry->first <= now) {
        Task task = std::move(retry->second.task);
        retries_.erase(retry);
        return task;
    }
    Task task = std::move(fresh_.front());
    fresh_.pop_front();
    return task;
}

Worker* Backlog::IdleWorker() {
    for (const auto& worker : workers_) {
        if (worker->IsIdle()) return worker.get();
    }
    if (workers_.size() == static_cast<std::size_t>(settings_.jobs)) return nullptr;
    workers_.push_back(std::make_unique<Worker>(makeJob_, done_));
    return workers_.back().get();
}

void Backlog::TakeResults() {
    for (const auto& worker : workers_) {
        const Task task = worker->CurrentTask();
        if (const auto attempt = worker->Take()) Settle(task, *attempt);
    }
}

void Backlog::AbandonOverdue() {
    const ULONGLONG limit = static_cast<ULONGLONG>(settings_.seconds) * kSecond;
    for (auto& worker : workers_) {
        const auto known = worker->GiveUp(limit);
        if (!known) continue;
        ++abandoned_;
        Settle(worker->CurrentTask(), Overdue(*known, settings_.seconds));
        worker = std::make_unique<Worker>(makeJob_, done_);
    }
}

void Backlog::Settle(Task task, const Attempt& attempt) {
    listener_.Tried(task, attempt);
    const Outcome& outcome = attempt.outcome;
    if (outcome.affectsEveryIncident) {
        failing_.insert(task.name);
    } else if (outcome.result != Result::NotSent && outcome.result != Result::LeftOut) {
        failing_.clear();
    }
    // What was not tried takes no part in the pace.
    if (outcome.result == Result::LeftOut) pace_.TakeBack();
    if (!outcome.canTryAgain || task.attempts > settings_.retries) return listener_.Ended(task, attempt);
    listener_.Retried(task, attempt);
    const ULONGLONG due = GetTickCount64() + RetryPause(task.attempts);
    retries_.emplace(due, Retry{std::move(task), attempt});
}

void Backlog::EndRetries() {
    for (const auto& [due, retry] : std::exchange(retries_, {})) listener_.Ended(retry.task, retry.failed);
}

DWORD Backlog::Pause() const {
    const ULONGLONG now = GetTickCount64();
    ULONGLONG pause = kLongestPause;
    const auto until = [&](ULONGLONG tick) { pause = std::min(pause, tick > now ? tick - now : 0); };
    const bool canBegin = !fresh_.empty() || !retries_.empty();
    if (canBegin && !pace_.MayStart(now)) until(pace_.Next());
    if (!retries_.empty() && retries_.begin()->first > now) until(retries_.begin()->first);
    return static_cast<DWORD>(pause);
}

}  // namespace lejis_client
