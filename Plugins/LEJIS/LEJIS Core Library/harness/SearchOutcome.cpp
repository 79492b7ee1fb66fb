#include "harness/SearchOutcome.h"

namespace lejis {

void SearchOutcome::m_searchService_ConfigurationError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void SearchOutcome::m_searchService_NetworkError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void SearchOutcome::m_searchService_SearchCompleted(ICollection* results) {
    results_ = results;
    completed_ = true;
}

void SearchOutcome::m_searchService_SearchFailed(const std::wstring& reason, long status) {
    Fail(L"Search failed. Reason: " + reason + L" / Status code: " + std::to_wstring(status));
}

void SearchOutcome::m_searchService_ServiceError(const std::wstring& reasonMessage) { Fail(reasonMessage); }

void SearchOutcome::Fail(const std::wstring& message) {
    failureMessage_ = message;
    failed_ = true;
}

}  // namespace lejis
