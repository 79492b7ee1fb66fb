// reference TYPE_LIBRARY FOLDER CSHARP_FILE: writes the pages of the type library (a .tlb, or a DLL that holds one)
// into the folder, and what a C# program says of it into the file.
#include "CSharp.h"
#include "LibraryReader.h"
#include "Pages.h"

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace reference {
namespace {

std::string Utf8(const std::wstring& text) {
    const int length = static_cast<int>(text.size());
    std::string bytes(3 * text.size(), '\0');
    const int used = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), static_cast<int>(bytes.size()),
                                         nullptr, nullptr);
    bytes.resize(static_cast<size_t>(used));
    return bytes;
}

void Write(const std::filesystem::path& file, const std::wstring& text) {
    std::ofstream stream(file, std::ios::binary);
    stream << Utf8(text);
    if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

int Run(int count, wchar_t** arguments) {
    if (count != 4) {
        std::cerr << "usage: reference TYPE_LIBRARY FOLDER CSHARP_FILE\n";
        return 64;
    }
    const Library library = ReadLibrary(arguments[1]);
    for (const auto& [name, text] : WritePages(library)) Write(std::filesystem::path(arguments[2]) / name, text);
    Write(arguments[3], WriteCSharp(library));
    return 0;
}

}  // namespace
}  // namespace reference

int wmain(int count, wchar_t** arguments) {
    try {
        return reference::Run(count, arguments);
    } catch (const std::exception& error) {
        std::cerr << "reference: " << error.what() << "\n";
        return 1;
    }
}
