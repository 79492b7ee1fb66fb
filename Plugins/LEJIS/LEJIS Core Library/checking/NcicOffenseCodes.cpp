#include "checking/NcicOffenseCodes.h"

#include <algorithm>

namespace lejis::LejisUtils {
namespace {

constexpr NcicOffenseCode kCodes[] = {
#include "NcicOffenseCodeRows.inc"
};

static_assert(std::ranges::is_sorted(kCodes, {}, &NcicOffenseCode::code));

}  // namespace

std::span<const NcicOffenseCode> GetNcicOffenseCodes() { return kCodes; }

bool IsNcicOffenseCode(std::wstring_view code) {
    return std::ranges::binary_search(kCodes, code, {}, &NcicOffenseCode::code);
}

}  // namespace lejis::LejisUtils
