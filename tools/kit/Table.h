// Tables of the kit: lines of columns parted by tabs, under a line with their names.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace kit {

using Row = std::map<std::string, std::wstring>;

// Comments and empty lines are left out. Raises a std::runtime_error for a file that cannot be read, and for a line
// with more or fewer columns than there are names.
std::vector<Row> ReadTable(const std::wstring& path);

// The parts of a list that a comma separates; "-" is a list of nothing.
std::vector<std::wstring> ListOf(const std::wstring& text);

}  // namespace kit
