#pragma once

#include "files/LossFinder.h"
#include "files/SaxHandler.h"

#include <exception>
#include <string>
#include <vector>

namespace lejis_client {

// Finds what is lost of an incident file while a SAX reader goes through it.
class LossHandler final : public SaxHandler {
public:
    // Returns the losses of the incident card in these bytes.
    std::vector<Loss> LossesOf(const std::string& content);

    STDMETHODIMP startElement(const WCHAR* space, int spaceLength, const WCHAR* local, int localLength,
                              const WCHAR* qualified, int qualifiedLength, ISAXAttributes* attributes) override;
    STDMETHODIMP endElement(const WCHAR*, int, const WCHAR*, int, const WCHAR*, int) override;
    STDMETHODIMP characters(const WCHAR* text, int length) override;

private:
    void TakeAttributes(ISAXAttributes* attributes);
    // The reader is no C++: an exception is kept until it has returned.
    template <typename Work>
    HRESULT Guarded(Work work);

    LossFinder finder_;
    std::exception_ptr failure_;
};

}  // namespace lejis_client
