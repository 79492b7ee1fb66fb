#include "submission/Worker.h"

#include "console/MessageLoop.h"
#include "library/Apartment.h"

#include <process.h>

#include <utility>

namespace lejis_client {

// What the worker's owner and its thread have in common. It belongs to both: a thread that never comes back from its
// task outlives its owner.
struct Worker::Shared final : AttemptWatch {
    Shared(JobMaker maker, HANDLE done) : makeJob(std::move(maker)), doneEvent(done) {}
    ~Shared() { CloseHandle(goEvent); }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;

    void Learn(const Attempt& attempt) override;
    void BeginCall(const Attempt& attempt) override;

    const JobMaker makeJob;
    const HANDLE doneEvent;
    const HANDLE goEvent = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    SRWLOCK lock = SRWLOCK_INIT;
    // Guarded by the lock.
    std::optional<Task> order;
    std::optional<Attempt> result;
    // What is known of the task under way, and since when it prepares its call or waits for it.
    Attempt known;
    ULONGLONG since = 0;
    bool isOver = false;
};

namespace {

class Locked {
public:
    explicit Locked(SRWLOCK& lock) : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
    ~Locked() { ReleaseSRWLockExclusive(&lock_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;

private:
    SRWLOCK& lock_;
};

}  // namespace

void Worker::Shared::Learn(const Attempt& attempt) {
    const Locked locked(lock);
    known = attempt;
}

void Worker::Shared::BeginCall(const Attempt& attempt) {
    const Locked locked(lock);
    if (isOver) throw Abandoned();
    known = attempt;
    since = GetTickCount64();
}

Worker::Worker(JobMaker makeJob, HANDLE done) : shared_(std::make_shared<Shared>(std::move(makeJob), done)) {
    auto forThread = std::make_unique<std::shared_ptr<Shared>>(shared_);
    const auto thread = _beginthreadex(nullptr, 0, Work, forThread.get(), 0, nullptr);
    if (!thread) throw std::bad_alloc();
    static_cast<void>(forThread.release());
    thread_ = reinterpret_cast<HANDLE>(thread);
}

Worker::~Worker() {
    {
        const Locked locked(shared_->lock);
        shared_->isOver = true;
    }
    SetEvent(shared_->goEvent);
    if (!isBusy_) WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
}

void Worker::Begin(const Task& task) {
    task_ = task;
    isBusy_ = true;
    start_ = GetTickCount64();
    {
        const Locked locked(shared_->lock);
        shared_->order = task;
        shared_->known = {};
        shared_->known.outcome.result = Result::NotSent;
        shared_->since = start_;
    }
    SetEvent(shared_->goEvent);
}

std::optional<Attempt> Worker::Take() {
    const Locked locked(shared_->lock);
    std::optional<Attempt> result = std::exchange(shared_->result, std::nullopt);
    if (result) isBusy_ = false;
    return result;
}

std::optional<Attempt> Worker::GiveUp(ULONGLONG milliseconds) {
    const Locked locked(shared_->lock);
    const ULONGLONG now = GetTickCount64();
    if (!isBusy_ || shared_->result || now - shared_->since < milliseconds) return {};
    shared_->isOver = true;
    Attempt known = shared_->known;
    known.milliseconds = now - start_;
    return known;
}

unsigned __stdcall Worker::Work(void* parameter) {
    const std::unique_ptr<std::shared_ptr<Shared>> owned(static_cast<std::shared_ptr<Shared>*>(parameter));
    Shared& shared = **owned;
    const Apartment apartment;
    const std::unique_ptr<Job> job = shared.makeJob();
    for (;;) {
        AwaitEvent(shared.goEvent, INFINITE);
        std::optional<Task> task;
        {
            const Locked locked(shared.lock);
            if (shared.isOver) return 0;
            task = std::exchange(shared.order, std::nullopt);
        }
        if (!task) continue;
        Attempt attempt = job->Do(*task, shared);
        {
            const Locked locked(shared.lock);
            shared.result = std::move(attempt);
        }
        SetEvent(shared.doneEvent);
    }
}

}  // namespace lejis_client
