#include "harness/TestSearch.h"

#include "harness/SearchConnection.h"
#include "harness/SearchOutcome.h"
#include "platform/host/SuiteHost.h"
#include "platform/Text.h"

#include <wrl/client.h>

#include <string>

using Microsoft::WRL::ComPtr;

namespace lejis {
namespace {

constexpr wchar_t kUrl[] = L"http://localhost:8080/lejis-core-Rev01/services/search";
constexpr wchar_t kCaption[] = L"LEJIS Search Error";

ComPtr<ICollection> SearchAndWait(const std::wstring& userId, ILejisSearchRequest* request) {
    // Nothing clears the outcome after the search has started. A search that cannot even start tells its failure inside
    // of this call, before the wait: cleared then, the failure would be waited for without an end.
    SearchOutcome outcome;
    const SearchConnection connection(outcome);
    connection.Search(kUrl, userId, request);
    while (!outcome.IsKnown()) platform::host::YieldToHost();
    if (outcome.IsFailure()) {
        // Modal to the task: from a window behind the box the client could start another search.
        MessageBoxW(nullptr, outcome.FailureMessage().c_str(), kCaption, MB_OK | MB_ICONSTOP | MB_TASKMODAL);
        return nullptr;
    }
    return outcome.Results();
}

}  // namespace

STDMETHODIMP TestSearch::Search(BSTR sUserId, ILejisSearchRequest* request, ICollection** result) {
    return Guard(result, [&] { return SearchAndWait(platform::CopyText(sUserId), request); });
}

}  // namespace lejis
