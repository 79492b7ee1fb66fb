// A server that nobody is meant to call: it listens on this machine, answers nothing, and knows who has tried.
#pragma once

#include "unit_support/LocalListener.h"

namespace support {

class SilentServer {
public:
    std::wstring Address(const std::wstring& name) const { return listener_.Address(name); }

    // Connections are made before a client learns that nobody answers, so they wait here to be seen.
    bool WasCalled() const { return listener_.HasClient(); }

private:
    LocalListener listener_;
};

}  // namespace support
