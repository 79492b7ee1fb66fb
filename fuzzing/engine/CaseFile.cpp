#include "engine/CaseFile.h"

#include <windows.h>

#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace fuzzing {
namespace {

bool Write(HANDLE file, const char* text) {
    DWORD written = 0;
    return WriteFile(file, text, static_cast<DWORD>(std::strlen(text)), &written, nullptr) != FALSE;
}

bool WriteChoices(HANDLE file, const std::vector<uint32_t>& choices) {
    char number[16];
    for (size_t index = 0; index < choices.size(); ++index) {
        // Twenty to a line keeps the file readable.
        std::snprintf(number, sizeof number, "%s%u", index % 20 == 0 ? "\n" : " ",
                      static_cast<unsigned>(choices[index]));
        if (!Write(file, number)) return false;
    }
    return Write(file, "\n");
}

}  // namespace

CaseFile ReadCaseFile(const std::string& path) {
    std::ifstream file(path);
    CaseFile read;
    std::string line;
    if (!std::getline(file, line) || line.rfind("target ", 0) != 0) throw std::runtime_error("no case file: " + path);
    read.target = line.substr(std::strlen("target "));
    // What was found is for people.
    std::getline(file, line);
    for (uint32_t choice = 0; file >> choice;) read.choices.push_back(choice);
    return read;
}

bool WriteCaseFile(const char* path, const char* target, const char* what, const std::vector<uint32_t>& choices) {
    const HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    const bool written = Write(file, "target ") && Write(file, target) && Write(file, "\n") && Write(file, what) &&
                         WriteChoices(file, choices);
    CloseHandle(file);
    return written;
}

}  // namespace fuzzing
