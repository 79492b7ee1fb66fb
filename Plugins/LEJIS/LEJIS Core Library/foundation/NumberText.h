#pragma once

#include "foundation/NullableNumber.h"

#include <string>

namespace lejis {

// The number in decimal digits; empty for an empty holder.
template <typename Coclass, typename Interface, typename Integer>
std::wstring NumberText(const NullableNumber<Coclass, Interface, Integer>& holder) {
    return holder.Number() ? std::to_wstring(*holder.Number()) : std::wstring();
}

}  // namespace lejis
