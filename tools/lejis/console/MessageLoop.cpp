#include "console/MessageLoop.h"

namespace lejis_client {

void DispatchMessages() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

bool AwaitEvent(HANDLE event, DWORD milliseconds) {
    const ULONGLONG start = GetTickCount64();
    for (;;) {
        const ULONGLONG waited = GetTickCount64() - start;
        const DWORD left =
            milliseconds == INFINITE ? INFINITE : static_cast<DWORD>(waited < milliseconds ? milliseconds - waited : 0);
        switch (MsgWaitForMultipleObjectsEx(1, &event, left, QS_ALLINPUT, MWMO_INPUTAVAILABLE)) {
            case WAIT_OBJECT_0:
                return true;
            case WAIT_OBJECT_0 + 1:
                DispatchMessages();
                break;
            default:
                return false;
        }
    }
}

}  // namespace lejis_client
