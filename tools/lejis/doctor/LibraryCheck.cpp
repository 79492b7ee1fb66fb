#include "doctor/LibraryCheck.h"

#include "doctor/ClassCheck.h"
#include "doctor/RegistrationCheck.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "library/PlaceholderHost.h"

#include <map>
#include <memory>

namespace lejis_client {
namespace {

constexpr wchar_t kUse[] = L"Library in use";
constexpr wchar_t kHost[] = L"LEJIS host";

struct LibraryInUse {
    std::wstring file;
    std::optional<std::wstring> lejisHost;
};

Finding CheckUse(LibraryInUse& library) {
    try {
        const std::wstring version = LibraryVersion();
        library = {LibraryFile(), LejisHost()};
        const std::wstring how = RegisteredFile(kOwnBitness) ? L"" : L", without registration, by a manifest";
        return {kUse, Health::kOk, version + L", " + library.file + how, {}};
    } catch (const NotRegistered&) {
        if (RegisteredFile(kOwnBitness)) {
            return {kUse, Health::kFailed, L"the registered library cannot be used", InstallAgain(kOwnBitness)};
        }
        return {kUse, Health::kFailed, L"this lejis is a " + Bits(kOwnBitness) + L" program and finds no library",
                HowToRegister() + L"."};
    } catch (const LibraryError& error) {
        return {kUse, Health::kFailed, error.description, L"Install the library again."};
    }
}

Finding HostOf(const LibraryInUse& library) {
    if (!library.lejisHost) {
        return {kHost, Health::kWarning, L"this library does not name the host that it is made for",
                L"Install the library and lejis of one version."};
    }
    const std::wstring& host = *library.lejisHost;
    if (host != LEJIS_HOST) {
        return {kHost, Health::kWarning,
                host + L", but this lejis is made for " LEJIS_HOST L" and reads its files alone",
                L"Install the library and lejis of one package."};
    }
    if (!IsPlaceholderHost(host)) return {kHost, Health::kOk, host, {}};
    return {kHost, Health::kWarning, host + L", which stands for no LEJIS: only a simulator takes its requests",
            L"Install the library that is made for your LEJIS."};
}

// Another finding has told why the library cannot be used.
Finding WithoutReason(const Finding& finding, bool isTold) {
    return finding.health == Health::kFailed && isTold ? Unseen(finding.subject) : finding;
}

void ExamineClasses(Bitness bitness, const std::wstring& file, Diagnosis& diagnosis) {
    diagnosis.Examine(Late(ClassesNameOf(bitness)), [=] { return CheckClasses(bitness, file); });
}

}  // namespace

std::optional<std::wstring> CheckLibrary(Diagnosis& diagnosis) {
    std::map<Bitness, Health> registrations;
    for (const Bitness bitness : {Bitness::k32, Bitness::k64}) {
        if (!SystemHas(bitness)) continue;
        const auto check = [=] { return CheckRegistration(bitness); };
        registrations[bitness] = diagnosis.Examine(Late(LibraryNameOf(bitness)), check);
    }
    const bool isTold = registrations[kOwnBitness] == Health::kFailed;
    const auto library = std::make_shared<LibraryInUse>();
    const auto checkUse = [=] { return WithoutReason(CheckUse(*library), isTold); };
    const bool isUsed = diagnosis.Examine(Late(kUse), checkUse) == Health::kOk;

    for (const auto& [bitness, health] : registrations) {
        const bool isInUse = isUsed && bitness == kOwnBitness;
        const auto file = isInUse ? std::optional(library->file) : RegisteredFile(bitness);
        if (file && (isInUse || health != Health::kFailed)) ExamineClasses(bitness, *file, diagnosis);
    }
    diagnosis.Add(isUsed ? HostOf(*library) : Unseen(kHost));
    return isUsed ? library->lejisHost : std::nullopt;
}

}  // namespace lejis_client
