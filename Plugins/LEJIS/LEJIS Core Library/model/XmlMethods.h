// The two methods by which a card meets its clients: they hand on to the card's own ToXmlElement and FromXmlElement.
#pragma once

#include "foundation/ElementReader.h"
#include "foundation/LejisUtils.h"
#include "foundation/OutputDocument.h"
#include "platform/msxml/Document.h"

#define XML_METHODS()                                                                                  \
    STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override {                           \
        return Guard(result, [&] { return msxml::ToClient(ToXmlElement(msxml::DocumentFrom(doc))); }); \
    }                                                                                                  \
    STDMETHODIMP FromXmlElement(IDispatch* elem) override {                                            \
        return Guard([&] { FromXmlElement(LejisUtils::ElementToRead(elem)); });                        \
    }                                                                                                  \
    msxml::Element ToXmlElement(const OutputDocument& document) const;                                 \
    void FromXmlElement(const ElementReader& element);
