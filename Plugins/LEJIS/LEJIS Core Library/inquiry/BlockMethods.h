// What every block of a search shows its clients, and what that hands on to: HasContent, Write and Read.
#pragma once

#include "model/XmlMethods.h"

#define BLOCK_METHODS()                                                  \
    [[nodiscard]] STDMETHODIMP NotEmpty(VARIANT_BOOL* result) override { \
        return Guard(result, [&] { return HasContent(); });              \
    }                                                                    \
    bool HasContent() const;                                             \
    XML_METHODS()
