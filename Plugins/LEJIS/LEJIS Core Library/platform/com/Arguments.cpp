#include "platform/com/Arguments.h"

#include <algorithm>
#include <span>

namespace platform {

namespace {

bool IsReferenceToNothing(const VARIANT& value) { return (V_VT(&value) & VT_BYREF) && !V_BYREF(&value); }

}  // namespace

bool LeadsNowhere(const VARIANT& value) {
    if (IsReferenceToNothing(value)) return true;
    // One step, as everybody does: a reference to a reference is no value, and may lead in a circle.
    return V_VT(&value) == (VT_BYREF | VT_VARIANT) && IsReferenceToNothing(*V_VARIANTREF(&value));
}

bool IsSound(const DISPPARAMS& parameters) {
    if (parameters.cNamedArgs > parameters.cArgs) return false;
    if (parameters.cNamedArgs > 0 && !parameters.rgdispidNamedArgs) return false;
    if (parameters.cArgs > 0 && !parameters.rgvarg) return false;
    return std::ranges::none_of(std::span(parameters.rgvarg, parameters.cArgs), LeadsNowhere);
}

}  // namespace platform
