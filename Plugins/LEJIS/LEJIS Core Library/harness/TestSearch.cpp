#include "harness/TestSearch.h"

#include "harness/SearchOutcome.h"
#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/Text.h"
#include "services/LejisSearchWebService.h"

#include <wrl/client.h>

#include <string>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace lejis {
namespace {

// Connects a search service to a sink that passes its events to the outcome of the search. The destructor disconnects
// them.
class SearchConnection {
public:
    explicit SearchConnection(SearchOutcome& outcome);
    ~SearchConnection();
    SearchConnection(const SearchConnection&) = delete;
    SearchConnection& operator=(const SearchConnection&) = delete;

    void Search(const std::wstring& url, const std::wstring& userId, ILejisSearchRequest* request) const;

private:
    ComPtr<LejisSearchWebService> service_;
    ComPtr<SearchSink> sink_;
    ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

SearchConnection::SearchConnection(SearchOutcome& outcome)
    : service_(platform::Create<LejisSearchWebService>()), sink_(platform::Create<SearchSink>(outcome)) {
    Check(service_->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), events_.GetAddressOf()));
    Check(events_->Advise(sink_.Get(), &cookie_));
}

SearchConnection::~SearchConnection() { events_->Unadvise(cookie_); }

void SearchConnection::Search(const std::wstring& url, const std::wstring& userId, ILejisSearchRequest* request) const {
    service_->URL = url;
    service_->Username = userId;
    Check(service_->Search(request));
}

constexpr wchar_t kUrl[] = L"http://localhost:8080/lejis-core-Rev01/services/search";
constexpr wchar_t kCaption[] = L"LEJIS Search Error";

ComPtr<ICollection> SearchAndWait(const std::wstring& userId, ILejisSearchRequest* request) {
    // Nothing may clear the outcome after the search has started. A search that cannot even start reports its failure
    // inside of this call; if that were cleared, the wait for it would have no end.
    SearchOutcome outcome;
    const SearchConnection connection(outcome);
    connection.Search(kUrl, userId, request);
    while (!outcome.IsKnown()) platform::host::YieldToHost();
    if (outcome.IsFailure()) {
        // The box is modal to the task: from another window the client could start another search.
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
