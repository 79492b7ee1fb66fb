#include "client/RegistrySnapshot.h"

#include "client/Client.h"
#include "support/Printing.h"

#include <set>
#include <vector>

namespace client {
namespace {

constexpr REGSAM kOwnView = sizeof(void*) == 8 ? KEY_WOW64_64KEY : KEY_WOW64_32KEY;
constexpr REGSAM kOtherView = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

// Enough to see what kind of thing differs.
constexpr int kShownDifferences = 12;

std::wstring ViewPrefix(View view) { return view == View::kOwn ? L"own\\" : L"other\\"; }

std::wstring UpperCase(std::wstring text) {
    CharUpperBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

// The identifiers of everything in the type library, and of the library itself.
std::set<std::wstring> LibraryIdentifiers() {
    std::set<std::wstring> identifiers;
    ComPtr<ITypeLib> library;
    // From the file, for the registration comes and goes.
    EXPECT_OK(LoadTypeLibEx(RegisteredPath().c_str(), REGKIND_NONE, library.GetAddressOf()));
    if (!library) return identifiers;
    TLIBATTR* libraryAttributes = nullptr;
    EXPECT_OK(library->GetLibAttr(&libraryAttributes));
    identifiers.insert(GuidText(libraryAttributes->guid));
    library->ReleaseTLibAttr(libraryAttributes);
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        TYPEATTR* attributes = nullptr;
        EXPECT_OK(library->GetTypeInfo(index, type.GetAddressOf()));
        EXPECT_OK(type->GetTypeAttr(&attributes));
        identifiers.insert(GuidText(attributes->guid));
        type->ReleaseTypeAttr(attributes);
    }
    return identifiers;
}

const std::set<std::wstring>& Identifiers() {
    static const std::set<std::wstring> identifiers = LibraryIdentifiers();
    return identifiers;
}

bool IsOfLibrary(const std::wstring& key) {
    return Identifiers().contains(UpperCase(key)) || UpperCase(key).starts_with(L"TVLEJISCORE");
}

std::vector<std::wstring> SubkeysOf(HKEY key) {
    std::vector<std::wstring> names;
    wchar_t name[256];
    for (DWORD index = 0;; ++index) {
        DWORD length = ARRAYSIZE(name);
        if (RegEnumKeyExW(key, index, name, &length, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS) break;
        names.emplace_back(name, length);
    }
    return names;
}

void AddValues(HKEY key, const std::wstring& path, RegistrySnapshot& snapshot) {
    wchar_t name[256];
    BYTE data[2048];
    for (DWORD index = 0;; ++index) {
        DWORD nameLength = ARRAYSIZE(name);
        DWORD size = sizeof data;
        DWORD type = REG_NONE;
        if (RegEnumValueW(key, index, name, &nameLength, nullptr, &type, data, &size) != ERROR_SUCCESS) break;
        const std::wstring text(reinterpret_cast<const wchar_t*>(data), size / sizeof(wchar_t));
        snapshot[path + L" : " + name] = std::to_wstring(type) + L" " + text.c_str();
    }
}

void AddTree(HKEY parent, const std::wstring& name, const std::wstring& path, REGSAM view, RegistrySnapshot& snapshot) {
    HKEY key = nullptr;
    snapshot[path + L"\\" + name] = L"";
    if (RegOpenKeyExW(parent, name.c_str(), 0, KEY_READ | view, &key) != ERROR_SUCCESS) return;
    AddValues(key, path + L"\\" + name, snapshot);
    for (const std::wstring& subkey : SubkeysOf(key)) AddTree(key, subkey, path + L"\\" + name, view, snapshot);
    RegCloseKey(key);
}

void AddBranch(const std::wstring& branch, View view, RegistrySnapshot& snapshot) {
    const REGSAM access = view == View::kOwn ? kOwnView : kOtherView;
    const std::wstring path = ViewPrefix(view) + branch;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, branch.c_str(), 0, KEY_READ | access, &key) != ERROR_SUCCESS) return;
    for (const std::wstring& name : SubkeysOf(key)) {
        snapshot[path + L"\\" + name] = L"";
        if (IsOfLibrary(name)) AddTree(key, name, path, access, snapshot);
    }
    RegCloseKey(key);
}

}  // namespace

RegistrySnapshot TakeSnapshot() {
    RegistrySnapshot snapshot;
    for (const View view : {View::kOwn, View::kOther}) {
        // The empty branch holds the ProgIDs.
        for (const wchar_t* branch : {L"", L"CLSID", L"Interface", L"TypeLib"}) AddBranch(branch, view, snapshot);
    }
    return snapshot;
}

std::string Differences(const RegistrySnapshot& before, const RegistrySnapshot& after) {
    std::wstring lines;
    int left = kShownDifferences;
    const auto addMissing = [&](const wchar_t* mark, const RegistrySnapshot& from, const RegistrySnapshot& in) {
        for (const auto& [key, value] : from) {
            const auto other = in.find(key);
            if (other != in.end() && other->second == value) continue;
            if (left-- > 0) lines += mark + key + L" = " + value + L"\n";
        }
    };
    addMissing(L"- ", before, after);
    addMissing(L"+ ", after, before);
    if (left < 0) lines += L"and " + std::to_wstring(-left) + L" more\n";
    return support::Utf8(lines);
}

RegistrySnapshot EntriesOfLibrary(const RegistrySnapshot& snapshot, View view) {
    RegistrySnapshot entries;
    const std::wstring prefix = ViewPrefix(view);
    for (const auto& entry : snapshot) {
        if (!entry.first.starts_with(prefix)) continue;
        // The name follows the view and the branch; the branch of the ProgIDs is empty.
        const size_t start = entry.first.find(L'\\', prefix.size()) + 1;
        const size_t end = entry.first.find_first_of(L"\\ ", start);
        if (IsOfLibrary(entry.first.substr(start, end - start))) entries.insert(entry);
    }
    return entries;
}

}  // namespace client
