// registration_free_client WORD: an early-bound program that knows the library by a manifest alone. Ends with 0 when
// what the word stands for works:
//
//     name     makes an object by the name of its class
//     object   makes an object by its identifier, and uses it
//     proxy    the same from a multithreaded apartment, where it gets a proxy
//     library  loads the type library by its identifier
#include <TVLejisCore.h>
#include <windows.h>
#include <wrl/client.h>

#include <comutil.h>

#include <cstring>

namespace {

using Microsoft::WRL::ComPtr;

bool CreatesByName() {
    // Where a manifest names the class, its identifier is not the class's own but one made up for the name.
    CLSID id = GUID_NULL;
    ComPtr<ILejisPersonIndexCard> person;
    return SUCCEEDED(CLSIDFromProgID(L"TVLejisCore.LejisPersonIndexCard", &id)) &&
           SUCCEEDED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(person.GetAddressOf())));
}

bool LoadsTypeLibrary() {
    GUID id = GUID_NULL;
    IIDFromString(L"{458BB764-060D-401D-BF22-1AC883769CB8}", &id);
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> person;
    return SUCCEEDED(LoadRegTypeLib(id, 1, 0, LOCALE_NEUTRAL, library.GetAddressOf())) &&
           SUCCEEDED(library->GetTypeInfoOfGuid(__uuidof(LejisPersonIndexCard), person.GetAddressOf()));
}

bool UsesObject() {
    ComPtr<ILejisPersonIndexCard> person;
    _bstr_t name;
    return SUCCEEDED(CoCreateInstance(__uuidof(LejisPersonIndexCard), nullptr, CLSCTX_INPROC_SERVER,
                                      IID_PPV_ARGS(person.GetAddressOf()))) &&
           SUCCEEDED(person->put_SurName(_bstr_t(L"PUBLIC"))) && SUCCEEDED(person->get_SurName(name.GetAddress())) &&
           name == _bstr_t(L"PUBLIC");
}

struct Row {
    const char* word;
    DWORD apartment;
    bool (*works)();
};

constexpr Row kRows[] = {
    {"name", COINIT_APARTMENTTHREADED, CreatesByName},
    {"object", COINIT_APARTMENTTHREADED, UsesObject},
    // The library's objects live in single-threaded apartments.
    {"proxy", COINIT_MULTITHREADED, UsesObject},
    {"library", COINIT_APARTMENTTHREADED, LoadsTypeLibrary},
};

}  // namespace

int main(int count, char** arguments) {
    for (const Row& row : kRows) {
        if (count != 2 || std::strcmp(row.word, arguments[1]) != 0) continue;
        CoInitializeEx(nullptr, row.apartment);
        const bool works = row.works();
        CoUninitialize();
        return works ? 0 : 1;
    }
    return 64;
}
