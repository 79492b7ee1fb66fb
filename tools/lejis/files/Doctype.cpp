#include "files/Doctype.h"

#include "files/FileError.h"

#include <algorithm>
#include <string_view>

namespace lejis_client {
namespace {

// The text as far as it is ASCII. UTF-16 becomes readable by leaving out its zero bytes.
std::string AsciiOf(std::string content) {
    std::erase(content, '\0');
    return content;
}

// Where a comment or a processing instruction ends; npos for everything else.
std::size_t EndOfMisc(std::string_view text, std::size_t start) {
    const std::string_view rest = text.substr(start);
    if (rest.starts_with("<!--")) return text.find("-->", start + 4);
    if (rest.starts_with("<?")) return text.find("?>", start + 2);
    return std::string_view::npos;
}

// It stands before the root, where only comments and processing instructions can come first.
std::size_t FindDoctype(std::string_view text) {
    std::size_t place = text.find('<');
    while (place != std::string_view::npos && !text.substr(place).starts_with("<!DOCTYPE")) {
        const std::size_t end = EndOfMisc(text, place);
        place = end == std::string_view::npos ? end : text.find('<', end);
    }
    return place;
}

}  // namespace

void RefuseDoctype(const std::string& content) {
    const std::string text = AsciiOf(content);
    const std::size_t place = FindDoctype(text);
    if (place == std::string::npos) return;
    const auto line = 1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n');
    throw FileError{L"Line " + std::to_wstring(line) + L": Incident files must not have a DOCTYPE."};
}

}  // namespace lejis_client
