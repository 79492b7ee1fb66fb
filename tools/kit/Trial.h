// All runs, each with its library registered.
#pragma once

#include "Run.h"

#include <functional>
#include <vector>

namespace kit {

struct Trial {
    Run run;
    Result result;
};

using Tell = std::function<void(const Trial&)>;

// Of each bitness: registers its library, carries out its runs, takes the library out of the registry again, and
// compares the registry with what it was. Tells of each trial as soon as its result is known.
std::vector<Trial> TryAll(const Settings& settings, const Tell& tell);

// Where a library of this name is registered already; empty where none is.
std::wstring RegisteredLibrary();

}  // namespace kit
