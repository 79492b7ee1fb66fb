#include "foundation/NetworkErrors.h"

#include "platform/http/Exchange.h"

#include <algorithm>
#include <iterator>

namespace lejis::LejisUtils {
namespace {

// The HTTP statuses after which trying again may help. All of WinINet's own numbers, above 12000, are transient; the
// list names 12019 all the same.
constexpr long kTransientStatuses[] = {0, 400, 408, 502, 504, 12019};
constexpr long kWinInetErrors = 12000;

struct StatusMessage {
    long status;
    const wchar_t* message;
};

constexpr StatusMessage kMessages[] = {
    {12002, L"The connection timed-out."},
    {12007, L"Host not found."},
    {12019,
     L"The LEJIS server couldn't complete your request. The most likely cause is an invalid LEJIS certificate "
     L"configured in the LEJIS Interface or an invalid JNET User ID for your user account."},
    {12029,
     L"The LEJIS Interface is down or not accessible. Make sure the LEJIS Interface server role is running on your "
     L"Talvex server."},
    {12030, L"Network error: Connection aborted."},
    {12031, L"Network error: Connection reset."},
};

// The status and its text are left out on purpose: they tell a clerk nothing.
constexpr wchar_t kUnexpectedError[] =
    L"The LEJIS server returned an unexpected error. \r\n\r\n"
    L"Check that the correct JNET User ID is configured for your user account in Administration and that the machine "
    L"where the LEJIS Interface is running has a valid LEJIS certificate installed and configured.\r\n\r\n"
    L"If the issue persists, check the LEJISRedirector log on your LEJIS Interface machine/server.";

}  // namespace

bool IsTransientStatus(long status) {
    return status > kWinInetErrors || std::find(std::begin(kTransientStatuses), std::end(kTransientStatuses), status) !=
                                          std::end(kTransientStatuses);
}

std::wstring GetNetworkErrorMessage(const platform::Exchange& exchange) {
    const long status = exchange.Status();
    for (const StatusMessage& row : kMessages) {
        if (row.status == status) return row.message;
    }
    if (!exchange.StatusText().empty()) return kUnexpectedError;
    return L"The LEJIS server returned HTTP status code " + std::to_wstring(status) + L" (no message text)";
}

}  // namespace lejis::LejisUtils
