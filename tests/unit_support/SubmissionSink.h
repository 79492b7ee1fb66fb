// A client's sink for the submission service's events.
#pragma once

#include "platform/com/UnknownObject.h"

#include <ocidl.h>
#include <TVLejisCore.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace support {

// Keeps each event as "Name" or "Name: message".
class SubmissionSink final : public platform::UnknownObject<_LejisSubmissionWebServiceEvents> {
public:
    static DWORD Connect(IDispatch* service, const Microsoft::WRL::ComPtr<SubmissionSink>& sink);

    // A sink that is connected as long as this lives.
    class Connection {
    public:
        explicit Connection(IDispatch* service);
        ~Connection();
        Connection(const Connection&) = delete;
        Connection& operator=(const Connection&) = delete;

        const std::vector<std::wstring>& Events() const { return sink_->events; }

    private:
        Microsoft::WRL::ComPtr<IDispatch> service_;
        Microsoft::WRL::ComPtr<SubmissionSink> sink_;
        DWORD cookie_;
    };

    std::vector<std::wstring> events;

    STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*, UINT*) override;
};

}  // namespace support
