#include "RegistryPicture.h"

#include "text/Utf8.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <vector>

namespace kit {
namespace {

// A key's name has at most 255 characters.
constexpr DWORD kLongestKeyName = 256;
constexpr DWORD kLongestValueName = 16384;

struct View {
    const wchar_t* name;
    HKEY root;
    REGSAM access;
};

// A 32-bit Windows has one view, and both names show it.
const View kViews[] = {{L"machine, 32 bit: ", HKEY_LOCAL_MACHINE, KEY_WOW64_32KEY},
                       {L"machine, 64 bit: ", HKEY_LOCAL_MACHINE, KEY_WOW64_64KEY},
                       {L"user, 32 bit: ", HKEY_CURRENT_USER, KEY_WOW64_32KEY},
                       {L"user, 64 bit: ", HKEY_CURRENT_USER, KEY_WOW64_64KEY}};
const wchar_t* const kBranches[] = {L"CLSID", L"Interface", L"TypeLib"};
constexpr wchar_t kOwnNames[] = L"TVLejisCore";

class Key {
public:
    Key(HKEY parent, const std::wstring& name, REGSAM access) {
        if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | access, &key_) != ERROR_SUCCESS) key_ = nullptr;
    }
    ~Key() {
        if (key_) RegCloseKey(key_);
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    HKEY get() const { return key_; }

    std::vector<std::wstring> Subkeys() const {
        std::vector<std::wstring> names;
        wchar_t name[kLongestKeyName];
        for (DWORD index = 0; key_; ++index) {
            DWORD length = kLongestKeyName;
            if (RegEnumKeyExW(key_, index, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
            names.emplace_back(name, length);
        }
        return names;
    }

    // Each value as its name, its type and its bytes as text.
    std::vector<std::wstring> Values() const {
        std::vector<std::wstring> values;
        std::wstring name(kLongestValueName, L'\0');
        std::vector<wchar_t> data(32768);
        for (DWORD index = 0; key_; ++index) {
            DWORD length = kLongestValueName;
            DWORD size = static_cast<DWORD>(data.size() * sizeof(wchar_t));
            DWORD type = REG_NONE;
            if (RegEnumValueW(key_, index, name.data(), &length, nullptr, &type, reinterpret_cast<BYTE*>(data.data()),
                              &size) != ERROR_SUCCESS) {
                break;
            }
            const std::wstring text(data.data(), size / sizeof(wchar_t));
            values.push_back(name.substr(0, length) + L" = " + std::to_wstring(type) + L" " + text.c_str());
        }
        return values;
    }

private:
    HKEY key_ = nullptr;
};

void AddTree(HKEY parent, const std::wstring& name, const std::wstring& path, REGSAM access, RegistryPicture& picture) {
    const Key key(parent, name, access);
    picture.insert(path);
    for (const std::wstring& value : key.Values()) picture.insert(path + L" : " + value);
    for (const std::wstring& subkey : key.Subkeys()) {
        AddTree(key.get(), subkey, path + L"\\" + subkey, access, picture);
    }
}

void AddView(const View& view, RegistryPicture& picture) {
    const Key classes(view.root, L"Software\\Classes", view.access);
    const std::wstring path = view.name;
    for (const std::wstring& name : classes.Subkeys()) {
        picture.insert(path + name);
        if (name.starts_with(kOwnNames)) AddTree(classes.get(), name, path + name, view.access, picture);
    }
    for (const wchar_t* branch : kBranches) AddTree(classes.get(), branch, path + branch, view.access, picture);
}

void AddLines(const wchar_t* mark, const RegistryPicture& from, const RegistryPicture& in, std::string& lines) {
    std::vector<std::wstring> missing;
    std::set_difference(from.begin(), from.end(), in.begin(), in.end(), std::back_inserter(missing));
    for (const std::wstring& entry : missing) lines += lejis_client::Utf8(mark + entry) + "\n";
}

}  // namespace

RegistryPicture TakePicture() {
    RegistryPicture picture;
    for (const View& view : kViews) AddView(view, picture);
    return picture;
}

std::string Differences(const RegistryPicture& before, const RegistryPicture& after) {
    std::string lines;
    AddLines(L"- ", before, after, lines);
    AddLines(L"+ ", after, before, lines);
    return lines;
}

}  // namespace kit
