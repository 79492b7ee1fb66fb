#include "inquiry/Blanks.h"

#include "platform/Text.h"

#include <algorithm>

namespace lejis {

bool AnyNotBlank(std::initializer_list<const std::wstring*> texts) {
    return std::any_of(texts.begin(), texts.end(),
                       [](const std::wstring* text) { return !platform::TrimBlanks(*text).empty(); });
}

}  // namespace lejis
