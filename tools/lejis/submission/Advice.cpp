#include "submission/Advice.h"

namespace lejis_client {
namespace {

constexpr wchar_t kWait[] = L"Nothing reached LEJIS. Trying again later can help; the incident is not at fault.";
constexpr wchar_t kMend[] = L"Trying again does not help until this is put right.";
constexpr wchar_t kMendTheRoad[] = L"Nothing reached LEJIS. Trying again does not help until this is put right.";

}  // namespace

std::wstring AdviceOn(const OperationKind& operation, const Outcome& outcome) {
    // A check sends nothing, and what it says is to be put right.
    if (!operation.sends) return {};
    switch (outcome.result) {
        case Result::Unknown:
            return operation.adviceOnUnknown;
        case Result::NotSent:
            return outcome.canTryAgain ? kWait : kMendTheRoad;
        case Result::Refused:
            return kMend;
        case Result::Done:
        case Result::LeftOut:
            break;
    }
    return {};
}

}  // namespace lejis_client
