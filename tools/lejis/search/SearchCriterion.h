// What a search looks for.
#pragma once

#include "library/Members.h"

#include <functional>

namespace lejis_client {

// Puts one value into a request.
using SearchCriterion = std::function<void(ILejisSearchRequest* request)>;

// `block` names the part of the request; `put` or `holder` names the place of the value in that part.
template <auto block, auto put>
SearchCriterion TextCriterion(const std::wstring& text) {
    return [text](ILejisSearchRequest* request) {
        const auto arguments = Part(request, block);
        Check((arguments.Get()->*put)(_bstr_t(text.c_str())));
    };
}

template <auto block, auto holder>
SearchCriterion ValueCriterion(const _variant_t& value) {
    return [value](ILejisSearchRequest* request) {
        const auto arguments = Part(request, block);
        Check(Part(arguments.Get(), holder)->put_Value(value));
    };
}

}  // namespace lejis_client
