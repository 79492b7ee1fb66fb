#include "platform/host/MessagePump.h"

#include <windows.h>

namespace platform::host {
namespace {

constexpr DWORD kLongestSleep = 10;

enum class Pumped { kNothing, kMessages, kQuit };

Pumped DispatchWaitingMessages() {
    MSG message;
    Pumped pumped = Pumped::kNothing;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // Meant for the client's own message loop.
            PostQuitMessage(static_cast<int>(message.wParam));
            return Pumped::kQuit;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
        pumped = Pumped::kMessages;
    }
    return pumped;
}

}  // namespace

void PumpMessages() {
    switch (DispatchWaitingMessages()) {
        case Pumped::kMessages:
            return;
        case Pumped::kQuit:
            // The message just posted again would end a wait for messages at once.
            Sleep(kLongestSleep);
            return;
        case Pumped::kNothing:
            MsgWaitForMultipleObjectsEx(0, nullptr, kLongestSleep, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
}

}  // namespace platform::host
