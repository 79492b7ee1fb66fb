#include "doctor/RegistrationCheck.h"

#include "library/DllFile.h"
#include "Version.h"

namespace lejis_client {
namespace {

constexpr const wchar_t* kNames[] = {L"32-bit library", L"64-bit library"};

const std::wstring& ProgramVersion() {
    static const std::string narrow = PUBLIC_VERSION;
    static const std::wstring version(narrow.begin(), narrow.end());
    return version;
}

// Many places have programs of one bitness alone.
Finding NotThere(Bitness bitness) {
    return {
        LibraryNameOf(bitness), Health::kOk, L"not registered; only " + Bits(bitness) + L" programs would need it", {}};
}

Finding CheckFile(Bitness bitness, const std::wstring& file) {
    const auto version = VersionOf(file);
    if (!version) {
        return {LibraryNameOf(bitness), Health::kFailed, L"registered, but there is no library at " + file,
                InstallAgain(bitness)};
    }
    const std::wstring host = LejisHostOf(file).value_or(L"");
    const std::wstring text = *version + (host.empty() ? L"" : L" for " + host) + L", " + file;
    if (*version == ProgramVersion()) return {LibraryNameOf(bitness), Health::kOk, text, {}};
    return {LibraryNameOf(bitness), Health::kWarning, text,
            L"This lejis is of version " + ProgramVersion() + L"; install the library and lejis of one version."};
}

}  // namespace

std::wstring Bits(Bitness bitness) { return std::to_wstring(static_cast<int>(bitness)) + L"-bit"; }

std::wstring InstallAgain(Bitness bitness) { return L"Install or register the " + Bits(bitness) + L" library again."; }

const wchar_t* LibraryNameOf(Bitness bitness) { return kNames[bitness == Bitness::k64]; }

Finding CheckRegistration(Bitness bitness) {
    const auto file = RegisteredFile(bitness);
    return file ? CheckFile(bitness, *file) : NotThere(bitness);
}

}  // namespace lejis_client
