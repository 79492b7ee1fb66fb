#include "submission/Outcome.h"

namespace lejis_client {

Outcome Unreadable(const std::wstring& reason) {
    Outcome outcome;
    outcome.result = Result::NotSent;
    outcome.errors = {reason};
    return outcome;
}

}  // namespace lejis_client
