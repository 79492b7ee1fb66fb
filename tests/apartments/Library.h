#pragma once

#include <TVLejisCore.h>
#include <unknwn.h>
#include <windows.h>
#include <wrl/client.h>

namespace apartments {

using Microsoft::WRL::ComPtr;

// The DLL that LEJIS_LIBRARY names, held while this object lives. Nothing needs to be registered.
class Library {
public:
    Library();
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    // Whether the process still has the DLL.
    static bool IsLoaded();

    // Null when that fails.
    template <typename Class, typename Interface>
    ComPtr<Interface> Create() const {
        ComPtr<Interface> object;
        if (const ComPtr<IClassFactory> factory = FactoryOf(__uuidof(Class))) {
            factory->CreateInstance(nullptr, IID_PPV_ARGS(object.GetAddressOf()));
        }
        return object;
    }

    // What COM asks before it unloads the DLL.
    HRESULT CanUnloadNow() const;

private:
    ComPtr<IClassFactory> FactoryOf(REFCLSID classId) const;

    template <typename Function>
    Function* Export(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

    const HMODULE module_;
};

}  // namespace apartments
