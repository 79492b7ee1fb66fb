#pragma once

#include "apartments/Client.h"

#include <msxml6.h>

namespace apartments {

// The control: the platform's XMLHTTP alone, used as the library uses it. What fails here is not the library's.
class BareClient final : public Client {
public:
    void Work(Tally& tally) override;
    void Begin() override;
    void Forget() override { request_.Detach(); }

private:
    static ComPtr<IXMLHTTPRequest> Send(const std::wstring& url, bool asynchronous);

    ComPtr<IXMLHTTPRequest> request_;
};

}  // namespace apartments
