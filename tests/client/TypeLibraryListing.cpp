#include "client/TypeLibraryListing.h"

#include "client/Client.h"

#include <initializer_list>
#include <map>

namespace client {
namespace {

struct Flag {
    unsigned bit;
    const wchar_t* name;
};

std::wstring FlagsText(unsigned flags, std::initializer_list<Flag> known) {
    std::wstring text;
    for (const Flag& flag : known) {
        if (!(flags & flag.bit)) continue;
        if (!text.empty()) text += L", ";
        text += flag.name;
        flags &= ~flag.bit;
    }
    // Nothing is passed over: an unknown flag shows as its number.
    if (flags != 0) text += (text.empty() ? L"" : L", ") + std::to_wstring(flags);
    return text;
}

std::wstring ListedName(ITypeInfo* type, MEMBERID member = MEMBERID_NIL) {
    BSTR name = nullptr;
    EXPECT_OK(type->GetDocumentation(member, &name, nullptr, nullptr, nullptr));
    return support::Take(name);
}

std::wstring HelpMark(ITypeInfo* type, MEMBERID member = MEMBERID_NIL) {
    BSTR help = nullptr;
    EXPECT_OK(type->GetDocumentation(member, nullptr, &help, nullptr, nullptr));
    return support::Take(help).empty() ? L" [no help]" : L"";
}

std::wstring SimpleTypeText(VARTYPE type) {
    static const std::map<VARTYPE, std::wstring> names = {
        {VT_I2, L"short"},        {VT_I4, L"long"},           {VT_R8, L"double"},
        {VT_DATE, L"DATE"},       {VT_BSTR, L"BSTR"},         {VT_BOOL, L"BOOL"},
        {VT_VARIANT, L"VARIANT"}, {VT_VOID, L"void"},         {VT_DISPATCH, L"IDispatch*"},
        {VT_INT, L"int"},         {VT_UNKNOWN, L"IUnknown*"}, {VT_HRESULT, L"HRESULT"},
    };
    const auto found = names.find(type);
    return found == names.end() ? L"type " + std::to_wstring(type) : found->second;
}

std::wstring TypeText(ITypeInfo* type, const TYPEDESC& described) {
    if (described.vt == VT_PTR) return TypeText(type, *described.lptdesc) + L"*";
    if (described.vt != VT_USERDEFINED) return SimpleTypeText(described.vt);
    ComPtr<ITypeInfo> referenced;
    EXPECT_OK(type->GetRefTypeInfo(described.hreftype, referenced.GetAddressOf()));
    return ListedName(referenced.Get());
}

std::wstring ParameterText(ITypeInfo* type, const ELEMDESC& parameter, const std::wstring& name) {
    const std::wstring flags = FlagsText(parameter.paramdesc.wParamFlags, {{PARAMFLAG_FIN, L"in"},
                                                                           {PARAMFLAG_FOUT, L"out"},
                                                                           {PARAMFLAG_FRETVAL, L"retval"},
                                                                           {PARAMFLAG_FOPT, L"optional"},
                                                                           {PARAMFLAG_FHASDEFAULT, L"default"}});
    return L"[" + flags + L"] " + TypeText(type, parameter.tdesc) + (name.empty() ? L"" : L" " + name);
}

std::wstring KindText(INVOKEKIND kind) {
    return FlagsText(kind, {{INVOKE_FUNC, L"method"},
                            {INVOKE_PROPERTYGET, L"get"},
                            {INVOKE_PROPERTYPUT, L"put"},
                            {INVOKE_PROPERTYPUTREF, L"putref"}});
}

std::wstring FunctionFlagsText(unsigned flags) {
    const std::wstring text = FlagsText(flags, {{FUNCFLAG_FRESTRICTED, L"restricted"}, {FUNCFLAG_FHIDDEN, L"hidden"}});
    return text.empty() ? L"" : L" <" + text + L">";
}

std::wstring FunctionText(ITypeInfo* type, const FUNCDESC& function) {
    BSTR names[16] = {};
    UINT count = 0;
    EXPECT_OK(type->GetNames(function.memid, names, ARRAYSIZE(names), &count));
    // The names belong to the first function of this number; what a property is set to has none.
    const bool named = !(function.invkind & (INVOKE_PROPERTYPUT | INVOKE_PROPERTYPUTREF));
    std::wstring text = L"    " + std::to_wstring(function.memid) + L" " + KindText(function.invkind) + L" ";
    text += TypeText(type, function.elemdescFunc.tdesc) + L" " + names[0] + L"(";
    for (UINT index = 0; index < static_cast<UINT>(function.cParams); ++index) {
        const std::wstring name = named && index + 1 < count ? names[index + 1] : L"";
        if (index > 0) text += L", ";
        text += ParameterText(type, function.lprgelemdescParam[index], name);
    }
    for (UINT index = 0; index < count; ++index) SysFreeString(names[index]);
    text += L")" + FunctionFlagsText(function.wFuncFlags);
    // The place in the table of functions, counted in functions; events have none.
    if (function.oVft != 0) text += L" slot " + std::to_wstring(static_cast<size_t>(function.oVft) / sizeof(void*));
    return text + HelpMark(type, function.memid) + L"\n";
}

std::wstring FunctionsText(ITypeInfo* type, const TYPEATTR& attributes) {
    std::wstring text;
    for (UINT index = 0; index < attributes.cFuncs; ++index) {
        FUNCDESC* function = nullptr;
        EXPECT_OK(type->GetFuncDesc(index, &function));
        text += FunctionText(type, *function);
        type->ReleaseFuncDesc(function);
    }
    return text;
}

std::wstring ValuesText(ITypeInfo* type, const TYPEATTR& attributes) {
    std::wstring text;
    for (UINT index = 0; index < attributes.cVars; ++index) {
        VARDESC* variable = nullptr;
        EXPECT_OK(type->GetVarDesc(index, &variable));
        const VARIANT& value = *variable->lpvarValue;
        text += L"    " + ListedName(type, variable->memid) + L" = " + std::to_wstring(V_I4(&value)) + L" " +
                SimpleTypeText(V_VT(&value)) + L"\n";
        type->ReleaseVarDesc(variable);
    }
    return text;
}

std::wstring ImplementedText(ITypeInfo* type, const TYPEATTR& attributes) {
    std::wstring text;
    for (UINT index = 0; index < attributes.cImplTypes; ++index) {
        HREFTYPE reference = 0;
        INT flags = 0;
        ComPtr<ITypeInfo> implemented;
        EXPECT_OK(type->GetRefTypeOfImplType(index, &reference));
        EXPECT_OK(type->GetRefTypeInfo(reference, implemented.GetAddressOf()));
        EXPECT_OK(type->GetImplTypeFlags(index, &flags));
        const std::wstring marks = FlagsText(static_cast<unsigned>(flags),
                                             {{IMPLTYPEFLAG_FDEFAULT, L"default"}, {IMPLTYPEFLAG_FSOURCE, L"source"}});
        text += L"    [" + marks + L"] " + ListedName(implemented.Get()) + L"\n";
    }
    return text;
}

std::wstring TypeFlagsText(unsigned flags) {
    return FlagsText(flags, {{TYPEFLAG_FCANCREATE, L"creatable"},
                             {TYPEFLAG_FDUAL, L"dual"},
                             {TYPEFLAG_FOLEAUTOMATION, L"oleautomation"},
                             {TYPEFLAG_FDISPATCHABLE, L"dispatchable"},
                             {TYPEFLAG_FHIDDEN, L"hidden"}});
}

std::wstring HeadText(const wchar_t* kind, ITypeInfo* type, const TYPEATTR& attributes) {
    return std::wstring(kind) + L" " + ListedName(type) + L" " + GuidText(attributes.guid) + L" <" +
           TypeFlagsText(attributes.wTypeFlags) + L">" + HelpMark(type) + L"\n";
}

// The part of a dual interface that describes its table of functions.
ComPtr<ITypeInfo> VtableSide(ITypeInfo* type) {
    HREFTYPE reference = 0;
    ComPtr<ITypeInfo> side;
    // -1 asks for the other side of a dual interface.
    EXPECT_OK(type->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    EXPECT_OK(type->GetRefTypeInfo(reference, side.GetAddressOf()));
    return side;
}

// The attribute of automation shows on the side of the table only.
std::wstring DualText(ITypeInfo* type) {
    const ComPtr<ITypeInfo> side = VtableSide(type);
    TYPEATTR* sideAttributes = nullptr;
    EXPECT_OK(side->GetTypeAttr(&sideAttributes));
    const std::wstring text =
        HeadText(L"interface", type, *sideAttributes) + FunctionsText(side.Get(), *sideAttributes);
    side->ReleaseTypeAttr(sideAttributes);
    return text;
}

std::wstring TypeInfoText(ITypeInfo* type, const TYPEATTR& attributes) {
    switch (attributes.typekind) {
        case TKIND_DISPATCH:
            if (attributes.wTypeFlags & TYPEFLAG_FDUAL) return DualText(type);
            return HeadText(L"dispinterface", type, attributes) + FunctionsText(type, attributes);
        case TKIND_COCLASS:
            return HeadText(L"coclass", type, attributes) + ImplementedText(type, attributes);
        case TKIND_ENUM:
            return HeadText(L"enum", type, attributes) + ValuesText(type, attributes);
        case TKIND_ALIAS:
            return HeadText(L"alias", type, attributes);
        default:
            return HeadText(L"other", type, attributes) + FunctionsText(type, attributes);
    }
}

std::wstring LibraryHead(ITypeLib* library) {
    TLIBATTR* attributes = nullptr;
    BSTR name = nullptr;
    BSTR help = nullptr;
    EXPECT_OK(library->GetLibAttr(&attributes));
    EXPECT_OK(library->GetDocumentation(-1, &name, &help, nullptr, nullptr));
    const std::wstring text = L"library " + support::Take(name) + L" " + GuidText(attributes->guid) + L" " +
                              std::to_wstring(attributes->wMajorVerNum) + L"." +
                              std::to_wstring(attributes->wMinorVerNum) + L" \"" + support::Take(help) + L"\"\n";
    library->ReleaseTLibAttr(attributes);
    return text;
}

}  // namespace

std::wstring List(ITypeLib* library) {
    std::wstring text = LibraryHead(library);
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        TYPEATTR* attributes = nullptr;
        EXPECT_OK(library->GetTypeInfo(index, type.GetAddressOf()));
        EXPECT_OK(type->GetTypeAttr(&attributes));
        text += L"\n" + TypeInfoText(type.Get(), *attributes);
        type->ReleaseTypeAttr(attributes);
    }
    return text;
}

}  // namespace client
