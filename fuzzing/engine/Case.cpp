#include "engine/Case.h"

#include <windows.h>

#include <cstdio>

namespace fuzzing {
namespace {

// SplitMix64: a full period from any start, and as good for this as anything bigger.
uint64_t Mix(uint64_t& state) {
    uint64_t mixed = (state += 0x9E3779B97F4A7C15U);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31);
}

}  // namespace

uint64_t CaseNumber(uint64_t seed, uint64_t index) {
    uint64_t state = seed;
    state = Mix(state) ^ index;
    return Mix(state);
}

uint32_t Case::Below(size_t limit) {
    if (limit == 0) return 0;
    return Made(static_cast<uint32_t>(Next() % limit));
}

uint32_t Case::Bits() { return Made(Next()); }

uint32_t Case::Next() {
    if (!isRecorded_) return static_cast<uint32_t>(Mix(state_));
    return made_.size() < recorded_.size() ? recorded_[made_.size()] : 0;
}

uint32_t Case::Made(uint32_t choice) {
    made_.push_back(choice);
    return choice;
}

void Case::Print(const std::wstring& line) {
    std::string text(line.size() * 3 + 1, '\0');
    const int length = WideCharToMultiByte(CP_UTF8, 0, line.data(), static_cast<int>(line.size()), text.data(),
                                           static_cast<int>(text.size()), nullptr, nullptr);
    text.resize(static_cast<size_t>(length));
    std::puts(text.c_str());
    // What comes next may be the crash that is looked for.
    std::fflush(stdout);
}

}  // namespace fuzzing
