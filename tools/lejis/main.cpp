// lejis: checks incidents, submits them to LEJIS, withdraws them and searches for them, through the registered library.
#include "Command.h"
#include "CommandLine.h"
#include "Console.h"
#include "ExitCode.h"
#include "FileError.h"
#include "FilePattern.h"
#include "Help.h"
#include "IncidentFile.h"
#include "LibraryError.h"
#include "NamedIncident.h"
#include "NotRegistered.h"
#include "Report.h"
#include "Search.h"
#include "UsageError.h"
#include "WindowsText.h"

#include <comdef.h>
#include <shellapi.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;
using Incident = ComPtr<ILejisIncidentIndexCard>;

template <typename Reader>
Outcome RunOn(const CommandLine& commandLine, Reader read) {
    try {
        const Incident incident = read();
        return commandLine.command->run(commandLine, incident.Get());
    } catch (const FileError& error) {
        return {Result::Unreadable, {error.reason}, {}, {}};
    } catch (const LibraryError& error) {
        return {Result::Refused, {error.description}, {}, {}};
    }
}

int RunOnFiles(const CommandLine& commandLine) {
    const std::vector<std::wstring> files = ExpandPatterns(commandLine.files);
    Report report(*commandLine.command, files);
    for (const std::wstring& file : files) {
        report.Begin(file);
        report.End(file, RunOn(commandLine, [&] { return ReadIncidentFile(file); }));
    }
    report.Finish();
    return report.ExitCode();
}

int RunOnNamedIncident(const CommandLine& commandLine) {
    const std::wstring name = *commandLine.ori + L" " + *commandLine.id;
    Report report(*commandLine.command, {name});
    report.Begin(name);
    report.End(name, RunOn(commandLine, [&] { return NamedIncident(commandLine); }));
    return report.ExitCode();
}

int Run(const CommandLine& commandLine) {
    if (commandLine.help) {
        Console::Output().Write(commandLine.command ? commandLine.command->help : kGeneralHelp);
        return kExitDone;
    }
    // Asked for first, so that a missing library is one sentence and not one for each file.
    const std::wstring version = LibraryVersion();
    if (commandLine.version) {
        Console::Output().Write(L"TVLejisCore " + version + L"\n" + LibraryFile() + L"\n");
        return kExitDone;
    }
    if (commandLine.command->searches) return Search(commandLine);
    return commandLine.NamesIncident() ? RunOnNamedIncident(commandLine) : RunOnFiles(commandLine);
}

std::vector<std::wstring> Arguments() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result(arguments + 1, arguments + count);
    LocalFree(arguments);
    return result;
}

int Complain(const std::wstring& text, int exitCode) {
    Console::Errors().Write(L"lejis: " + text + L"\n");
    return exitCode;
}

int RunSafely() {
    try {
        return Run(CommandLine::Parse(Arguments()));
    } catch (const UsageError& error) {
        const std::wstring help = error.command.empty() ? L"lejis --help" : L"lejis " + error.command + L" --help";
        return Complain(error.reason + L"\nTry " + help, kExitUsage);
    } catch (const NotRegistered&) {
        return Complain(HowToRegister(), kExitRefused);
    } catch (const LibraryError& error) {
        return Complain(error.description, kExitRefused);
    } catch (const _com_error& error) {
        return Complain(L"Unexpected error " + Hexadecimal(error.Error()), kExitRefused);
    } catch (const std::bad_alloc&) {
        return Complain(L"There is not enough memory", kExitRefused);
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
