// An automation object that is called by member name alone, as one written in a language of Visual Basic's kind.
#pragma once

#include "platform/com/UnknownObject.h"

#include <comutil.h>
#include <ocidl.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace support {

// Arguments come first one first; a property that is put gets its value as the last.
using Member = std::function<_variant_t(const std::vector<_variant_t>& arguments, WORD kind)>;

// A member may throw a platform::ComError, which its caller sees as the exception's number and description.
class LateBoundObject : public platform::UnknownObject<IConnectionPointContainer, IDispatch> {
public:
    explicit LateBoundObject(std::map<std::wstring, Member> members);

    STDMETHODIMP GetTypeInfoCount(UINT* count) override;
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* numbers) override;
    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* exception, UINT* argument) override;

    // No events; a derived object may have some.
    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints**) override { return E_NOTIMPL; }
    STDMETHODIMP FindConnectionPoint(REFIID, IConnectionPoint** point) override;

private:
    std::vector<std::pair<std::wstring, Member>> members_;
};

}  // namespace support
