// A client's sink that keeps each event as "Name", "Name: message" or, for cards found, "Name: n cards".
#pragma once

#include "platform/com/EventSink.h"

#include <ocidl.h>
#include <wrl/client.h>

#include <functional>
#include <string>
#include <vector>

namespace support {

class EventLog final : public platform::EventSink<> {
public:
    // The names of the events, by their numbers, from 1.
    explicit EventLog(std::vector<std::wstring> names);

    static platform::Ref<EventLog> ForSubmissions();
    static platform::Ref<EventLog> ForSearches();

    // Connects the log to the default events of the service.
    void ConnectTo(IDispatch* service);
    // Only while the service lives.
    void Disconnect();

    std::vector<std::wstring> events;
    std::function<void()> onEvent = [] {};

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;

private:
    const std::vector<std::wstring> names_;
    // Not held: the service holds this log, and would never end if the log held it in turn.
    IConnectionPoint* point_ = nullptr;
    DWORD cookie_ = 0;
};

}  // namespace support
