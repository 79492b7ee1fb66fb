#include "harness/SearchSink.h"

#include "platform/com/Guard.h"
#include "platform/Text.h"

namespace lejis {
namespace {

// The arguments of an event stand last one first.
std::wstring TextAt(const DISPPARAMS& parameters, UINT fromEnd) {
    return platform::CopyText(V_BSTR(&parameters.rgvarg[fromEnd]));
}

}  // namespace

STDMETHODIMP SearchSink::Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) {
    return platform::Guard(GUID_NULL, [&] {
        switch (event) {
            case 1: {
                Microsoft::WRL::ComPtr<ICollection> results;
                platform::Check(
                    V_DISPATCH(&parameters->rgvarg[0])->QueryInterface(IID_PPV_ARGS(results.GetAddressOf())));
                return outcome_.m_searchService_SearchCompleted(results.Get());
            }
            case 2:
                return outcome_.m_searchService_SearchFailed(TextAt(*parameters, 1), V_I4(&parameters->rgvarg[0]));
            case 3:
                return outcome_.m_searchService_ConfigurationError(TextAt(*parameters, 0));
            case 4:
                return outcome_.m_searchService_NetworkError(TextAt(*parameters, 0));
            case 5:
                return outcome_.m_searchService_ServiceError(TextAt(*parameters, 0));
        }
    });
}

}  // namespace lejis
