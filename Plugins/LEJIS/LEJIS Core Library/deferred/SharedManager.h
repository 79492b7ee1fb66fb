#pragma once

#include "deferred/FutureManager.h"
#include "platform/thread/ThreadState.h"

namespace lejis {

// The future manager that one thread's deferred work shares, made at first use. By itself it counts as no object: its
// pending futures do, and keep the DLL in memory.
class SharedManager final : public platform::thread::ThreadPart {
public:
    FutureManager& Get();

    void Release() noexcept override;

private:
    // Released by Release alone: when the thread ends, pending work must not be touched.
    FutureManager* manager_ = nullptr;
};

}  // namespace lejis
