#include "files/FileList.h"

#include "files/FileError.h"
#include "files/FilePattern.h"
#include "files/FoldedName.h"
#include "files/LongPath.h"
#include "files/NameList.h"
#include "files/UnixPattern.h"

#include <set>

namespace lejis_client {
namespace {

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
        for (const std::wstring& file : ExpandPattern(name, recurse_)) Add({file, WholePath(WindowsPattern(file))});
    }

    void Add(const NamedFile& file) {
        if (seen_.insert(FoldedName(file.path)).second) files_.push_back(file);
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
