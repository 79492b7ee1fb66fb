#include "files/NameList.h"

#include "files/FileContent.h"
#include "files/FileError.h"
#include "text/Trimmed.h"
#include "text/Utf8.h"

#include <cstring>
#include <sstream>

namespace lejis_client {
namespace {

constexpr std::string_view kUtf16LittleMark = "\xFF\xFE";
constexpr std::string_view kUtf16BigMark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

std::wstring FromUtf16(std::string_view content, bool isBig) {
    std::wstring text(content.size() / sizeof(wchar_t), L'\0');
    std::memcpy(text.data(), content.data(), text.size() * sizeof(wchar_t));
    if (!isBig) return text;
    for (wchar_t& unit : text) unit = static_cast<wchar_t>((unit & 0xFF) << 8 | unit >> 8);
    return text;
}

// The command prompt writes the code page of its console. Nothing in the file tells which one that is, and a guess
// would name other files.
std::wstring FromUtf8(std::string_view content) {
    const auto text = ValidUtf16(content);
    if (text && text->find(L'\0') == std::wstring::npos) return *text;
    throw FileError{
        L"It is neither UTF-8 nor UTF-16 with a byte order mark. In the command prompt, chcp 65001 before "
        L"dir /b makes it UTF-8."};
}

std::wstring Decoded(std::string_view content) {
    const bool isBig = content.starts_with(kUtf16BigMark);
    if (isBig || content.starts_with(kUtf16LittleMark)) return FromUtf16(content.substr(2), isBig);
    if (content.starts_with(kUtf8Mark)) content.remove_prefix(kUtf8Mark.size());
    return FromUtf8(content);
}

std::wstring TextOf(const std::wstring& path) {
    try {
        return Decoded(ReadFileContent(path));
    } catch (const FileError& error) {
        throw FileError{L"The list " + path + L" cannot be read. " + error.reason};
    }
}

}  // namespace

std::vector<std::wstring> ReadNameList(const std::wstring& path) {
    std::wistringstream lines(TextOf(path));
    std::vector<std::wstring> names;
    for (std::wstring line; std::getline(lines, line);) {
        const std::wstring_view name = Trimmed(line);
        if (!name.empty()) names.emplace_back(name);
    }
    return names;
}

}  // namespace lejis_client
