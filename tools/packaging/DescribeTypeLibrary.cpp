// describe_type_library FILE: prints what registration needs to know of a type library, one line each, with tabs
// between
//
//     library    GUID VERSION FLAGS DESCRIPTION
//     class      GUID NAME DESCRIPTION              of each class that clients can create
//     interface  GUID NAME KIND                     dual or events, of each interface that automation marshals
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

using Microsoft::WRL::ComPtr;

void Check(HRESULT result) {
    if (SUCCEEDED(result)) return;
    std::fprintf(stderr, "describe_type_library: error 0x%08lX\n", static_cast<unsigned long>(result));
    std::exit(1);
}

void Print(const std::vector<std::wstring>& fields) {
    std::wstring line;
    for (const std::wstring& field : fields) line += (line.empty() ? L"" : L"\t") + field;
    const int length = static_cast<int>(line.size());
    std::string bytes(3 * line.size(), '\0');
    const int size = static_cast<int>(bytes.size());
    const int used = WideCharToMultiByte(CP_UTF8, 0, line.data(), length, bytes.data(), size, nullptr, nullptr);
    std::printf("%.*s\n", used, bytes.data());
}

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, ARRAYSIZE(text));
    return text;
}

std::wstring Take(BSTR text) {
    const std::wstring copy(text ? text : L"", SysStringLen(text));
    SysFreeString(text);
    return copy;
}

struct Names {
    std::wstring name, description;
};

Names NamesOf(ITypeLib* library, INT index) {
    BSTR name = nullptr;
    BSTR description = nullptr;
    Check(library->GetDocumentation(index, &name, &description, nullptr, nullptr));
    return {Take(name), Take(description)};
}

void PrintLibrary(ITypeLib* library) {
    TLIBATTR* attributes = nullptr;
    Check(library->GetLibAttr(&attributes));
    const std::wstring version =
        std::to_wstring(attributes->wMajorVerNum) + L"." + std::to_wstring(attributes->wMinorVerNum);
    Print({L"library", GuidText(attributes->guid), version, std::to_wstring(attributes->wLibFlags),
           NamesOf(library, -1).description});
    library->ReleaseTLibAttr(attributes);
}

void PrintType(const TYPEATTR& type, const Names& names) {
    if (type.typekind == TKIND_COCLASS && (type.wTypeFlags & TYPEFLAG_FCANCREATE)) {
        Print({L"class", GuidText(type.guid), names.name, names.description});
    } else if (type.typekind == TKIND_DISPATCH) {
        const bool isDual = type.wTypeFlags & TYPEFLAG_FDUAL;
        Print({L"interface", GuidText(type.guid), names.name, isDual ? L"dual" : L"events"});
    } else if (type.typekind == TKIND_INTERFACE && (type.wTypeFlags & TYPEFLAG_FOLEAUTOMATION)) {
        Print({L"interface", GuidText(type.guid), names.name, L"dual"});
    }
}

void PrintTypes(ITypeLib* library) {
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> information;
        TYPEATTR* attributes = nullptr;
        Check(library->GetTypeInfo(index, information.GetAddressOf()));
        Check(information->GetTypeAttr(&attributes));
        PrintType(*attributes, NamesOf(library, static_cast<INT>(index)));
        information->ReleaseTypeAttr(attributes);
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) return 64;
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(arguments[1], REGKIND_NONE, library.GetAddressOf()));
    PrintLibrary(library.Get());
    PrintTypes(library.Get());
    return 0;
}
