// lejis: checks incidents, submits them to LEJIS, withdraws them and searches for them, through the registered library.
#include "commandline/CommandLine.h"
#include "commandline/Help.h"
#include "commandline/UsageError.h"
#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "doctor/Doctor.h"
#include "files/FileError.h"
#include "incidents/IncidentRun.h"
#include "incidents/LedgerSummary.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "platform/ComError.h"
#include "search/Search.h"
#include "show/Show.h"
#include "text/WindowsText.h"
#include "Version.h"

#include <comdef.h>
#include <shellapi.h>

namespace lejis_client {
namespace {

int PrintHelp(const CommandLine& commandLine) {
    const std::wstring text = commandLine.command ? commandLine.command->help : kGeneralHelp;
    if (commandLine.json) {
        Json document = JsonDocument(L"help", kExitDone);
        document["text"] = JsonText(text);
        Print(document);
    } else {
        Console::Output().Write(text);
    }
    return kExitDone;
}

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

int PrintVersion(const CommandLine& commandLine) {
    std::wstring reason;
    const auto library = NamesOfLibrary(reason);
    if (commandLine.json) {
        Json document = JsonDocument(L"version", kExitDone);
        document["lejis"] = PUBLIC_VERSION;
        document["library"] = library ? JsonOf(*library) : Json();
        Print(document);
    } else {
        Console::Output().Write(L"lejis " PUBLIC_VERSION L"\n" + (library ? TextOf(*library) : reason) + L"\n");
    }
    return kExitDone;
}

int Run(const CommandLine& commandLine) {
    if (commandLine.help) return PrintHelp(commandLine);
    if (commandLine.version) return PrintVersion(commandLine);
    switch (commandLine.command->action) {
        case Action::Show:
            return Show(commandLine);
        case Action::Ledger:
            return SumUpLedger(commandLine);
        case Action::Search:
            return Search(commandLine);
        case Action::Doctor:
            return Diagnose(commandLine);
        default:
            return RunOnIncidents(commandLine);
    }
}

std::vector<std::wstring> Arguments() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result(arguments + 1, arguments + count);
    LocalFree(arguments);
    return result;
}

// The program's end without having done anything.
struct Refusal {
    const wchar_t* kind;
    int exitCode;
    std::wstring message;
    std::wstring hint;
};

int Complain(const std::vector<std::wstring>& arguments, const Refusal& refusal) {
    if (CommandLine::AsksForJson(arguments)) {
        const Command* const command = FindCommand(arguments.front());
        const auto name = command ? std::optional<std::wstring>(command->name) : std::nullopt;
        Json document = JsonDocument(name, refusal.exitCode);
        SetError(document, refusal.kind, refusal.message);
        PrintLine(document);
    } else {
        Console::Errors().Write(L"lejis: " + refusal.message + L"\n" + refusal.hint);
    }
    return refusal.exitCode;
}

Refusal RefusalOf(const UsageError& error) {
    const std::wstring help = error.command.empty() ? L"lejis --help" : L"lejis " + error.command + L" --help";
    return {L"usage", kExitUsage, error.reason, L"Try " + help + L"\n"};
}

Refusal Unexpected(const std::wstring& message) { return {L"unexpected", kExitRefused, message, {}}; }

int RunSafely() {
    const std::vector<std::wstring> arguments = Arguments();
    try {
        return Run(CommandLine::Parse(arguments));
    } catch (const UsageError& error) {
        return Complain(arguments, RefusalOf(error));
    } catch (const NotRegistered&) {
        return Complain(arguments, {L"notRegistered", kExitRefused, HowToRegister(), {}});
    } catch (const FileError& error) {
        return Complain(arguments, {L"unreadable", kExitRefused, error.reason, {}});
    } catch (const LibraryError& error) {
        return Complain(arguments, Unexpected(error.description));
    } catch (const platform::ComError& error) {
        return Complain(arguments, Unexpected(error.Description()));
    } catch (const _com_error& error) {
        return Complain(arguments, Unexpected(L"Unexpected error " + Hexadecimal(error.Error())));
    } catch (const std::bad_alloc&) {
        return Complain(arguments, Unexpected(L"There is not enough memory"));
    }
}

}  // namespace
}  // namespace lejis_client

int main() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    const int exitCode = lejis_client::RunSafely();
    CoUninitialize();
    return exitCode;
}
