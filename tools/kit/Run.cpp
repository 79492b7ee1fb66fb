#include "Run.h"

#include "Files.h"
#include "Judge.h"
#include "Program.h"
#include "System.h"
#include "Table.h"
#include "text/Utf8.h"

namespace kit {
namespace {

using Words = std::vector<std::pair<std::wstring, std::wstring>>;

Words WordsOf(const Settings& settings, const std::wstring& bits) {
    const std::wstring services = settings.simulator + L"/lejis-core-Rev01/services/";
    const std::wstring framework = bits == L"x64" ? L"Framework64" : L"Framework";
    return {{L"{kit}", settings.folder},
            {L"{bin}", settings.folder + L"\\bin\\" + bits},
            {L"{results}", settings.results},
            {L"{bits}", bits},
            {L"{system}", SystemFolder(bits)},
            {L"{framework}", WindowsFolder() + L"\\Microsoft.NET\\" + framework + L"\\v4.0.30319"},
            {L"{submission}", services + L"submission"},
            {L"{search}", services + L"search"}};
}

std::wstring Filled(std::wstring text, const Words& words) {
    if (text == L"-") return {};
    for (const auto& [word, meaning] : words) {
        for (size_t at = text.find(word); at != std::wstring::npos; at = text.find(word, at + meaning.size())) {
            text.replace(at, word.size(), meaning);
        }
    }
    return text;
}

// Newer versions of Windows can be without VBScript.
bool LacksScriptEngine(const Run& run) {
    return run.arguments.find(L".vbs\"") != std::wstring::npos && !Exists(SystemFolder(run.bits) + L"\\vbscript.dll");
}

}  // namespace

std::vector<Run> ReadRuns(const Settings& settings, const std::wstring& bits) {
    std::vector<Run> runs;
    const Words words = WordsOf(settings, bits);
    for (const Row& row : ReadTable(settings.folder + L"\\runs.tsv")) {
        runs.push_back({row.at("name"), bits, row.at("judge"), row.at("needs") == L"simulator",
                        static_cast<unsigned>(std::stoul(row.at("seconds"))), lejis_client::Utf8(row.at("wine")),
                        Filled(row.at("program"), words), Filled(row.at("arguments"), words)});
    }
    return runs;
}

Result CarryOut(const Run& run, const Settings& settings) {
    if (!run.name.starts_with(settings.only)) return NotRun("left out by --only");
    if (run.needsSimulator && settings.simulator.empty()) return NotRun("needs the address of a simulator");
    if (!Exists(run.program)) {
        // What an earlier run compiles.
        if (run.program.starts_with(settings.results)) return NotRun("its program was not made");
        return NotRun(lejis_client::Utf8(run.program) + " is not on this machine");
    }
    if (LacksScriptEngine(run)) return NotRun("VBScript is not on this machine: it is an optional feature of Windows");
    const std::wstring stem = settings.results + L"\\" + run.bits + L" " + run.name;
    std::wstring commandLine = L"\"" + run.program + L"\" " + run.arguments;
    if (run.judge == L"tests") commandLine += L" --gtest_color=no \"--gtest_output=json:" + stem + L".json\"";
    return Judge(run.judge, run.bits, RunProgram(commandLine, stem + L".txt", run.seconds), stem + L".json");
}

}  // namespace kit
