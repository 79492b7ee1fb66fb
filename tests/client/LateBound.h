// A client that knows objects by the names of their members only, as scripts do.
#pragma once

#include "client/Client.h"

#include <string>
#include <vector>

namespace client {

// What came of a call: its result, the value, and what EXCEPINFO told of a failure.
struct Outcome {
    HRESULT result = S_OK;
    _variant_t value;
    HRESULT number = S_OK;
    std::wstring description;
    std::wstring source;
    UINT badArgument = static_cast<UINT>(-1);

    std::wstring Text() const;
};

class LateBound {
public:
    explicit LateBound(ComPtr<IDispatch> object) : object_(std::move(object)) {}
    // The object in a value that an earlier call returned.
    explicit LateBound(const _variant_t& value) : object_(V_DISPATCH(&value)) {}

    Outcome Get(const wchar_t* name) const { return Invoke(name, DISPATCH_PROPERTYGET); }
    Outcome Put(const wchar_t* name, const _variant_t& value) const;
    Outcome Call(const wchar_t* name, std::vector<_variant_t> arguments = {}) const {
        return Invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, std::move(arguments));
    }
    // Arguments in the order of the declaration; names, for the last of them only.
    Outcome Invoke(const wchar_t* name, WORD kind, std::vector<_variant_t> arguments = {},
                   std::vector<DISPID> named = {}) const;
    Outcome InvokeNumber(DISPID member, WORD kind, std::vector<_variant_t> arguments = {},
                         std::vector<DISPID> named = {}) const;
    // Passes the parameters as they stand; there may be none.
    Outcome InvokeWith(DISPID member, WORD kind, DISPPARAMS* parameters) const;

    // DISPID_UNKNOWN where the object has no such member.
    DISPID NumberOf(const wchar_t* name) const;

    LateBound Object(const wchar_t* name) const { return LateBound(Get(name).value); }
    IDispatch* Pointer() const { return object_.Get(); }
    _variant_t AsArgument() const { return _variant_t(object_.Get()); }

private:
    ComPtr<IDispatch> object_;
};

LateBound CreateLateBound(const std::wstring& className);

// The call failed and EXCEPINFO holds this number and this description.
testing::AssertionResult RaisedBy(const Outcome& outcome, long number, const std::wstring& description);

// The call succeeded.
testing::AssertionResult Done(const Outcome& outcome);

}  // namespace client
