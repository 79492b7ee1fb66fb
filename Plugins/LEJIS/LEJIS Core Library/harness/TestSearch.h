#pragma once

#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"

#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>

namespace lejis {

// Runs one search and waits for its outcome while the host's messages go on.
class TestSearch final : public platform::ComObject<::TestSearch, ITestSearch> {
public:
    STDMETHODIMP Search(BSTR sUserId, ILejisSearchRequest* request, ICollection** result) override;

    // What the service's events do.
    void m_searchService_ConfigurationError(const std::wstring& reasonMessage);
    void m_searchService_NetworkError(const std::wstring& reasonMessage);
    void m_searchService_SearchCompleted(ICollection* results);
    void m_searchService_SearchFailed(const std::wstring& reason, long status);
    void m_searchService_ServiceError(const std::wstring& reasonMessage);

private:
    Microsoft::WRL::ComPtr<ICollection> Search(const std::wstring& userId, ILejisSearchRequest* request);
    void Fail(const std::wstring& message);

    bool completed_ = false;
    bool failed_ = false;
    std::wstring failureMessage_;
    Microsoft::WRL::ComPtr<ICollection> results_;
};

}  // namespace lejis
