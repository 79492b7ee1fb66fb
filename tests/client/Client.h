// What the tests of this folder share: the registered library as its clients reach it.
#pragma once

#include "support/ComCheck.h"

#include <oaidl.h>
#include <TVLejisCore.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>
#include <vector>

namespace client {

using Microsoft::WRL::ComPtr;

// A class that clients can create.
struct ClassRow {
    const wchar_t* name;
    const CLSID& id;
    const IID& defaultInterface;
};

const std::vector<ClassRow>& CreatableClasses();

// The error of a bad argument where no host suite is registered: the built-in number.
inline constexpr long kInvalidArgument = static_cast<long>(0x80040205);

std::wstring ProgIdOf(const std::wstring& className);
std::wstring GuidText(REFGUID guid);

// A new object by the name of its class.
ComPtr<IDispatch> CreateByName(const std::wstring& className);

// A new object by the identifier of its class.
template <typename Class, typename Interface>
ComPtr<Interface> Create() {
    ComPtr<Interface> object;
    EXPECT_OK(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

// The type library as it is registered.
REFGUID LibraryId();
ComPtr<ITypeLib> RegisteredTypeLibrary();

// The registered DLL, loaded as COM loads it.
class Module {
public:
    Module();
    ~Module();
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;

    HMODULE Handle() const { return handle_; }

    template <typename Function>
    Function* Export(const char* name) const {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }

private:
    HMODULE handle_;
};

// Where the registry says that the DLL is.
std::wstring RegisteredPath();

}  // namespace client
