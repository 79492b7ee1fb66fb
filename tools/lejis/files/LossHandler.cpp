#include "files/LossHandler.h"

#include "files/FileError.h"
#include "library/Library.h"

namespace lejis_client {
namespace {

std::wstring_view View(const WCHAR* text, int length) { return {text, static_cast<std::size_t>(length)}; }

}  // namespace

std::vector<Loss> LossHandler::LossesOf(const std::string& content) {
    const bool isXml = Read(content);
    if (failure_) std::rethrow_exception(failure_);
    if (!isXml) throw FileError{L"The XML cannot be read a second time."};
    return finder_.Losses();
}

STDMETHODIMP LossHandler::startElement(const WCHAR* space, int spaceLength, const WCHAR* local, int localLength,
                                       const WCHAR* qualified, int qualifiedLength, ISAXAttributes* attributes) {
    SaxHandler::startElement(space, spaceLength, local, localLength, qualified, qualifiedLength, attributes);
    return Guarded([&] {
        finder_.Begin(Line(), {View(space, spaceLength), View(local, localLength), View(qualified, qualifiedLength)});
        TakeAttributes(attributes);
    });
}

STDMETHODIMP LossHandler::endElement(const WCHAR* space, int spaceLength, const WCHAR* local, int localLength,
                                     const WCHAR* qualified, int qualifiedLength) {
    SaxHandler::endElement(space, spaceLength, local, localLength, qualified, qualifiedLength);
    return Guarded([&] { finder_.End(); });
}

STDMETHODIMP LossHandler::characters(const WCHAR* text, int length) {
    const HRESULT result = Guarded([&] { finder_.Text(Line(), View(text, length)); });
    SaxHandler::characters(text, length);
    return result;
}

void LossHandler::TakeAttributes(ISAXAttributes* attributes) {
    int count = 0;
    Check(attributes->getLength(&count));
    for (int place = 0; place < count; ++place) {
        const WCHAR *space = nullptr, *local = nullptr, *qualified = nullptr, *value = nullptr;
        int spaceLength = 0, localLength = 0, qualifiedLength = 0, valueLength = 0;
        Check(attributes->getName(place, &space, &spaceLength, &local, &localLength, &qualified, &qualifiedLength));
        Check(attributes->getValue(place, &value, &valueLength));
        finder_.Attribute(Line(),
                          {View(space, spaceLength), View(local, localLength), View(qualified, qualifiedLength)},
                          View(value, valueLength));
    }
}

template <typename Work>
HRESULT LossHandler::Guarded(Work work) {
    try {
        work();
        return S_OK;
    } catch (...) {
        failure_ = std::current_exception();
        return E_FAIL;
    }
}

}  // namespace lejis_client
