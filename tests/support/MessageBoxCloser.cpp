#include "support/MessageBoxCloser.h"

#include <utility>

namespace support {
namespace {

constexpr UINT kLookEvery = 50;
// The control of a message box that holds its text.
constexpr int kTextControl = 0xFFFF;

}  // namespace

MessageBoxCloser* MessageBoxCloser::active_ = nullptr;

MessageBoxCloser::MessageBoxCloser(std::wstring title, std::function<void()> whileShown)
    : title_(std::move(title)), whileShown_(std::move(whileShown)), timer_(SetTimer(nullptr, 0, kLookEvery, Look)) {
    active_ = this;
}

MessageBoxCloser::~MessageBoxCloser() {
    KillTimer(nullptr, timer_);
    active_ = nullptr;
}

void CALLBACK MessageBoxCloser::Look(HWND, UINT, UINT_PTR, DWORD) {
    const HWND box = active_ ? FindWindowW(L"#32770", active_->title_.c_str()) : nullptr;
    if (!box) return;
    wchar_t text[1024] = L"";
    GetDlgItemTextW(box, kTextControl, text, ARRAYSIZE(text));
    active_->text_ = text;
    active_->buttons_.clear();
    EnumChildWindows(box, LookAtControl, 0);
    active_->whileShown_();
    PostMessageW(box, WM_COMMAND, IDOK, 0);
}

BOOL CALLBACK MessageBoxCloser::LookAtControl(HWND control, LPARAM) {
    wchar_t kind[16] = L"";
    wchar_t word[64] = L"";
    GetClassNameW(control, kind, ARRAYSIZE(kind));
    GetWindowTextW(control, word, ARRAYSIZE(word));
    if (kind == std::wstring(L"Button")) active_->buttons_.push_back(word);
    const auto icon = reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0));
    if (kind == std::wstring(L"Static") && icon) active_->icon_ = icon;
    return TRUE;
}

}  // namespace support
