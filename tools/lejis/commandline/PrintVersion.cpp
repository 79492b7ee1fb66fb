#include "commandline/PrintVersion.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "Version.h"

namespace lejis_client {
namespace {

struct LibraryNames {
    std::wstring version;
    std::wstring file;
    std::optional<std::wstring> host;
};

// Nothing, and the reason, where there is no library that can be used.
std::optional<LibraryNames> NamesOfLibrary(std::wstring& reason) {
    try {
        const std::wstring version = LibraryVersion();
        return LibraryNames{version, LibraryFile(), LejisHost()};
    } catch (const NotRegistered&) {
        reason = HowToRegister();
    } catch (const LibraryError& error) {
        reason = L"TVLejisCore cannot be used: " + error.description;
    }
    return {};
}

Json JsonOf(const LibraryNames& library) {
    return {{"version", JsonText(library.version)},
            {"file", JsonText(library.file)},
            {"lejisHost", library.host ? JsonText(*library.host) : Json()}};
}

std::wstring TextOf(const LibraryNames& library) {
    return L"TVLejisCore " + library.version + L"\n" + library.file + L"\nLEJIS host: " +
           library.host.value_or(L"not named by this library");
}

}  // namespace

int PrintVersion(bool json) {
    std::wstring reason;
    const auto library = NamesOfLibrary(reason);
    if (json) {
        Json document = JsonDocument(L"version", kExitDone);
        document["lejis"] = PUBLIC_VERSION;
        document["library"] = library ? JsonOf(*library) : Json();
        Print(document);
    } else {
        Console::Output().Write(L"lejis " PUBLIC_VERSION L"\n" + (library ? TextOf(*library) : reason) + L"\n");
    }
    return kExitDone;
}

}  // namespace lejis_client
