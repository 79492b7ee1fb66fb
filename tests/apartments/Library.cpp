#include "apartments/Library.h"

#include <cstdlib>

namespace apartments {

Library::Library() : module_(LoadLibraryA(std::getenv("LEJIS_LIBRARY"))) {}

Library::~Library() { FreeLibrary(module_); }

bool Library::IsLoaded() { return GetModuleHandleW(L"TVLejisCore.dll") != nullptr; }

HRESULT Library::CanUnloadNow() const { return Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow")(); }

ComPtr<IClassFactory> Library::FactoryOf(REFCLSID classId) const {
    ComPtr<IClassFactory> factory;
    const auto getClassObject = Export<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject");
    getClassObject(classId, IID_PPV_ARGS(factory.GetAddressOf()));
    return factory;
}

}  // namespace apartments
