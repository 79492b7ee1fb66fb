// One input: a sequence of choices, drawn at random or read back from a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace fuzzing {

// Everything that a target does follows from the choices, so that a recorded case does the same again. A recording that
// is too short goes on with zeros, which generators give their simplest meaning.
class Case {
public:
    // Drawn at random; the number alone decides them.
    explicit Case(uint64_t number) : state_(number) {}
    // Read back.
    explicit Case(std::vector<uint32_t> recorded) : recorded_(std::move(recorded)), isRecorded_(true) {}
    Case(const Case&) = delete;
    Case& operator=(const Case&) = delete;

    // A number from 0 to limit - 1; 0 when limit is 0.
    uint32_t Below(size_t limit);
    uint32_t Bits();
    // True once in `times`; false when a recording has ended.
    bool OneIn(uint32_t times) { return Below(times) == times - 1; }

    template <typename Item, size_t count>
    const Item& Pick(const Item (&items)[count]) {
        return items[Below(count)];
    }
    template <typename Items>
    auto& Pick(Items& items) {
        return items[Below(std::size(items))];
    }

    // The platform keeps memory and objects for ever in this case: what is left says nothing about the library.
    void PardonLeaks() { areLeaksPardoned_ = true; }
    bool AreLeaksPardoned() const { return areLeaksPardoned_; }

    const std::vector<uint32_t>& Made() const { return made_; }

    // Says what is done, where somebody wants to read it: `text` makes the line.
    template <typename Text>
    void Trace(Text&& text) {
        if (traced_) Print(std::forward<Text>(text)());
    }
    void SetTraced() { traced_ = true; }

private:
    uint32_t Next();
    uint32_t Made(uint32_t choice);
    static void Print(const std::wstring& line);

    uint64_t state_ = 0;
    std::vector<uint32_t> recorded_;
    std::vector<uint32_t> made_;
    bool isRecorded_ = false;
    bool areLeaksPardoned_ = false;
    bool traced_ = false;
};

// The number of case `index` of a seed.
uint64_t CaseNumber(uint64_t seed, uint64_t index);

}  // namespace fuzzing
