#include "files/NameList.h"

#include "files/FileContent.h"
#include "files/FileError.h"
#include "text/Utf8.h"

#include <cstring>
#include <sstream>

namespace lejis_client {
namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr wchar_t kBlanks[] = L" \t\r";

std::wstring Decoded(std::string_view content) {
    if (content.starts_with(kUtf16Mark)) {
        content.remove_prefix(kUtf16Mark.size());
        std::wstring text(content.size() / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), content.data(), text.size() * sizeof(wchar_t));
        return text;
    }
    if (content.starts_with(kUtf8Mark)) content.remove_prefix(kUtf8Mark.size());
    return Utf16(content);
}

std::wstring Trimmed(const std::wstring& line) {
    const std::size_t start = line.find_first_not_of(kBlanks);
    if (start == std::wstring::npos) return {};
    return line.substr(start, line.find_last_not_of(kBlanks) + 1 - start);
}

std::string ContentOf(const std::wstring& path) {
    try {
        return ReadFileContent(path);
    } catch (const FileError& error) {
        throw FileError{L"The list " + path + L" cannot be read. " + error.reason};
    }
}

}  // namespace

std::vector<std::wstring> ReadNameList(const std::wstring& path) {
    std::wistringstream lines(Decoded(ContentOf(path)));
    std::vector<std::wstring> names;
    for (std::wstring line; std::getline(lines, line);) {
        const std::wstring name = Trimmed(line);
        if (!name.empty()) names.push_back(name);
    }
    return names;
}

}  // namespace lejis_client
