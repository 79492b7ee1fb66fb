#include "library/DllFile.h"

#include <windows.h>
#include <winver.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace lejis_client {
namespace {

std::vector<char> VersionResource(const std::wstring& file) {
    DWORD ignored = 0;
    std::vector<char> block(GetFileVersionInfoSizeW(file.c_str(), &ignored));
    const auto size = static_cast<DWORD>(block.size());
    if (!block.empty() && !GetFileVersionInfoW(file.c_str(), 0, size, block.data())) block.clear();
    return block;
}

template <typename Value>
const Value* Find(const std::vector<char>& resource, const wchar_t* name) {
    void* found = nullptr;
    UINT length = 0;
    if (resource.empty() || !VerQueryValueW(resource.data(), name, &found, &length) || length == 0) return nullptr;
    return static_cast<const Value*>(found);
}

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, FileCloser>;

template <typename Value>
bool Read(const File& file, long place, Value& value) {
    return std::fseek(file.get(), place, SEEK_SET) == 0 && std::fread(&value, sizeof value, 1, file.get()) == 1;
}

}  // namespace

bool FileExists(const std::wstring& file) { return GetFileAttributesW(file.c_str()) != INVALID_FILE_ATTRIBUTES; }

std::optional<Bitness> BitnessOf(const std::wstring& file) {
    const File program(_wfopen(file.c_str(), L"rb"));
    IMAGE_DOS_HEADER start = {};
    // The header begins alike in programs of both bitnesses.
    IMAGE_NT_HEADERS32 header = {};
    if (!program || !Read(program, 0, start) || start.e_magic != IMAGE_DOS_SIGNATURE) return {};
    if (!Read(program, start.e_lfanew, header) || header.Signature != IMAGE_NT_SIGNATURE) return {};
    if (header.FileHeader.Machine == IMAGE_FILE_MACHINE_I386) return Bitness::k32;
    if (header.FileHeader.Machine == IMAGE_FILE_MACHINE_AMD64) return Bitness::k64;
    return {};
}

std::optional<std::wstring> VersionOf(const std::wstring& file) {
    const std::vector<char> resource = VersionResource(file);
    const auto* fixed = Find<VS_FIXEDFILEINFO>(resource, L"\\");
    if (!fixed) return {};
    // Major, minor and revision; the build number is not used.
    return std::to_wstring(HIWORD(fixed->dwFileVersionMS)) + L"." + std::to_wstring(LOWORD(fixed->dwFileVersionMS)) +
           L"." + std::to_wstring(LOWORD(fixed->dwFileVersionLS));
}

std::optional<std::wstring> LejisHostOf(const std::wstring& file) {
    const std::vector<char> resource = VersionResource(file);
    const auto* host = Find<wchar_t>(resource, L"\\StringFileInfo\\040904B0\\LejisHost");
    if (!host) return {};
    return std::wstring(host);
}

}  // namespace lejis_client
