#include "com/Classes.h"

#include "platform/com/TypeLibrary.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <ocidl.h>
#include <wrl/client.h>

#include <algorithm>
#include <array>
#include <deque>

using Microsoft::WRL::ComPtr;
using platform::Check;
using platform::TypeAttributes;

namespace fuzzing {
namespace {

std::wstring NameOf(ITypeInfo* information) {
    BSTR name = nullptr;
    Check(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return platform::TakeText(name);
}

ComPtr<ITypeInfo> Referred(ITypeInfo* information, HREFTYPE reference) {
    ComPtr<ITypeInfo> referred;
    Check(information->GetRefTypeInfo(reference, referred.GetAddressOf()));
    return referred;
}

// The type that `type` points to, through any number of pointers, and the identifier of a user-defined type.
std::pair<VARTYPE, GUID> Innermost(ITypeInfo* information, const TYPEDESC& type) {
    if (type.vt == VT_PTR) return Innermost(information, *type.lptdesc);
    if (type.vt != VT_USERDEFINED) return {type.vt, GUID_NULL};
    return {static_cast<VARTYPE>(VT_DISPATCH), TypeAttributes(Referred(information, type.hreftype).Get())->guid};
}

Parameter ToParameter(ITypeInfo* information, const ELEMDESC& element) {
    const auto [type, object] = Innermost(information, element.tdesc);
    const bool isResult = (element.paramdesc.wParamFlags & PARAMFLAG_FOUT) != 0;
    return {type, object, isResult};
}

Member ToMember(ITypeInfo* information, const FUNCDESC& function) {
    std::array<BSTR, 8> names{};
    UINT count = 0;
    Check(information->GetNames(function.memid, names.data(), static_cast<UINT>(names.size()), &count));
    Member member{platform::TakeText(names[0]),          {}, function.memid, static_cast<WORD>(function.invkind),
                  static_cast<ULONG_PTR>(function.oVft), {}};
    for (UINT index = 1; index < count; ++index) member.parameterNames.push_back(platform::TakeText(names[index]));
    for (SHORT index = 0; index < function.cParams; ++index) {
        member.parameters.push_back(ToParameter(information, function.lprgelemdescParam[index]));
    }
    return member;
}

// The members of a dual interface, with their places in its table.
std::vector<Member> MembersOf(ITypeInfo* dispatch) {
    HREFTYPE reference = 0;
    Check(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    const ComPtr<ITypeInfo> table = Referred(dispatch, reference);
    std::vector<Member> members;
    for (UINT index = 0; index < TypeAttributes(table.Get())->cFuncs; ++index) {
        FUNCDESC* function = nullptr;
        Check(table->GetFuncDesc(index, &function));
        members.push_back(ToMember(table.Get(), *function));
        table->ReleaseFuncDesc(function);
    }
    return members;
}

class Library {
public:
    Library() {
        const ComPtr<ITypeLib> library = platform::LoadModuleTypeLibrary();
        for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
            ComPtr<ITypeInfo> information;
            Check(library->GetTypeInfo(index, information.GetAddressOf()));
            const TypeAttributes attributes(information.Get());
            if (attributes->typekind == TKIND_DISPATCH && (attributes->wTypeFlags & TYPEFLAG_FDUAL)) {
                interfaces.push_back({NameOf(information.Get()), attributes->guid, MembersOf(information.Get())});
            }
            if (attributes->typekind == TKIND_COCLASS) AddClass(information.Get(), attributes);
        }
    }

    const PublicInterface* Find(REFIID iid) const {
        const auto found = std::ranges::find_if(interfaces, [&](const auto& candidate) { return candidate.id == iid; });
        return found == interfaces.end() ? nullptr : &*found;
    }

    // Classes point into it.
    std::deque<PublicInterface> interfaces;
    std::vector<PublicClass> classes;

private:
    // The library declares each interface before the classes that have it.
    void AddClass(ITypeInfo* information, const TypeAttributes& attributes) {
        PublicClass added{
            NameOf(information), attributes->guid, (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) != 0, false, {}};
        for (UINT index = 0; index < attributes->cImplTypes; ++index) {
            HREFTYPE reference = 0;
            INT flags = 0;
            Check(information->GetRefTypeOfImplType(index, &reference));
            Check(information->GetImplTypeFlags(index, &flags));
            if (flags & IMPLTYPEFLAG_FSOURCE) {
                added.hasEvents = true;
            } else if (const auto* found = Find(TypeAttributes(Referred(information, reference).Get())->guid)) {
                added.interfaces.push_back(found);
            }
        }
        classes.push_back(std::move(added));
    }
};

const Library& TheLibrary() {
    static const Library library;
    return library;
}

}  // namespace

bool Member::IsResultObject() const {
    return !parameters.empty() && parameters.back().isResult &&
           (parameters.back().type == VT_DISPATCH || parameters.back().type == VT_UNKNOWN);
}

const std::vector<PublicClass>& PublicClasses() { return TheLibrary().classes; }

const PublicInterface* FindInterface(REFIID iid) { return TheLibrary().Find(iid); }

const PublicClass* ClassOf(IUnknown* object) {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> information;
    if (!object || FAILED(object->QueryInterface(IID_PPV_ARGS(provider.GetAddressOf())))) return nullptr;
    if (FAILED(provider->GetClassInfo(information.GetAddressOf()))) return nullptr;
    const GUID id = TypeAttributes(information.Get())->guid;
    const auto& classes = PublicClasses();
    const auto found = std::ranges::find_if(classes, [&](const auto& candidate) { return candidate.id == id; });
    return found == classes.end() ? nullptr : &*found;
}

}  // namespace fuzzing
