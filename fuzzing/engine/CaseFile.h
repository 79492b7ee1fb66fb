// Cases in files: a line for the target, one that says what was found, and the choices.
#pragma once

#include "engine/Case.h"

#include <string>

namespace fuzzing {

struct CaseFile {
    std::string target;
    std::vector<uint32_t> choices;
};

// Throws std::runtime_error when the file holds no case.
CaseFile ReadCaseFile(const std::string& path);

// Takes no memory, so that it works after a crash. False when the file cannot be written.
bool WriteCaseFile(const char* path, const char* target, const char* what, const std::vector<uint32_t>& choices);

}  // namespace fuzzing
