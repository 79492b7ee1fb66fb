// The registered library, as a client meets it.
#pragma once

#include <comutil.h>
#include <TVLejisCore.h>
#include <windows.h>
#include <wrl/client.h>

#include <optional>
#include <string>
#include <vector>

namespace lejis_client {

// Raises a LibraryError with what the library says about its failure.
void Check(HRESULT result);

// Raises NotRegistered where there is no library.
Microsoft::WRL::ComPtr<IUnknown> CreateInstance(const CLSID& classId);

template <typename Class, typename Interface>
Microsoft::WRL::ComPtr<Interface> Create() {
    Microsoft::WRL::ComPtr<Interface> object;
    Check(CreateInstance(__uuidof(Class)).As(&object));
    return object;
}

std::wstring Text(const _bstr_t& text);

// The texts of a collection, in its order.
std::vector<std::wstring> Texts(ICollection* collection);

std::wstring LibraryVersion();
// Where the library was found; it must have been used before.
std::wstring LibraryFile();
// The LEJIS host that it was made for; nothing when it does not name one. It must have been used before.
std::optional<std::wstring> LejisHost();
// How to register it, in one sentence.
std::wstring HowToRegister();

}  // namespace lejis_client
