#include "files/StandardInput.h"

#include "files/FileContent.h"
#include "files/FileError.h"

#include <windows.h>

namespace lejis_client {
namespace {

std::string ReadAll() {
    const HANDLE input = GetStdHandle(STD_INPUT_HANDLE);
    std::string content;
    char piece[8192];
    // The end of a pipe shows as a failure.
    for (DWORD read = 0; ReadFile(input, piece, sizeof piece, &read, nullptr) && read > 0;) {
        content.append(piece, read);
        if (content.size() > kLargestFile) throw FileError{L"Standard input is too large for an incident."};
    }
    if (content.empty()) throw FileError{L"Standard input is empty."};
    return content;
}

}  // namespace

const std::string& StandardInput() {
    static const std::string content = ReadAll();
    return content;
}

}  // namespace lejis_client
