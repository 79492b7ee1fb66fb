// Fields of cards in GoogleTest's messages. All unit tests are compiled with it.
#pragma once

#include "platform/TextField.h"
#include "support/Printing.h"

#include <ostream>

namespace platform {

inline void PrintTo(const TextField& field, std::ostream* out) { *out << '"' << support::Utf8(field) << '"'; }

}  // namespace platform
