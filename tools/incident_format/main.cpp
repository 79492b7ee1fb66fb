// incident_format FOLDER: writes the page and the schemas of the incident format into the folder.
#include "Page.h"
#include "Schemas.h"
#include "text/Utf8.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

namespace incident_format {
namespace {

constexpr wchar_t kPage[] = L"incident-format.md";
constexpr wchar_t kSchemaFolder[] = L"incident-format";

void Write(const std::filesystem::path& file, const std::wstring& text) {
    std::ofstream stream(file, std::ios::binary);
    stream << lejis_client::Utf8(text);
    if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
}

int Run(int count, wchar_t** arguments) {
    if (count != 2) {
        std::cerr << "usage: incident_format FOLDER\n";
        return 64;
    }
    const std::filesystem::path folder(arguments[1]);
    std::filesystem::create_directories(folder / kSchemaFolder);
    Write(folder / kPage, WritePage());
    for (const auto& [name, text] : WriteSchemas()) Write(folder / kSchemaFolder / name, text);
    return 0;
}

}  // namespace
}  // namespace incident_format

int wmain(int count, wchar_t** arguments) {
    try {
        return incident_format::Run(count, arguments);
    } catch (const std::exception& error) {
        std::cerr << "incident_format: " << error.what() << "\n";
        return 1;
    }
}
