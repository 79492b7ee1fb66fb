// The members of objects as the type library describes them, called through the table of functions.
#pragma once

#include "client/Client.h"

#include <functional>
#include <string>
#include <vector>

namespace client {

// One function of a dual interface.
struct Member {
    std::wstring name;
    DISPID number;
    INVOKEKIND kind;
    ULONG_PTR offset;
    // The type of each parameter in order, results included; VT_BYREF for one that is written to.
    struct Parameter {
        VARTYPE type;
        bool isResult;
        // Types that the client itself implements.
        bool isClientInterface;

        bool IsObject() const { return !isResult && (type == VT_DISPATCH || type == VT_UNKNOWN); }
    };
    std::vector<Parameter> parameters;
};

// The functions that an interface adds to IDispatch.
std::vector<Member> MembersOf(REFIID iid);

// The interfaces of a class, without its events.
std::vector<IID> InterfacesOf(REFCLSID classId);

// Calls the member through the interface's table.
HRESULT CallDirectly(IUnknown* interfacePointer, const Member& member, std::vector<VARIANT> arguments);

// Every member of every interface of every creatable class, each with a new object of the class as that interface.
void ForEachMember(const std::function<void(const ClassRow&, IUnknown*, const Member&)>& visit);

}  // namespace client
