#include "TypeReader.h"

#include <comutil.h>

#include <map>
#include <stdexcept>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace reference {
namespace {

std::wstring Text(const _bstr_t& text) { return text.length() ? std::wstring(text, text.length()) : std::wstring(); }

std::wstring SimpleTypeName(VARTYPE type) {
    static const std::map<VARTYPE, std::wstring> names = {
        {VT_I2, L"Integer"}, {VT_I4, L"Long"},         {VT_BSTR, L"String"},     {VT_BOOL, L"Boolean"},
        {VT_DATE, L"Date"},  {VT_VARIANT, L"Variant"}, {VT_DISPATCH, L"Object"}, {VT_UNKNOWN, L"IUnknown"},
        {VT_VOID, L""},      {VT_HRESULT, L""},
    };
    const auto found = names.find(type);
    if (found == names.end()) throw std::runtime_error("no name for the type " + std::to_string(type));
    return found->second;
}

// All names of a member: its own, then those of its parameters as far as they have some.
std::vector<std::wstring> NamesOf(ITypeInfo* type, MEMBERID member) {
    BSTR names[16] = {};
    UINT count = 0;
    Check(type->GetNames(member, names, ARRAYSIZE(names), &count));
    std::vector<std::wstring> texts;
    for (UINT index = 0; index < count; ++index) texts.push_back(Text(_bstr_t(names[index], false)));
    return texts;
}

// A property has one function to read it and one to set it; clients see one member.
void MergeInto(std::vector<Member>& members, Member member) {
    if (!members.empty() && member.kind == Member::Kind::kProperty && members.back().name == member.name) {
        members.back().readable |= member.readable;
        members.back().writable |= member.writable;
    } else {
        members.push_back(std::move(member));
    }
}

}  // namespace

void Check(HRESULT result) {
    if (FAILED(result)) throw std::runtime_error("the type library cannot be read: error " + std::to_string(result));
}

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, ARRAYSIZE(text));
    return text;
}

TypeReader::TypeReader(ComPtr<ITypeInfo> type) : type_(std::move(type)) { Check(type_->GetTypeAttr(&attributes_)); }

TypeReader::~TypeReader() { type_->ReleaseTypeAttr(attributes_); }

Documentation TypeReader::DocumentationOf(MEMBERID member) const {
    _bstr_t name;
    _bstr_t help;
    Check(type_->GetDocumentation(member, name.GetAddress(), help.GetAddress(), nullptr, nullptr));
    return {Text(name), Text(help)};
}

Interface TypeReader::ReadInterface() const {
    const auto [name, help] = DocumentationOf();
    const bool dual = attributes_->wTypeFlags & TYPEFLAG_FDUAL;
    return {name, GuidText(attributes_->guid), help, dual ? TypeReader(VtableSide()).ReadMembers() : ReadMembers()};
}

std::vector<Member> TypeReader::ReadMembers() const {
    std::vector<Member> members;
    for (UINT index = 0; index < attributes_->cFuncs; ++index) {
        FUNCDESC* function = nullptr;
        Check(type_->GetFuncDesc(index, &function));
        MergeInto(members, ReadMember(*function));
        type_->ReleaseFuncDesc(function);
    }
    return members;
}

Member TypeReader::ReadMember(const FUNCDESC& function) const {
    const auto [name, help] = DocumentationOf(function.memid);
    Member member;
    member.name = name;
    member.help = help;
    member.number = function.memid;
    member.kind = function.invkind == INVOKE_FUNC ? Member::Kind::kMethod : Member::Kind::kProperty;
    member.readable = function.invkind == INVOKE_PROPERTYGET;
    member.writable = function.invkind == INVOKE_PROPERTYPUT;
    member.hidden = function.wFuncFlags & FUNCFLAG_FHIDDEN;
    member.type = TypeName(function.elemdescFunc.tdesc);
    const std::vector<std::wstring> names = NamesOf(type_.Get(), function.memid);
    for (size_t index = 0; index < static_cast<size_t>(function.cParams); ++index) {
        const ELEMDESC& parameter = function.lprgelemdescParam[index];
        if (parameter.paramdesc.wParamFlags & PARAMFLAG_FRETVAL) {
            member.type = TypeName(*parameter.tdesc.lptdesc);
        } else if (!member.writable) {
            // What a property is set to has no name of its own, and its type is the property's.
            member.parameters.push_back({names.at(index + 1), TypeName(parameter.tdesc)});
        }
    }
    return member;
}

Class TypeReader::ReadClass() const {
    const auto [name, help] = DocumentationOf();
    Class read{name, GuidText(attributes_->guid), help, (attributes_->wTypeFlags & TYPEFLAG_FCANCREATE) != 0, {}, {},
               {}};
    for (UINT index = 0; index < attributes_->cImplTypes; ++index) {
        HREFTYPE reference = 0;
        INT flags = 0;
        Check(type_->GetRefTypeOfImplType(index, &reference));
        Check(type_->GetImplTypeFlags(index, &flags));
        const std::wstring implemented = TypeReader(Referenced(reference)).DocumentationOf().name;
        if (flags & IMPLTYPEFLAG_FSOURCE) {
            read.events = implemented;
        } else if (flags & IMPLTYPEFLAG_FDEFAULT) {
            read.defaultInterface = implemented;
        } else {
            read.otherInterfaces.push_back(implemented);
        }
    }
    return read;
}

Enumeration TypeReader::ReadEnumeration() const {
    const auto [name, help] = DocumentationOf();
    Enumeration read{name, help, {}};
    for (UINT index = 0; index < attributes_->cVars; ++index) read.values.push_back(ReadValue(index));
    return read;
}

Value TypeReader::ReadValue(UINT index) const {
    VARDESC* variable = nullptr;
    Check(type_->GetVarDesc(index, &variable));
    const MEMBERID number = variable->memid;
    const long value = V_I4(variable->lpvarValue);
    type_->ReleaseVarDesc(variable);
    return {DocumentationOf(number).name, value};
}

std::wstring TypeReader::TypeName(const TYPEDESC& type) const {
    if (type.vt == VT_PTR) return TypeName(*type.lptdesc);
    if (type.vt != VT_USERDEFINED) return SimpleTypeName(type.vt);
    return TypeReader(Referenced(type.hreftype)).DocumentationOf().name;
}

ComPtr<ITypeInfo> TypeReader::Referenced(HREFTYPE reference) const {
    ComPtr<ITypeInfo> referenced;
    Check(type_->GetRefTypeInfo(reference, referenced.GetAddressOf()));
    return referenced;
}

ComPtr<ITypeInfo> TypeReader::VtableSide() const {
    HREFTYPE reference = 0;
    // -1 asks for the other side of a dual interface.
    Check(type_->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    return Referenced(reference);
}

}  // namespace reference
