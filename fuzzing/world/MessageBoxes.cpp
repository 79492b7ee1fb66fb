#include "world/MessageBoxes.h"

#include <cwchar>

namespace fuzzing {
namespace {

LRESULT CALLBACK OnWindow(int code, WPARAM window, LPARAM details) {
    constexpr LRESULT kMakeNone = 1;
    wchar_t name[16] = L"";
    if (code == HCBT_CREATEWND && GetClassNameW(reinterpret_cast<HWND>(window), name, ARRAYSIZE(name)) &&
        std::wcscmp(name, L"#32770") == 0) {
        return kMakeNone;
    }
    return CallNextHookEx(nullptr, code, window, details);
}

}  // namespace

NoMessageBoxes::NoMessageBoxes() : hook_(SetWindowsHookExW(WH_CBT, OnWindow, nullptr, GetCurrentThreadId())) {}

NoMessageBoxes::~NoMessageBoxes() { UnhookWindowsHookEx(hook_); }

}  // namespace fuzzing
