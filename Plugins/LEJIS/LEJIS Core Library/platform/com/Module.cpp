#include "platform/com/Module.h"

#include "platform/ComError.h"

#include <cxxabi.h>
#include <windows.h>

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <mutex>

namespace platform::module {
namespace {

std::atomic<long> uses{0};

// The fixed part of a version resource begins at this offset, after the header and the key "VS_VERSION_INFO".
constexpr size_t kFixedInfoOffset = 40;

void CheckFound(bool found) {
    if (!found) Check(HRESULT_FROM_WIN32(GetLastError()));
}

}  // namespace

void Retain() noexcept { ++uses; }
void Release() noexcept { --uses; }
bool InUse() noexcept { return uses.load() != 0; }

HMODULE Handle() {
    HMODULE handle = nullptr;
    CheckFound(GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                                  reinterpret_cast<LPCWSTR>(&uses), &handle));
    return handle;
}

std::wstring Path() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(Handle(), path.data(), static_cast<DWORD>(path.size()));
        CheckFound(length != 0);
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

std::wstring Version() {
    const HMODULE self = Handle();
    const HRSRC resource = FindResourceW(self, MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    CheckFound(resource != nullptr);
    const HGLOBAL loaded = LoadResource(self, resource);
    CheckFound(loaded != nullptr);
    if (SizeofResource(self, resource) < kFixedInfoOffset + sizeof(VS_FIXEDFILEINFO)) Check(E_UNEXPECTED);
    VS_FIXEDFILEINFO info;
    std::memcpy(&info, static_cast<const char*>(LockResource(loaded)) + kFixedInfoOffset, sizeof info);
    return VersionText(info);
}

std::wstring VersionText(const VS_FIXEDFILEINFO& info) {
    return std::to_wstring(HIWORD(info.dwFileVersionMS)) + L"." + std::to_wstring(LOWORD(info.dwFileVersionMS)) + L"." +
           std::to_wstring(LOWORD(info.dwFileVersionLS));
}

}  // namespace platform::module

#ifdef LIST_LIVING_OBJECTS
namespace platform::living {
namespace {

struct List {
    std::mutex mutex;
    std::map<const void*, ClassOf> objects;
};

// This is never destroyed: objects that outlive the program's own end still leave it.
List& Living() {
    static List& list = *new List;
    return list;
}

std::string Readable(const std::type_info& type) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> name(abi::__cxa_demangle(type.name(), nullptr, nullptr, &status),
                                                           &std::free);
    return status == 0 ? name.get() : type.name();
}

}  // namespace

void Enter(const void* object, ClassOf classOf) noexcept {
    const std::lock_guard lock(Living().mutex);
    Living().objects[object] = classOf;
}

void Leave(const void* object) noexcept {
    const std::lock_guard lock(Living().mutex);
    Living().objects.erase(object);
}

std::vector<std::string> Names() {
    const std::lock_guard lock(Living().mutex);
    std::vector<std::string> names;
    for (const auto& [object, classOf] : Living().objects) names.push_back(Readable(classOf(object)));
    return names;
}

void Report() noexcept {
    for (const std::string& name : Names()) OutputDebugStringA(("Still alive: " + name + "\n").c_str());
}

}  // namespace platform::living

#endif
