#pragma once

#include "platform/com/UnknownObject.h"

#include <oaidl.h>
#include <windows.h>

namespace platform {

// The automation half of an object that hears events. The source of the events calls Invoke alone, by number: the
// object does not describe its type and knows no names.
template <typename Events>
class EventSinkOf : public Events {
public:
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        if (!count) return E_POINTER;
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
};

template <typename Events>
struct Implemented<EventSinkOf<Events>> {
    using Interface = Events;
};

// The base of a sink for a set of events, or for any events that reach an IDispatch.
template <typename Events = IDispatch>
using EventSink = UnknownObject<EventSinkOf<Events>>;

}  // namespace platform
