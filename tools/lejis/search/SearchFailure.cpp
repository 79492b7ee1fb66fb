#include "search/SearchFailure.h"

#include <algorithm>
#include <string_view>

namespace lejis_client {
namespace {

// How messages of a ServiceError begin that are no answer to this search: one that broke off, and one that makes no
// sense. docs/messages.md has the same in its column "lejis".
constexpr std::wstring_view kPassing[] = {
    L"Internal error in web service code: ",
    L"The LEJIS core server returned an unexpected response. ",
};

}  // namespace

bool CanTryAgain(const SearchOutcome& outcome) {
    if (outcome.end != SearchEnd::ServiceError) return outcome.end == SearchEnd::NetworkError;
    return std::any_of(std::begin(kPassing), std::end(kPassing),
                       [&](std::wstring_view begin) { return outcome.message.starts_with(begin); });
}

}  // namespace lejis_client
