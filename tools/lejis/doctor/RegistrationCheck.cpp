#include "doctor/RegistrationCheck.h"

#include "library/DllFile.h"
#include "Version.h"

namespace lejis_client {
namespace {

constexpr const wchar_t* kLibraryNames[] = {L"32-bit library", L"64-bit library"};

const std::wstring& ProgramVersion() {
    static const std::string narrow = PUBLIC_VERSION;
    static const std::wstring version(narrow.begin(), narrow.end());
    return version;
}

// Many places have programs of one bitness alone, but the suite is one of 32 bits.
Finding NotThere(Bitness bitness) {
    if (bitness == Bitness::k32 && RegisteredFile(Bitness::k64)) {
        return {LibraryNameOf(bitness), Health::kWarning,
                L"not registered, though the 64-bit one is: the suite is a 32-bit program and finds no library",
                L"Install the x86 package where the suite runs."};
    }
    return {
        LibraryNameOf(bitness), Health::kOk, L"not registered; only " + Bits(bitness) + L" programs would need it", {}};
}

Finding Failed(Bitness bitness, const std::wstring& text) {
    return {LibraryNameOf(bitness), Health::kFailed, text, InstallAgain(bitness)};
}

Finding CheckFile(Bitness bitness, const std::wstring& file) {
    if (!FileExists(file)) return Failed(bitness, L"registered, but there is no file " + file);
    const auto found = BitnessOf(file);
    const auto version = VersionOf(file);
    if (!found || !version) return Failed(bitness, L"registered, but this is no library: " + file);
    if (*found != bitness) {
        return Failed(bitness, L"the registered library is a " + Bits(*found) + L" one, which no " + Bits(bitness) +
                                   L" program can load: " + file);
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

const wchar_t* LibraryNameOf(Bitness bitness) { return kLibraryNames[bitness == Bitness::k64]; }

Finding CheckRegistration(Bitness bitness) {
    const auto file = RegisteredFile(bitness);
    return file ? CheckFile(bitness, *file) : NotThere(bitness);
}

}  // namespace lejis_client
