#include "harness/TestSearch.h"

#include "harness/SearchConnection.h"
#include "platform/host/SuiteServices.h"
#include "platform/Text.h"

using Microsoft::WRL::ComPtr;

namespace lejis {
namespace {

constexpr wchar_t kUrl[] = L"http://localhost:8080/lejis-core-Rev01/services/search";
constexpr wchar_t kCaption[] = L"LEJIS Search Error";

}  // namespace

STDMETHODIMP TestSearch::Search(BSTR sUserId, ILejisSearchRequest* request, ICollection** result) {
    return Guard(result, [&] { return Search(platform::CopyText(sUserId), request); });
}

ComPtr<ICollection> TestSearch::Search(const std::wstring& userId, ILejisSearchRequest* request) {
    // Before the search is started: a failure to start it is an event that comes at once.
    completed_ = false;
    failed_ = false;
    const SearchConnection connection(*this);
    connection.Search(kUrl, userId, request);
    while (!completed_ && !failed_) platform::host::YieldToHost();
    if (failed_) {
        MessageBoxW(nullptr, failureMessage_.c_str(), kCaption, MB_OK | MB_ICONSTOP);
        return nullptr;
    }
    return results_;
}

void TestSearch::m_searchService_ConfigurationError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void TestSearch::m_searchService_NetworkError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void TestSearch::m_searchService_SearchCompleted(ICollection* results) {
    results_ = results;
    completed_ = true;
}

void TestSearch::m_searchService_SearchFailed(const std::wstring& reason, long status) {
    Fail(L"Search failed. Reason: " + reason + L" / Status code: " + std::to_wstring(status));
}

void TestSearch::m_searchService_ServiceError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void TestSearch::Fail(const std::wstring& message) {
    failureMessage_ = message;
    failed_ = true;
}

}  // namespace lejis
