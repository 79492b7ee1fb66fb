#include "library/Library.h"

#include "library/DllFile.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "text/WindowsText.h"

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

constexpr wchar_t kLibraryName[] = L"TVLejisCore.dll";

std::wstring DescriptionOf(HRESULT result) {
    ComPtr<IErrorInfo> info;
    _bstr_t description;
    if (GetErrorInfo(0, &info) == S_OK) info->GetDescription(description.GetAddress());
    if (description.length() > 0) return Text(description);
    return L"Unexpected error " + Hexadecimal(result) + L": " + SystemMessage(static_cast<DWORD>(result));
}

std::wstring FileOfModule(HMODULE module) {
    std::wstring name(32768, L'\0');
    name.resize(GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

}  // namespace

void Check(HRESULT result) {
    if (FAILED(result)) throw LibraryError{result, DescriptionOf(result)};
}

ComPtr<IUnknown> CreateInstance(const CLSID& classId) {
    ComPtr<IUnknown> object;
    const HRESULT result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object));
    const bool fileIsGone = result == HRESULT_FROM_WIN32(ERROR_MOD_NOT_FOUND);
    if (result == REGDB_E_CLASSNOTREG || fileIsGone) throw NotRegistered();
    Check(result);
    return object;
}

std::wstring Text(const _bstr_t& text) { return {static_cast<const wchar_t*>(text), text.length()}; }

std::vector<std::wstring> Texts(ICollection* collection) {
    long count = 0;
    Check(collection->get_Count(&count));
    std::vector<std::wstring> texts;
    for (long index = 1; index <= count; ++index) {
        _variant_t item;
        Check(collection->get_Item(index, &item));
        texts.push_back(Text(_bstr_t(item)));
    }
    return texts;
}

std::wstring LibraryVersion() {
    const auto system = Create<LejisContributingSystem, ILejisContributingSystem>();
    _bstr_t version;
    Check(system->get_SystemVersion(version.GetAddress()));
    return Text(version);
}

std::wstring LibraryFile() { return FileOfModule(GetModuleHandleW(kLibraryName)); }

std::optional<std::wstring> LejisHost() { return LejisHostOf(LibraryFile()); }

std::wstring HowToRegister() {
    const std::wstring program = FileOfModule(nullptr);
    std::wstring library = program.substr(0, program.find_last_of(L'\\') + 1) + kLibraryName;
    if (!FileExists(library)) library = kLibraryName;
    // On a 64-bit Windows each bitness has programs and registrations of its own.
    const std::wstring bits = sizeof(void*) == 8 ? L"64" : L"32";
    BOOL underWow64 = FALSE;
    IsWow64Process(GetCurrentProcess(), &underWow64);
    const std::wstring tool = underWow64 ? L"C:\\Windows\\SysWOW64\\regsvr32.exe" : L"regsvr32";
    const auto registered = RegisteredFile(kOwnBitness);
    const std::wstring what =
        registered ? L"TVLejisCore cannot be loaded for " + bits + L"-bit programs from where it is registered, " +
                         *registered + L"; register it again"
                   : L"TVLejisCore is not registered for " + bits + L"-bit programs here; register it once";
    return what + L", as administrator, with: " + tool + L" \"" + library + L"\"";
}

}  // namespace lejis_client
