// The methods that every block of a search has for its clients, the ones inside that they call (HasContent, Write and
// Read), and the test for content that most blocks share.
#pragma once

#include "model/XmlMethods.h"
#include "platform/Text.h"

#include <algorithm>
#include <initializer_list>

namespace lejis {

// Whether one of the texts holds more than blanks.
inline bool AnyNotBlank(std::initializer_list<platform::TextArgument> texts) {
    return !std::ranges::all_of(texts, platform::IsBlank);
}

}  // namespace lejis

#define BLOCK_METHODS()                                                  \
    [[nodiscard]] STDMETHODIMP NotEmpty(VARIANT_BOOL* result) override { \
        return Guard(result, [&] { return HasContent(); });              \
    }                                                                    \
    bool HasContent() const;                                             \
    XML_METHODS()
