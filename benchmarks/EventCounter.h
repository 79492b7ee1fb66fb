#pragma once

#include "platform/com/EventSink.h"

#include <TVLejisCore.h>

namespace benchmarks {

// Counts the completed searches.
class EventCounter final : public platform::EventSink<_LejisSearchWebServiceEvents> {
public:
    int completed = 0;

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        constexpr DISPID kSearchCompleted = 1;
        if (event == kSearchCompleted) ++completed;
        return S_OK;
    }
};

}  // namespace benchmarks
