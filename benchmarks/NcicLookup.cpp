#include "checking/NcicOffenseCodes.h"
#include "Sections.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

namespace benchmarks {
namespace {

using lejis::LejisUtils::GetNcicOffenseCodes;
using lejis::LejisUtils::IsNcicOffenseCode;

// Half of what is looked up is in the table; the codes follow each other in no order that a processor could learn.
std::vector<std::wstring> CodesToLookUp() {
    std::vector<std::wstring> codes;
    for (size_t index = 0; index < GetNcicOffenseCodes().size(); ++index) {
        const std::wstring_view code = GetNcicOffenseCodes()[index * 101 % GetNcicOffenseCodes().size()].code;
        codes.emplace_back(code);
        codes.push_back(std::wstring(code.rbegin(), code.rend()));
    }
    return codes;
}

template <typename Lookup>
void LookUpAll(const std::vector<std::wstring>& codes, const Lookup& lookup) {
    size_t found = 0;
    for (const std::wstring& code : codes) found += lookup(code) ? 1 : 0;
    if (found == 0) throw std::runtime_error("no code was found");
}

}  // namespace

std::vector<Figure> NcicLookup() {
    constexpr int kRepetitions = 200;
    const std::vector<std::wstring> codes = CodesToLookUp();
    std::unordered_map<std::wstring, std::wstring_view> map;
    for (const auto& row : GetNcicOffenseCodes()) map.emplace(row.code, row.literal);
    const std::vector<Series> series = Measure({
        {"std::unordered_map of the same keys",
         [&] { LookUpAll(codes, [&](const std::wstring& code) { return map.contains(code); }); }, kRepetitions},
        {"NCIC offense code lookup", [&] { LookUpAll(codes, IsNcicOffenseCode); }, kRepetitions},
    });
    return {Ratio(series[1], series[0], 1.0)};
}

}  // namespace benchmarks
