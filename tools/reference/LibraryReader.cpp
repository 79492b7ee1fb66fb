#include "LibraryReader.h"

#include "TypeReader.h"

#include <comutil.h>

#include <stdexcept>

using Microsoft::WRL::ComPtr;

namespace reference {
namespace {

Library ReadHead(ITypeLib* typeLibrary) {
    _bstr_t name;
    _bstr_t help;
    TLIBATTR* attributes = nullptr;
    Check(typeLibrary->GetDocumentation(-1, name.GetAddress(), help.GetAddress(), nullptr, nullptr));
    Check(typeLibrary->GetLibAttr(&attributes));
    Library library{std::wstring(name),
                    GuidText(attributes->guid),
                    std::wstring(help),
                    std::to_wstring(attributes->wMajorVerNum) + L"." + std::to_wstring(attributes->wMinorVerNum),
                    {},
                    {},
                    {}};
    typeLibrary->ReleaseTLibAttr(attributes);
    return library;
}

void ReadType(const TypeReader& type, Library& library) {
    switch (type.Kind()) {
        case TKIND_DISPATCH: {
            const Interface read = type.ReadInterface();
            library.interfaces[read.name] = read;
            break;
        }
        case TKIND_COCLASS:
            library.classes.push_back(type.ReadClass());
            break;
        case TKIND_ENUM:
            library.enumerations.push_back(type.ReadEnumeration());
            break;
        default:
            throw std::runtime_error("a kind of type that the reference has no page for: " +
                                     std::to_string(type.Kind()));
    }
}

}  // namespace

Library ReadLibrary(const std::wstring& path) {
    ComPtr<ITypeLib> typeLibrary;
    Check(LoadTypeLibEx(path.c_str(), REGKIND_NONE, typeLibrary.GetAddressOf()));
    Library library = ReadHead(typeLibrary.Get());
    for (UINT index = 0; index < typeLibrary->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        Check(typeLibrary->GetTypeInfo(index, type.GetAddressOf()));
        ReadType(TypeReader(type), library);
    }
    return library;
}

}  // namespace reference
