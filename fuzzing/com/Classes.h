// The public classes and their members, as the type library tells them: what is new there is fuzzed by itself.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <vector>

namespace fuzzing {

struct Parameter {
    // The type of an argument; VT_PTR for a place that takes a result.
    VARTYPE type;
    // The interface of an object that is demanded or returned; GUID_NULL for any.
    IID object;
    bool isResult;
};

struct Member {
    std::wstring name;
    std::vector<std::wstring> parameterNames;
    DISPID id;
    WORD kind;
    ULONG_PTR vtableOffset;
    std::vector<Parameter> parameters;

    bool IsResultObject() const;
};

struct PublicInterface {
    std::wstring name;
    IID id;
    std::vector<Member> members;
};

struct PublicClass {
    std::wstring name;
    CLSID id;
    bool isCreatable;
    bool hasEvents;
    // The default one first.
    std::vector<const PublicInterface*> interfaces;
};

// Read once.
const std::vector<PublicClass>& PublicClasses();
// Null for an interface that is not one of the library's own.
const PublicInterface* FindInterface(REFIID iid);
// Interface of an object's class, by asking the object; null for an object of somebody else.
const PublicClass* ClassOf(IUnknown* object);

}  // namespace fuzzing
