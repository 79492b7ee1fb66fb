#include "platform/com/ArgumentsByValue.h"

#include "platform/Conversions.h"

#include <algorithm>
#include <span>

namespace platform {
namespace {

bool IsObject(VARTYPE type) { return type == VT_DISPATCH || type == VT_UNKNOWN; }

bool IsObjectBehindReference(const VARIANT& argument) {
    const VARTYPE type = V_VT(&argument);
    if (type == (VT_BYREF | VT_VARIANT)) return IsObject(V_VT(V_VARIANTREF(&argument)));
    return (type & VT_BYREF) && IsObject(type & VT_TYPEMASK) && !(type & VT_ARRAY);
}

}  // namespace

ArgumentsByValue::ArgumentsByValue(const DISPPARAMS& given) : all_(given) {
    const std::span arguments(given.rgvarg, given.cArgs);
    // Most calls have none, and pay nothing.
    if (std::ranges::none_of(arguments, IsObjectBehindReference)) return;
    arguments_.assign(arguments.begin(), arguments.end());
    // The copies below must not move.
    objects_.reserve(arguments_.size());
    for (VARIANT& argument : arguments_) {
        if (IsObjectBehindReference(argument)) argument = objects_.emplace_back(Dereference(argument));
    }
    all_.rgvarg = arguments_.data();
}

}  // namespace platform
