#pragma once

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>

namespace lejis {

// What becomes of one search: nothing yet, cards or a failure. Each search has its own, so that one which starts while
// another waits hears its own events and leaves the other's alone.
class SearchOutcome {
public:
    bool IsKnown() const { return completed_ || failed_; }
    bool IsFailure() const { return failed_; }
    const std::wstring& FailureMessage() const { return failureMessage_; }
    const Microsoft::WRL::ComPtr<ICollection>& Results() const { return results_; }

    // What the service's events do.
    void m_searchService_ConfigurationError(const std::wstring& reasonMessage);
    void m_searchService_NetworkError(const std::wstring& reasonMessage);
    void m_searchService_SearchCompleted(ICollection* results);
    void m_searchService_SearchFailed(const std::wstring& reason, long status);
    void m_searchService_ServiceError(const std::wstring& reasonMessage);

private:
    void Fail(const std::wstring& message);

    bool completed_ = false;
    bool failed_ = false;
    std::wstring failureMessage_;
    Microsoft::WRL::ComPtr<ICollection> results_;
};

}  // namespace lejis
