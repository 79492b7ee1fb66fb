#pragma once

#include "harness/SearchOutcome.h"
#include "platform/com/EventSink.h"

#include <TVLejisCore.h>

namespace lejis {

// Hears the search service's events for the outcome of one search, which outlives the connection.
class SearchSink final : public platform::EventSink<_LejisSearchWebServiceEvents> {
public:
    explicit SearchSink(SearchOutcome& outcome) : outcome_(outcome) {}

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    SearchOutcome& outcome_;
};

}  // namespace lejis
