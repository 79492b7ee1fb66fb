#include "commandline/Refusal.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"

namespace lejis_client {

Refusal RefusalOf(const UsageError& error) {
    const std::wstring help = error.command.empty() ? L"lejis --help" : L"lejis " + error.command + L" --help";
    return {L"usage", kExitUsage, error.reason, L"Try " + help + L"\n"};
}

int Complain(const std::wstring& command, bool json, const Refusal& refusal) {
    if (json) {
        Json document = JsonDocument(command.empty() ? std::nullopt : std::optional(command), refusal.exitCode);
        SetError(document, refusal.kind, refusal.message);
        PrintLine(document);
    } else {
        Console::Errors().Write(L"lejis: " + refusal.message + L"\n" + refusal.hint);
    }
    return refusal.exitCode;
}

}  // namespace lejis_client
