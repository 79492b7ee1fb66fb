// Keeps the event that a search ends with.
#pragma once

#include "search/SearchOutcome.h"

#include <ole2.h>

namespace lejis_client {

// Counted, because the service keeps it while it is connected. It is made with one reference, for ComPtr::Attach.
class SearchSink final : public IDispatch {
public:
    const SearchOutcome& Outcome() const { return outcome_; }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override;
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override;

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    ~SearchSink() = default;

    HRESULT KeepResults(DISPPARAMS* parameters);
    HRESULT KeepMessage(SearchEnd end, DISPPARAMS* parameters);

    // Only the thread of the search calls it.
    ULONG references_ = 1;
    SearchOutcome outcome_;
};

}  // namespace lejis_client
