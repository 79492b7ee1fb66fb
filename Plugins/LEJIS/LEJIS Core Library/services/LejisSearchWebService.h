#pragma once

#include "inquiry/LejisSearchRequest.h"
#include "platform/com/Collection.h"
#include "platform/com/EventSource.h"
#include "platform/com/Properties.h"
#include "platform/http/Exchange.h"
#include "platform/http/HttpRequest.h"

#include <TVLejisCore.h>

namespace lejis {

using platform::Collection;

// Sends a search and reports its outcome by exactly one event. The service stays alive while the answer is under way,
// even when its client has released it. A search that is ready to be posted replaces one that is still under way, whose
// answer is lost. A search that fails earlier leaves the other one alone.
class LejisSearchWebService final : public platform::EventSource<::LejisSearchWebService, ILejisSearchWebService,
                                                                 _LejisSearchWebServiceEvents, IRunnable> {
public:
    BOOLEAN_PROPERTY(ValidateSchema)
    TEXT_PROPERTY(URL)
    TEXT_PROPERTY(Username)
    STDMETHODIMP get_results(ICollection** result) override;
    STDMETHODIMP Search(ILejisSearchRequest* request) override;
    STDMETHODIMP OnReadyStateChange() override;
    STDMETHODIMP Run() override { return IRunnable_Run(); }

private:
    STDMETHODIMP IRunnable_Run();

    void Send(const LejisSearchRequest& request);
    void Post(const msxml::Document& envelope);
    void RaiseOutcome(const platform::Exchange& exchange);
    void RaiseFound(const platform::Exchange& exchange);
    void RaiseServiceError(const platform::Exchange& exchange);
    void FireReason(DISPID event, const std::wstring& reasonMessage);

    // The request of the search in progress, or of the last search.
    platform::HttpRequest request_;
    // Whether a search has been sent and its event has not been raised yet.
    bool isAwaited_ = false;
    // The results of the last successful search. A failure does not clear them.
    Microsoft::WRL::ComPtr<Collection> results_;
};

}  // namespace lejis
