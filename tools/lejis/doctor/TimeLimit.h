// Work that is not waited for longer than the user wants.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

namespace lejis_client {

class TimeLimit {
public:
    explicit TimeLimit(long seconds) : seconds_(seconds) {}

    // What the work returns, or raises; nothing when it takes longer. Then it goes on in its thread, so it must hold
    // all that it uses. The thread is an apartment of its own.
    template <typename Work>
    std::optional<std::invoke_result_t<Work>> Run(Work work) {
        struct Task {
            Work work;
            std::optional<std::invoke_result_t<Work>> result;
            std::exception_ptr failure;
        };
        const auto task = std::make_shared<Task>(Task{std::move(work), std::nullopt, nullptr});
        const bool isDone = RunInThread([task] {
            try {
                task->result = task->work();
            } catch (...) {
                task->failure = std::current_exception();
            }
        });
        if (!isDone) return std::nullopt;
        if (task->failure) std::rethrow_exception(task->failure);
        return std::move(task->result);
    }

    // Whether a thread goes on with work that nobody waits for any more.
    bool WasExceeded() const { return wasExceeded_; }

    // "10 seconds".
    std::wstring Text() const;

private:
    // False when the work takes too long.
    bool RunInThread(std::function<void()> work);

    long seconds_;
    bool wasExceeded_ = false;
};

}  // namespace lejis_client
