// One type of a type library, read into plain values.
#pragma once

#include "Library.h"

#include <oaidl.h>
#include <wrl/client.h>

namespace reference {

void Check(HRESULT result);

std::wstring GuidText(REFGUID guid);

struct Documentation {
    std::wstring name;
    std::wstring help;
};

class TypeReader {
public:
    explicit TypeReader(Microsoft::WRL::ComPtr<ITypeInfo> type);
    ~TypeReader();
    TypeReader(const TypeReader&) = delete;
    TypeReader& operator=(const TypeReader&) = delete;

    TYPEKIND Kind() const { return attributes_->typekind; }
    Interface ReadInterface() const;
    Class ReadClass() const;
    Enumeration ReadEnumeration() const;

private:
    Documentation DocumentationOf(MEMBERID member = MEMBERID_NIL) const;
    std::vector<Member> ReadMembers() const;
    Member ReadMember(const FUNCDESC& function) const;
    Value ReadValue(UINT index) const;
    std::wstring TypeName(const TYPEDESC& type) const;
    Microsoft::WRL::ComPtr<ITypeInfo> Referenced(HREFTYPE reference) const;
    // The description of a dual interface's table of functions, which names what each function really takes and
    // returns.
    Microsoft::WRL::ComPtr<ITypeInfo> VtableSide() const;

    Microsoft::WRL::ComPtr<ITypeInfo> type_;
    TYPEATTR* attributes_ = nullptr;
};

}  // namespace reference
