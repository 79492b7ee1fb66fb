#include "show/Show.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "console/PrintJson.h"
#include "files/FileContent.h"
#include "files/FileError.h"
#include "files/IncidentFile.h"
#include "files/StandardInput.h"
#include "library/SubmissionRequest.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "submission/ShapedIncident.h"
#include "text/Layout.h"
#include "text/XmlLayout.h"

namespace lejis_client {
namespace {

struct Shown {
    std::wstring request;
    // Why it would not be sent, and what it lacks of the file.
    std::vector<std::wstring> errors;
    std::vector<std::wstring> warnings;

    int ExitCode() const { return errors.empty() ? kExitDone : kExitRefused; }
};

std::wstring RequestFor(ILejisIncidentIndexCard* incident) {
    std::wstring markup = msxml::Markup(SubmissionRequest(incident));
    // The console has its own idea of the ends of lines.
    std::erase(markup, L'\r');
    return Indented(markup);
}

Shown Look(const std::wstring& path) {
    IncidentFile file;
    try {
        file = ReadIncident(path == kStandardInput ? StandardInput() : ReadFileContent(path));
    } catch (const FileError& error) {
        return {{}, {error.reason}, {}};
    }
    const ShapedIncident shaped = Shape(file.card.Get());
    file.losses.insert(file.losses.end(), shaped.warnings.begin(), shaped.warnings.end());
    return {RequestFor(shaped.card.Get()), shaped.errors, file.losses};
}

void PrintJson(const std::wstring& path, const Shown& shown) {
    Json document = JsonDocument(L"show", shown.ExitCode());
    document["name"] = JsonText(path);
    document["errors"] = JsonTexts(shown.errors);
    document["warnings"] = JsonTexts(shown.warnings);
    document["request"] = shown.request.empty() ? Json() : JsonText(shown.request);
    Print(document);
}

// The request alone goes to the output, so that it can be kept in a file.
void PrintText(const Shown& shown) {
    Console::Output().Write(shown.request);
    std::wstring text;
    if (!shown.errors.empty()) text += shown.request.empty() ? L"Unreadable:\n" : L"This would not be sent:\n";
    for (const std::wstring& error : shown.errors) text += ListItem(L'!', error);
    if (!shown.warnings.empty()) text += L"This differs from the file:\n";
    for (const std::wstring& warning : shown.warnings) text += ListItem(L'\u2022', warning);
    Console::Errors().Write(text);
}

}  // namespace

int Show(const NamedFile& file, bool json) {
    // Asked for first: it raises where there is no library.
    LibraryVersion();
    const Shown shown = Look(file.path);
    json ? PrintJson(file.name, shown) : PrintText(shown);
    return shown.ExitCode();
}

}  // namespace lejis_client
