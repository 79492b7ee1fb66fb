#include "submission/Worker.h"

#include "console/MessageLoop.h"

#include <process.h>

#include <utility>

namespace lejis_client {

// What the worker's owner and its thread have in common. It belongs to both: a thread that never comes back from its
// task outlives its owner.
struct Worker::Shared {
    Shared(JobMaker maker, HANDLE done) : makeJob(std::move(maker)), doneEvent(done) {}
    ~Shared() { CloseHandle(goEvent); }
    Shared(const Shared&) = delete;
    Shared& operator=(const Shared&) = delete;

    const JobMaker makeJob;
    const HANDLE doneEvent;
    const HANDLE goEvent = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    SRWLOCK lock = SRWLOCK_INIT;
    // Guarded by the lock.
    std::optional<Task> order;
    std::optional<Attempt> result;
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

class Apartment {
public:
    Apartment() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

}  // namespace

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
    }
    SetEvent(shared_->goEvent);
}

std::optional<Attempt> Worker::Take() {
    const Locked locked(shared_->lock);
    std::optional<Attempt> result = std::exchange(shared_->result, std::nullopt);
    if (result) isBusy_ = false;
    return result;
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
        Attempt attempt = job->Do(*task);
        {
            const Locked locked(shared.lock);
            shared.result = std::move(attempt);
        }
        SetEvent(shared.doneEvent);
    }
}

}  // namespace lejis_client
