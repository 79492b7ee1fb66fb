#pragma once

#include "files/SaxHandler.h"

#include <string>

namespace lejis_client {

// Keeps the first fault that a SAX reader reports.
class XmlFaultHandler final : public SaxHandler {
public:
    // A sentence with the line; empty without a fault.
    const std::wstring& Fault() const { return fault_; }

    STDMETHODIMP fatalError(ISAXLocator*, const WCHAR* message, HRESULT) override;

private:
    std::wstring fault_;
};

}  // namespace lejis_client
