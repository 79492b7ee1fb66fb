#include "Table.h"

#include "Files.h"
#include "text/Utf8.h"

#include <sstream>
#include <stdexcept>

namespace kit {
namespace {

std::vector<std::string> Split(const std::string& text, char separator) {
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == separator) {
            parts.emplace_back();
        } else {
            parts.back() += character;
        }
    }
    return parts;
}

Row NamedColumns(const std::vector<std::string>& names, const std::vector<std::string>& columns,
                 const std::string& line) {
    if (names.size() != columns.size()) throw std::runtime_error("A table of the kit has a wrong line: " + line);
    Row row;
    for (std::size_t index = 0; index < names.size(); ++index) {
        row[names[index]] = lejis_client::Utf16(columns[index]);
    }
    return row;
}

}  // namespace

std::vector<Row> ReadTable(const std::wstring& path) {
    std::vector<Row> rows;
    std::vector<std::string> names;
    std::istringstream lines(ContentOf(path));
    for (std::string line; std::getline(lines, line);) {
        while (line.ends_with('\r')) line.pop_back();
        if (line.empty() || line.starts_with('#')) continue;
        const std::vector<std::string> columns = Split(line, '\t');
        if (names.empty()) {
            names = columns;
        } else {
            rows.push_back(NamedColumns(names, columns, line));
        }
    }
    return rows;
}

std::vector<std::wstring> ListOf(const std::wstring& text) {
    std::vector<std::wstring> list;
    if (text == L"-") return list;
    for (const std::string& part : Split(lejis_client::Utf8(text), ',')) list.push_back(lejis_client::Utf16(part));
    return list;
}

}  // namespace kit
