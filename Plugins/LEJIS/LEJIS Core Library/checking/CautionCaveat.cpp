#include "checking/CautionCaveat.h"

#include "platform/Text.h"

namespace lejis {
namespace {

constexpr size_t kLongestCaveat = 200;

}  // namespace

std::optional<std::wstring> CautionCaveatMessage(const LejisPersonIndexCard& person) {
    const std::wstring caveat = person.SubjectCautionInformationCaveat;
    if (caveat.size() <= kLongestCaveat) return std::nullopt;
    return platform::Join({L"Caution information cannot be more than 200 characters. '", caveat, L"' is ",
                           std::to_wstring(caveat.size()), L" characters long."});
}

}  // namespace lejis
