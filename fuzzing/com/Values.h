// Values of every kind that automation can carry, and some that it cannot.
#pragma once

#include "engine/Case.h"

#include <comutil.h>
#include <oaidl.h>
#include <windows.h>
#include <wrl/client.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace fuzzing {

// Makes values for one case and keeps what they point to until its end. The values themselves are not to be cleared.
class Values {
public:
    using ObjectMaker = std::function<Microsoft::WRL::ComPtr<IUnknown>()>;

    // `makeObject` gives the objects that values hold, null among them.
    Values(Case& input, ObjectMaker makeObject) : case_(input), makeObject_(std::move(makeObject)) {}
    ~Values();
    Values(const Values&) = delete;
    Values& operator=(const Values&) = delete;

    VARIANT Any() { return Any(kDepth); }

    // The same for a call through the dispatcher. Wine's keeps objects for ever that it converts from VT_UNKNOWN or
    // from a reference, which would pass for leaks of the library: most such values are empty instead.
    VARIANT AnyToDispatch();

    // A value of the kind that a parameter of this type gets.
    VARIANT OfType(VARTYPE type);
    BSTR Text();
    IDispatch* Object();

private:
    static constexpr int kDepth = 3;

    VARIANT Any(int depth);
    VARIANT Plain(VARTYPE type);
    VARIANT Reference(int depth);
    VARIANT Array();
    VARIANT Broken();
    SAFEARRAY* NewArray(VARTYPE type);
    void Fill(SAFEARRAY* array, VARTYPE type);
    BSTR Kept(BSTR text);
    IUnknown* Kept(Microsoft::WRL::ComPtr<IUnknown> object);

    Case& case_;
    ObjectMaker makeObject_;
    std::deque<VARIANT> storage_;
    std::vector<BSTR> texts_;
    std::vector<SAFEARRAY*> arrays_;
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> objects_;
};

// How a trace writes a value.
std::wstring Described(const VARIANT& value);

}  // namespace fuzzing
