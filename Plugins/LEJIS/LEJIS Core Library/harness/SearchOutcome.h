// What becomes of one search, and the sink that hears it.
#pragma once

#include "platform/com/EventSink.h"

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>

namespace lejis {

// The outcome of one search: still unknown, cards, or a failure. Each search has its own outcome, so that a search
// which starts while another waits hears its own events alone.
class SearchOutcome {
public:
    bool IsKnown() const { return completed_ || failed_; }
    bool IsFailure() const { return failed_; }
    const std::wstring& FailureMessage() const { return failureMessage_; }
    const Microsoft::WRL::ComPtr<ICollection>& Results() const { return results_; }

    // The handlers of the service's events.
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

// Hears the search service's events for the outcome of one search, which outlives the connection.
class SearchSink final : public platform::EventSink<_LejisSearchWebServiceEvents> {
public:
    explicit SearchSink(SearchOutcome& outcome) : outcome_(outcome) {}

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    SearchOutcome& outcome_;
};

}  // namespace lejis
