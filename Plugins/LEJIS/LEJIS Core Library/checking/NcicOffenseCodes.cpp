#include "checking/NcicOffenseCodes.h"

#include <algorithm>
#include <array>

namespace lejis::LejisUtils {
namespace {

constexpr NcicOffenseCode kCodes[] = {
#include "NcicOffenseCodeRows.inc"
};

static_assert(std::ranges::is_sorted(kCodes, {}, &NcicOffenseCode::code));

constexpr size_t kDigits = 4;
constexpr size_t kNumbers = 10000;

// Four digits as their number; kNumbers for any other text.
constexpr size_t NumberOf(std::wstring_view code) {
    if (code.size() != kDigits) return kNumbers;
    size_t number = 0;
    for (const wchar_t digit : code) {
        if (digit < L'0' || digit > L'9') return kNumbers;
        number = number * 10 + static_cast<size_t>(digit - L'0');
    }
    return number;
}

static_assert(std::ranges::all_of(kCodes, [](const auto& row) { return NumberOf(row.code) < kNumbers; }));

// The codes by their numbers, for a look-up that costs no search.
constexpr std::array<bool, kNumbers + 1> kIsCode = [] {
    std::array<bool, kNumbers + 1> isCode{};
    for (const NcicOffenseCode& row : kCodes) isCode[NumberOf(row.code)] = true;
    return isCode;
}();

}  // namespace

std::span<const NcicOffenseCode> GetNcicOffenseCodes() { return kCodes; }

bool IsNcicOffenseCode(std::wstring_view code) { return kIsCode[NumberOf(code)]; }

}  // namespace lejis::LejisUtils
