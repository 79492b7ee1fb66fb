#include "platform/com/Registration.h"

#include "platform/com/Module.h"
#include "platform/com/TypeLibrary.h"
#include "platform/ComError.h"
#include "platform/Registry.h"
#include "platform/Text.h"

#include <oleauto.h>

#include <vector>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

struct RegisteredClass {
    CLSID id;
    std::wstring name;
    std::wstring description;
};

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, ARRAYSIZE(text));
    return text;
}

TLIBATTR LibraryAttributes(ITypeLib* library) {
    TLIBATTR* attributes = nullptr;
    Check(library->GetLibAttr(&attributes));
    const TLIBATTR copy = *attributes;
    library->ReleaseTLibAttr(attributes);
    return copy;
}

std::vector<RegisteredClass> CreatableClasses(ITypeLib* library) {
    std::vector<RegisteredClass> classes;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> information;
        Check(library->GetTypeInfo(index, information.GetAddressOf()));
        const TypeAttributes type(information.Get());
        if (type->typekind != TKIND_COCLASS || !(type->wTypeFlags & TYPEFLAG_FCANCREATE)) continue;
        BSTR name = nullptr;
        BSTR description = nullptr;
        Check(information->GetDocumentation(MEMBERID_NIL, &name, &description, nullptr, nullptr));
        classes.push_back({type->guid, TakeText(name), TakeText(description)});
    }
    return classes;
}

std::wstring VersionText(const TLIBATTR& library) {
    return std::to_wstring(library.wMajorVerNum) + L"." + std::to_wstring(library.wMinorVerNum);
}

std::wstring ClassKey(const RegisteredClass& one) { return L"CLSID\\" + GuidText(one.id); }

void RegisterClassKeys(const RegisteredClass& one, const TLIBATTR& library) {
    const std::wstring progId = ProgIdOf(one.id);
    const std::wstring classKey = ClassKey(one);
    const struct {
        std::wstring key, value, text;
    } entries[] = {
        {classKey, L"", one.description},
        {classKey + L"\\InprocServer32", L"", module::Path()},
        {classKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {classKey + L"\\ProgID", L"", progId},
        {classKey + L"\\Programmable", L"", L""},
        {classKey + L"\\TypeLib", L"", GuidText(library.guid)},
        {classKey + L"\\Version", L"", VersionText(library)},
        {progId, L"", one.description},
        {progId + L"\\CLSID", L"", GuidText(one.id)},
    };
    for (const auto& entry : entries) WriteRegistryText(HKEY_CLASSES_ROOT, entry.key, entry.value, entry.text);
}

// The classes' keys are separate for each bitness, their ProgIDs are not.
bool OtherBitnessHas(const RegisteredClass& one) {
    const REGSAM other = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, ClassKey(one).c_str(), 0, KEY_READ | other, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

void UnregisterClassKeys(const RegisteredClass& one) {
    DeleteRegistryTree(HKEY_CLASSES_ROOT, ClassKey(one));
    if (!OtherBitnessHas(one)) DeleteRegistryTree(HKEY_CLASSES_ROOT, ProgIdOf(one.id));
}

// It is not a failure to unregister a library that is not registered; the platforms have three numbers for that.
bool IsNotRegistered(HRESULT result) {
    return result == TYPE_E_REGISTRYACCESS || result == TYPE_E_LIBNOTREGISTERED || result == E_INVALIDARG;
}

// Unregistering a type library removes its interfaces for both bitnesses. Where the other bitness is still registered,
// its own type library restores them.
void RegisterOtherBitnessAgain(const TLIBATTR& attributes) {
    const std::wstring key = L"TypeLib\\" + GuidText(attributes.guid) + L"\\" + VersionText(attributes) + L"\\0\\" +
                             (attributes.syskind == SYS_WIN64 ? L"win32" : L"win64");
    auto path = ReadRegistryText(HKEY_CLASSES_ROOT, key, L"");
    if (!path) return;
    ComPtr<ITypeLib> other;
    Check(LoadTypeLibEx(path->c_str(), REGKIND_NONE, other.GetAddressOf()));
    Check(RegisterTypeLib(other.Get(), path->data(), nullptr));
}

}  // namespace

void RegisterModule() {
    const ComPtr<ITypeLib> library = LoadModuleTypeLibrary();
    std::wstring path = module::Path();
    Check(RegisterTypeLib(library.Get(), path.data(), nullptr));
    const TLIBATTR attributes = LibraryAttributes(library.Get());
    for (const RegisteredClass& one : CreatableClasses(library.Get())) RegisterClassKeys(one, attributes);
}

void UnregisterModule() {
    const ComPtr<ITypeLib> library = LoadModuleTypeLibrary();
    for (const RegisteredClass& one : CreatableClasses(library.Get())) UnregisterClassKeys(one);
    const TLIBATTR attributes = LibraryAttributes(library.Get());
    const HRESULT result = UnRegisterTypeLib(attributes.guid, attributes.wMajorVerNum, attributes.wMinorVerNum,
                                             attributes.lcid, attributes.syskind);
    if (!IsNotRegistered(result)) Check(result);
    RegisterOtherBitnessAgain(attributes);
}

}  // namespace platform
