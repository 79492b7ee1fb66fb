#pragma once

#include "platform/com/UnknownObject.h"
#include "support/EmptyDispatch.h"

namespace support {

// An object with one interface, which is called early bound, or by number alone.
template <typename Interface>
using EarlyBound = platform::UnknownObject<EmptyDispatch<Interface>>;

}  // namespace support

namespace platform {

template <typename Dual>
struct Implemented<support::EmptyDispatch<Dual>> {
    using Interface = Dual;
};

}  // namespace platform
