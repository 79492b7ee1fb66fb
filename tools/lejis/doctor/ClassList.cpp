#include "doctor/ClassList.h"

#include "platform/com/TypeLibrary.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <oleauto.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

bool IsCreatable(const TYPEATTR& type) {
    return type.typekind == TKIND_COCLASS && (type.wTypeFlags & TYPEFLAG_FCANCREATE) != 0;
}

std::wstring NameOf(ITypeInfo* information) {
    BSTR name = nullptr;
    platform::Check(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return platform::TakeText(name);
}

}  // namespace

std::vector<ClassEntry> CreatableClasses(const std::wstring& file) {
    ComPtr<ITypeLib> library;
    platform::Check(LoadTypeLibEx(file.c_str(), REGKIND_NONE, &library));
    std::vector<ClassEntry> classes;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> information;
        platform::Check(library->GetTypeInfo(index, &information));
        const platform::TypeAttributes type(information.Get());
        if (IsCreatable(*type)) classes.push_back({type->guid, NameOf(information.Get())});
    }
    return classes;
}

}  // namespace lejis_client
