#include "files/FileList.h"

#include "files/FileError.h"
#include "files/FilePattern.h"
#include "files/NameList.h"
#include "files/UnixPattern.h"

#include <windows.h>

#include <set>

namespace lejis_client {
namespace {

std::wstring WholePath(const std::wstring& name) {
    const std::wstring windowsName = WindowsPattern(name);
    std::wstring path(GetFullPathNameW(windowsName.c_str(), 0, nullptr, nullptr), L'\0');
    path.resize(GetFullPathNameW(windowsName.c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr));
    return path.empty() ? name : path;
}

// Windows takes names that differ in case alone for the same.
std::wstring Folded(const std::wstring& path) {
    std::wstring folded(path.size(), L'\0');
    LCMapStringEx(LOCALE_NAME_INVARIANT, LCMAP_UPPERCASE, path.data(), static_cast<int>(path.size()), folded.data(),
                  static_cast<int>(folded.size()), nullptr, nullptr, 0);
    return folded;
}

class Lister {
public:
    explicit Lister(bool recurse) : recurse_(recurse) {}

    void Take(const std::wstring& argument) {
        if (argument.starts_with(L'@')) {
            for (const std::wstring& name : ReadNameList(argument.substr(1))) TakeName(name);
        } else {
            TakeName(argument);
        }
    }

    std::vector<NamedFile> Files() && { return std::move(files_); }

private:
    void TakeName(const std::wstring& name) {
        if (name == kStandardInput) return Add({name, name});
        for (const std::wstring& file : ExpandPattern(name, recurse_)) Add({file, WholePath(file)});
    }

    void Add(const NamedFile& file) {
        if (seen_.insert(Folded(file.path)).second) files_.push_back(file);
    }

    bool recurse_;
    std::vector<NamedFile> files_;
    std::set<std::wstring> seen_;
};

}  // namespace

std::vector<NamedFile> ListFiles(const std::vector<std::wstring>& arguments, bool recurse) {
    Lister lister(recurse);
    for (const std::wstring& argument : arguments) lister.Take(argument);
    return std::move(lister).Files();
}

}  // namespace lejis_client
