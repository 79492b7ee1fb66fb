// A client's sink for the search service's events.
#pragma once

#include "support/EmptyDispatch.h"

#include <ocidl.h>
#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace end_to_end {

// Keeps each event as "Name" or "Name: message", and the incidents of the last SearchCompleted. Lives on the test's
// stack; connected from its beginning to its end.
class SearchSink final : public support::EmptyDispatch<IDispatch> {
public:
    explicit SearchSink(ILejisSearchWebService* service);
    ~SearchSink();
    SearchSink(const SearchSink&) = delete;
    SearchSink& operator=(const SearchSink&) = delete;

    // Dispatches messages until an event has come, and some time longer, in which no second one may come.
    std::vector<std::wstring> AwaitEvents();

    // Returns the events that have come since, without waiting.
    std::vector<std::wstring> TakeEvents();

    const Microsoft::WRL::ComPtr<ICollection>& Found() const { return found_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
    std::vector<std::wstring> events_;
    Microsoft::WRL::ComPtr<ICollection> found_;
};

}  // namespace end_to_end
