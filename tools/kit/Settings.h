#pragma once

#include <string>

namespace kit {

struct Settings {
    // Where the kit was unpacked.
    std::wstring folder;
    // What the runs write.
    std::wstring results;
    // http://HOST:PORT of a simulator; empty without one.
    std::wstring simulator;
    // The runs whose names begin with this; empty for all.
    std::wstring only;
};

}  // namespace kit
