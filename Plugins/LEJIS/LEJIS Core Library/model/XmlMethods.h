// The two methods of a card for its clients, and the two inside that they call: Write and Read. The names differ on
// purpose: a call inside never takes the client's method, whose result says whether it failed.
#pragma once

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "foundation/QueryPrefixes.h"
#include "platform/msxml/Document.h"

#define XML_METHODS()                                                                           \
    [[nodiscard]] STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override {      \
        return Guard(result, [&] { return msxml::ToClient(Write(msxml::DocumentFrom(doc))); }); \
    }                                                                                           \
    [[nodiscard]] STDMETHODIMP FromXmlElement(IDispatch* elem) override {                       \
        return Guard([&] { Read(ElementReader(LejisUtils::ElementToRead(elem))); });            \
    }                                                                                           \
    msxml::Element Write(const OutputDocument& document) const;                                 \
    void Read(const ElementReader& element);
