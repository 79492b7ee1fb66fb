#include "platform/ComError.h"

#include "platform/Text.h"

#include <oleauto.h>
#include <wrl/client.h>

#include <utility>

namespace platform {
namespace {

constexpr HRESULT kObjectRequired = static_cast<HRESULT>(0x800A01A8);

std::wstring SystemText(HRESULT number) {
    wchar_t text[512];
    DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                  static_cast<DWORD>(number), 0, text, ARRAYSIZE(text), nullptr);
    while (length > 0 && (text[length - 1] == L'\r' || text[length - 1] == L'\n' || text[length - 1] == L' ')) --length;
    if (length > 0) return std::wstring(text, length);
    return L"Error " + std::to_wstring(number);
}

}  // namespace

ComError::ComError(HRESULT number, std::wstring description, std::wstring source)
    // A success code in an error would tell the client that all went well.
    : number_(FAILED(number) ? number : E_FAIL), description_(std::move(description)), source_(std::move(source)) {}

ComError LastError(HRESULT number) { return LastError(number, {}); }

ComError LastError(HRESULT number, const std::wstring& beginning) {
    Microsoft::WRL::ComPtr<IErrorInfo> information;
    std::wstring description;
    std::wstring source;
    if (GetErrorInfo(0, information.GetAddressOf()) == S_OK) {
        BSTR text = nullptr;
        if (SUCCEEDED(information->GetDescription(&text))) description = TakeText(text);
        text = nullptr;
        if (SUCCEEDED(information->GetSource(&text))) source = TakeText(text);
    }
    if (description.empty()) description = beginning + SystemText(number);
    return ComError(number, std::move(description), std::move(source));
}

ComError ObjectRequired() { return ComError(kObjectRequired, L"Object required"); }
ComError TypeMismatch() { return ComError(DISP_E_TYPEMISMATCH, L"Type mismatch"); }
ComError Overflow() { return ComError(DISP_E_OVERFLOW, L"Overflow"); }

}  // namespace platform
