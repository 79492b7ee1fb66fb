#include "text/NearestName.h"

#include <algorithm>
#include <cwctype>
#include <numeric>
#include <utility>
#include <vector>

namespace lejis_client {
namespace {

bool AreSame(wchar_t one, wchar_t other) { return std::towlower(one) == std::towlower(other); }

// How many characters have to be put in, taken out or replaced.
std::size_t Difference(std::wstring_view one, std::wstring_view other) {
    // Of the first characters of `one`, so far: the differences from each beginning of `other`.
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = std::exchange(row[0], i + 1);
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = diagonal + (AreSame(one[i], other[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
        }
    }
    return row.back();
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
