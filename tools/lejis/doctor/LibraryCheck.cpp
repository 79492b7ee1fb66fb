#include "doctor/LibraryCheck.h"

#include "library/DllFile.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "Version.h"

namespace lejis_client {
namespace {

constexpr const wchar_t* kNames[] = {L"32-bit library", L"64-bit library"};
constexpr wchar_t kUse[] = L"Library in use";

const wchar_t* NameOf(Bitness bitness) { return kNames[bitness == Bitness::k64]; }

std::wstring Bits(Bitness bitness) { return std::to_wstring(static_cast<int>(bitness)) + L"-bit"; }

const std::wstring& ProgramVersion() {
    static const std::string narrow = PUBLIC_VERSION;
    static const std::wstring version(narrow.begin(), narrow.end());
    return version;
}

// Many places have programs of one bitness alone.
Finding NotThere(Bitness bitness) {
    return {NameOf(bitness), Health::kOk, L"not registered; only " + Bits(bitness) + L" programs would need it", {}};
}

Finding CheckRegistration(Bitness bitness) {
    const auto file = RegisteredFile(bitness);
    if (!file) return NotThere(bitness);
    const auto version = VersionOf(*file);
    if (!version) {
        return {NameOf(bitness), Health::kFailed, L"registered, but there is no library at " + *file,
                L"Install or register the " + Bits(bitness) + L" library again."};
    }
    const std::wstring text = *version + L", " + *file;
    if (*version == ProgramVersion()) return {NameOf(bitness), Health::kOk, text, {}};
    return {NameOf(bitness), Health::kWarning, text,
            L"This lejis is of version " + ProgramVersion() + L"; install the library and lejis of one version."};
}

Finding CheckUse() {
    try {
        const std::wstring version = LibraryVersion();
        const std::wstring how = RegisteredFile(kOwnBitness) ? L"" : L", without registration, by a manifest";
        return {kUse, Health::kOk, version + L", " + LibraryFile() + how, {}};
    } catch (const NotRegistered&) {
        return {kUse, Health::kFailed, L"this lejis is a " + Bits(kOwnBitness) + L" program and finds no library",
                HowToRegister() + L"."};
    } catch (const LibraryError& error) {
        return {kUse, Health::kFailed, error.description, L"Install the library again."};
    }
}

}  // namespace

Findings CheckLibrary() {
    Findings findings;
    for (const Bitness bitness : {Bitness::k32, Bitness::k64}) {
        if (SystemHas(bitness)) findings.push_back(CheckRegistration(bitness));
    }
    findings.push_back(CheckUse());
    return findings;
}

}  // namespace lejis_client
