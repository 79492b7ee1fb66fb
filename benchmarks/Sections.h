// The sections of the table, each in the file of its name.
#pragma once

#include "Figure.h"

#include <vector>

namespace benchmarks {

std::vector<Figure> Reading();
std::vector<Figure> ReadingMore();
std::vector<Figure> Completing();
std::vector<Figure> CompletingBlanks();
std::vector<Figure> CompletingMore();
std::vector<Figure> PeakMemory();
std::vector<Figure> WalkingCards();
std::vector<Figure> HeldBytes();
std::vector<Figure> Submission();
std::vector<Figure> ManyPersons();
std::vector<Figure> NcicLookup();
std::vector<Figure> Waiting();
std::vector<Figure> FirstObject();

}  // namespace benchmarks
