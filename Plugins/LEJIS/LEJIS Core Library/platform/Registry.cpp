#include "platform/Registry.h"

#include "platform/ComError.h"

namespace platform {
namespace {

void CheckStatus(LSTATUS status) { Check(HRESULT_FROM_WIN32(static_cast<unsigned long>(status))); }

}  // namespace

std::optional<std::wstring> ReadRegistryText(HKEY root, const std::wstring& key, const std::wstring& value) {
    DWORD bytes = 0;
    if (RegGetValueW(root, key.c_str(), value.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    // There is room for a null at the end, which a text may lack: the reported size does not count it.
    bytes += sizeof(wchar_t);
    std::wstring text(bytes / sizeof(wchar_t), L'\0');
    if (RegGetValueW(root, key.c_str(), value.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    text.resize(wcslen(text.c_str()));
    return text;
}

void WriteRegistryText(HKEY root, const std::wstring& key, const std::wstring& value, const std::wstring& text) {
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
    CheckStatus(
        RegSetKeyValueW(root, key.c_str(), value.empty() ? nullptr : value.c_str(), REG_SZ, text.c_str(), bytes));
}

void DeleteRegistryTree(HKEY root, const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(root, key.c_str());
    if (status != ERROR_FILE_NOT_FOUND) CheckStatus(status);
}

}  // namespace platform
