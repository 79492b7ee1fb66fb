#include "search/SearchWait.h"

#include "console/Console.h"
#include "console/MessageLoop.h"
#include "text/Duration.h"

#include <algorithm>

namespace lejis_client {
namespace {

void ClearProgress() {
    if (Console::Errors().IsInteractive()) Console::Errors().Write(L"\r" + std::wstring(40, L' ') + L"\r");
}

}  // namespace

void ShowSearching(ULONGLONG milliseconds) {
    if (!Console::Errors().IsInteractive()) return;
    Console::Errors().Write(L"\rSearching ... " + std::to_wstring(milliseconds / kSecond) + L" s ");
}

void AwaitOutcome(const SearchConnection& connection, const Interruption& interruption, long seconds) {
    const ULONGLONG start = GetTickCount64();
    const ULONGLONG limit = static_cast<ULONGLONG>(seconds) * kSecond;
    const HANDLE event = interruption.Event();
    for (;;) {
        DispatchMessages();
        if (connection.Outcome().end != SearchEnd::None || interruption.HasHappened()) break;
        const ULONGLONG waited = GetTickCount64() - start;
        if (waited >= limit) break;
        ShowSearching(waited);
        const DWORD pause = static_cast<DWORD>(std::min(kSecond, limit - waited));
        MsgWaitForMultipleObjectsEx(1, &event, pause, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
    ClearProgress();
}

}  // namespace lejis_client
