#include "text/NearestName.h"

#include <algorithm>
#include <cwctype>
#include <numeric>
#include <utility>
#include <vector>

namespace lejis_client {
namespace {

bool AreSame(wchar_t one, wchar_t other) { return std::towlower(one) == std::towlower(other); }

// How many characters have to be put in, taken out, replaced, or exchanged with their neighbours.
std::size_t Difference(std::wstring_view one, std::wstring_view other) {
    // Each row has the differences of a beginning of `one` from every beginning of `other`.
    std::vector<std::size_t> beforeLast, last(other.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::vector<std::size_t> row = {i + 1};
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = last[j] + (AreSame(one[i], other[j]) ? 0 : 1);
            row.push_back(std::min({replaced, last[j + 1] + 1, row[j] + 1}));
            const bool isExchanged = i > 0 && j > 0 && AreSame(one[i], other[j - 1]) && AreSame(one[i - 1], other[j]);
            if (isExchanged) row.back() = std::min(row.back(), beforeLast[j - 1] + 1);
        }
        beforeLast = std::exchange(last, std::move(row));
    }
    return last.back();
}

}  // namespace

std::optional<std::size_t> NearestName(std::wstring_view written, std::span<const std::wstring_view> names) {
    std::optional<std::size_t> nearest;
    std::size_t least = 0;
    for (std::size_t place = 0; place < names.size(); ++place) {
        const std::size_t longer = std::max(written.size(), names[place].size());
        const std::size_t shorter = std::min(written.size(), names[place].size());
        // Too different by their lengths alone; so a name of a million characters costs nothing.
        if (longer - shorter > longer / 3) continue;
        const std::size_t difference = Difference(written, names[place]);
        if (difference > longer / 3 || (nearest && difference >= least)) continue;
        nearest = place;
        least = difference;
    }
    return nearest;
}

}  // namespace lejis_client
