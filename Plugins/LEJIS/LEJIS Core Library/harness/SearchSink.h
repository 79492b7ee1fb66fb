#pragma once

#include "harness/SearchOutcome.h"
#include "platform/com/UnknownObject.h"

#include <TVLejisCore.h>

namespace lejis {

// Hears the search service's events for the outcome of one search, which outlives the connection.
class SearchSink final : public platform::UnknownObject<_LejisSearchWebServiceEvents> {
public:
    explicit SearchSink(SearchOutcome& outcome) : outcome_(outcome) {}

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    SearchOutcome& outcome_;
};

}  // namespace lejis
