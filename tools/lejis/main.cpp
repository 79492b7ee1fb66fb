// lejis: checks incidents, submits them to LEJIS, withdraws them and searches for them, through the registered library.
#include "commandline/CompletionScript.h"
#include "commandline/Help.h"
#include "commandline/LibraryForUrl.h"
#include "commandline/ParseCommandLine.h"
#include "commandline/PrintVersion.h"
#include "commandline/Refusal.h"
#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/Interruption.h"
#include "console/PrintJson.h"
#include "doctor/Doctor.h"
#include "files/FileError.h"
#include "incidents/IncidentRun.h"
#include "incidents/LedgerSummary.h"
#include "library/Apartment.h"
#include "library/Library.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "platform/ComError.h"
#include "search/Search.h"
#include "show/Show.h"
#include "text/WindowsText.h"

#include <comdef.h>
#include <shellapi.h>

namespace lejis_client {
namespace {

void PrintTextInJson(const wchar_t* command, const std::wstring& text) {
    Json document = JsonDocument(command, kExitDone);
    document["text"] = JsonText(text);
    Print(document);
}

int PrintHelp(const CommandLine& commandLine) {
    const std::wstring text = commandLine.command ? HelpOf(*commandLine.command) : GeneralHelp();
    commandLine.json ? PrintTextInJson(L"help", text) : Console::Output().Write(text);
    return kExitDone;
}

int PrintCompletion(const CommandLine& commandLine) {
    const std::wstring script = CompletionScript(FindShell(commandLine.operands.front())->shell);
    commandLine.json ? PrintTextInJson(L"completion", script) : Console::Output().WriteAsItIs(script);
    return kExitDone;
}

int ShowTheFile(const CommandLine& commandLine) {
    const std::vector<NamedFile> files = ListFiles(commandLine.operands, false);
    if (files.size() == 1) return Show(files.front(), commandLine.json);
    throw UsageError{L"show takes one file, and here are " + std::to_wstring(files.size()), commandLine.command->name};
}

int Run(const CommandLine& commandLine) {
    if (commandLine.help) return PrintHelp(commandLine);
    if (commandLine.version) return PrintVersion(commandLine.json);
    switch (commandLine.command->action) {
        case kShowRequest:
            return ShowTheFile(commandLine);
        case kSumUpLedger:
            return SumUpLedger(commandLine.operands.front(), commandLine.json);
        case kSearchIndex:
            RequireLibraryForUrl(commandLine);
            return Search(commandLine.search, commandLine.json);
        case kDiagnose:
            return Diagnose(commandLine.doctor, commandLine.json);
        case kPrintCompletion:
            return PrintCompletion(commandLine);
        default:
            // Asked for first, so that a missing library is one sentence and not one for each file.
            RequireLibraryForUrl(commandLine);
            return RunOnIncidents(commandLine.incidents, commandLine.json);
    }
}

std::vector<std::wstring> Arguments() {
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::wstring> result(arguments + 1, arguments + count);
    LocalFree(arguments);
    return result;
}

Refusal Unexpected(const std::wstring& message) { return {L"unexpected", kExitRefused, message, {}}; }

// What keeps a command that was understood from being carried out.
int RunSafely(const CommandLine& commandLine) {
    const std::wstring command = commandLine.command ? commandLine.command->name : L"";
    const auto complain = [&](const Refusal& refusal) { return Complain(command, commandLine.json, refusal); };
    try {
        return Run(commandLine);
    } catch (const UsageError& error) {
        return complain(RefusalOf(error));
    } catch (const NotRegistered&) {
        return complain({L"notRegistered", kExitRefused, HowToRegister(), {}});
    } catch (const FileError& error) {
        return complain({L"unreadable", kExitRefused, error.reason, {}});
    } catch (const LibraryError& error) {
        return complain(Unexpected(error.description));
    } catch (const platform::ComError& error) {
        return complain(Unexpected(error.Description()));
    } catch (const _com_error& error) {
        return complain(Unexpected(L"Unexpected error " + Hexadecimal(error.Error())));
    } catch (const std::bad_alloc&) {
        return complain(Unexpected(L"There is not enough memory"));
    }
}

int ParseAndRun(const std::vector<std::wstring>& arguments) {
    CommandLine commandLine;
    try {
        commandLine = ParseCommandLine(arguments);
    } catch (const UsageError& error) {
        return Complain(error.command, AsksForJson(arguments), RefusalOf(error));
    }
    return RunSafely(commandLine);
}

}  // namespace
}  // namespace lejis_client

int main() {
    lejis_client::EndOnInterruption();
    const lejis_client::Apartment apartment;
    return lejis_client::ParseAndRun(lejis_client::Arguments());
}
