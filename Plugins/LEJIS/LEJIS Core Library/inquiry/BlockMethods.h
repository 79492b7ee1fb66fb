// What every block of a search shows its clients: it hands on to the block's own NotEmpty, ToXmlElement,
// FromXmlElement.
#pragma once

#include "model/XmlMethods.h"

#define BLOCK_METHODS()                                    \
    STDMETHODIMP NotEmpty(VARIANT_BOOL* result) override { \
        return Guard(result, [&] { return NotEmpty(); });  \
    }                                                      \
    bool NotEmpty() const;                                 \
    XML_METHODS()
