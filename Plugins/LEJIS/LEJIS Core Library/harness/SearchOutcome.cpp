#include "harness/SearchOutcome.h"

#include "platform/com/Guard.h"
#include "platform/Text.h"
#include "services/EventNumbers.h"

namespace lejis {
namespace {

// The arguments of an event are in reverse order.
std::wstring TextAt(const DISPPARAMS& parameters, UINT fromEnd) {
    return platform::CopyText(V_BSTR(&parameters.rgvarg[fromEnd]));
}

}  // namespace

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

STDMETHODIMP SearchSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    return platform::Guard(GUID_NULL, [&] {
        switch (event) {
            case SearchEvents::kSearchCompleted: {
                Microsoft::WRL::ComPtr<ICollection> results;
                platform::Check(
                    V_DISPATCH(&parameters->rgvarg[0])->QueryInterface(IID_PPV_ARGS(results.GetAddressOf())));
                return outcome_.m_searchService_SearchCompleted(results.Get());
            }
            case SearchEvents::kSearchFailed:
                return outcome_.m_searchService_SearchFailed(TextAt(*parameters, 1), V_I4(&parameters->rgvarg[0]));
            case SearchEvents::kConfigurationError:
                return outcome_.m_searchService_ConfigurationError(TextAt(*parameters, 0));
            case SearchEvents::kNetworkError:
                return outcome_.m_searchService_NetworkError(TextAt(*parameters, 0));
            case SearchEvents::kServiceError:
                return outcome_.m_searchService_ServiceError(TextAt(*parameters, 0));
        }
    });
}

}  // namespace lejis
