// The offense codes of NCIC's Uniform Offense Classification that LEJIS accepts.
#pragma once

#include <span>
#include <string_view>

namespace lejis::LejisUtils {

struct NcicOffenseCode {
    std::wstring_view code;
    std::wstring_view literal;
};

// All codes in ascending order, with their literals. The table is constant data: nothing is built at run time, and
// every thread sees the same one.
std::span<const NcicOffenseCode> GetNcicOffenseCodes();

// Whether the table holds exactly this code: no trimming, no padding.
bool IsNcicOffenseCode(std::wstring_view code);

}  // namespace lejis::LejisUtils
