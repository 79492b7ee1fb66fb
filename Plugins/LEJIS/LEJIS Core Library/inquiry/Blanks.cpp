#include "inquiry/Blanks.h"

#include "platform/Text.h"

#include <algorithm>

namespace lejis {

bool AnyNotBlank(std::initializer_list<platform::TextArgument> texts) {
    return !std::ranges::all_of(texts, platform::IsBlank);
}

}  // namespace lejis
