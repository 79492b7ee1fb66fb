// Reads the message box that is to come, and closes it with its button.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace support {

// Looks for a message box with this title from the thread's own messages, which go on while the box is shown.
class MessageBoxCloser {
public:
    // `whileShown` is called each time that the box is seen.
    explicit MessageBoxCloser(
        std::wstring title, std::function<void()> whileShown = [] {});
    ~MessageBoxCloser();
    MessageBoxCloser(const MessageBoxCloser&) = delete;
    MessageBoxCloser& operator=(const MessageBoxCloser&) = delete;

    // What the box said; empty when none has come.
    const std::wstring& Text() const { return text_; }
    // The words on its buttons.
    const std::vector<std::wstring>& Buttons() const { return buttons_; }
    // The icon of its picture, which the system shares among all boxes that show it.
    HICON Icon() const { return icon_; }

private:
    static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD);
    static BOOL CALLBACK LookAtControl(HWND control, LPARAM);

    static MessageBoxCloser* active_;

    const std::wstring title_;
    const std::function<void()> whileShown_;
    std::wstring text_;
    std::vector<std::wstring> buttons_;
    HICON icon_ = nullptr;
    UINT_PTR timer_;
};

}  // namespace support
