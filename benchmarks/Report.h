#pragma once

#include "Figure.h"

#include <string>
#include <vector>

namespace benchmarks {

// A line a figure, for people.
void PrintHeading();
void Print(const Figure& figure);

// All figures, for programs. Raises std::runtime_error when the file cannot be written.
void WriteJson(const std::vector<Figure>& figures, const std::string& path);

}  // namespace benchmarks
