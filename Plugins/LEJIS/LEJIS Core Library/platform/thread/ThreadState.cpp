#include "platform/thread/ThreadState.h"

#include "platform/thread/ThreadList.h"

#include <utility>

namespace platform::thread {

ThreadPart& PartMadeBy(PartMaker maker) {
    Thread& self = ThisThread();
    for (const auto& [known, part] : self.parts) {
        if (known == maker) return *part;
    }
    return *self.parts.emplace_back(maker, maker()).second;
}

void CountObject() noexcept {
    if (Thread* const self = ThisThreadIfAny()) {
        ++self->objects;
        return;
    }
    try {
        ++ThisThread().objects;
    } catch (...) {
        // Without memory for its state, the thread does not notice its last object; COM's question still releases all.
    }
}

void UncountObject() noexcept {
    Thread* const self = ThisThreadIfAny();
    if (!self || self->objects == 0) return;
    if (--self->objects == 0) ReleaseParts();
}

void ReleaseParts() noexcept {
    Thread* const self = ThisThreadIfAny();
    // What is let go of may be the last object of the thread once more.
    if (!self || std::exchange(self->isReleasing, true)) return;
    // By position: foreign code runs meanwhile and may make this thread use another part.
    for (size_t at = 0; at < self->parts.size(); ++at) self->parts[at].second->Release();
    self->isReleasing = false;
}

}  // namespace platform::thread
