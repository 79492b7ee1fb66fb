#pragma once

#include <comutil.h>
#include <oaidl.h>

#include <vector>

namespace platform {

// The arguments of a call, with the objects behind references as values. Not every dispatcher lets go of an object that
// it finds behind a reference and refuses. The others stay what they are.
class ArgumentsByValue {
public:
    // `given` outlives this object.
    explicit ArgumentsByValue(const DISPPARAMS& given);
    ArgumentsByValue(const ArgumentsByValue&) = delete;
    ArgumentsByValue& operator=(const ArgumentsByValue&) = delete;

    DISPPARAMS* All() { return &all_; }

private:
    DISPPARAMS all_;
    std::vector<VARIANT> arguments_;
    std::vector<_variant_t> objects_;
};

}  // namespace platform
