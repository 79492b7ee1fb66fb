#pragma once

#include "client/ClientObject.h"

namespace apartments {

// Counts the events of a search service.
class EventCounter final : public client::ClientObject<IDispatch> {
public:
    int completed = 0;
    int others = 0;

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
        constexpr DISPID kSearchCompleted = 1;
        ++(event == kSearchCompleted ? completed : others);
        return S_OK;
    }
};

}  // namespace apartments
