#include "Trial.h"

#include "Files.h"
#include "Judge.h"
#include "Program.h"
#include "RegistryPicture.h"
#include "System.h"
#include "text/Utf8.h"

#include <windows.h>

namespace kit {
namespace {

constexpr DWORD kRegistrationSeconds = 60;
constexpr wchar_t kAnyClass[] = L"TVLejisCore.LejisIncidentIndexCard";

// The trials of one bitness.
class Round {
public:
    Round(const Settings& settings, std::wstring bits, const Tell& tell, std::vector<Trial>& trials)
        : settings_(settings), bits_(std::move(bits)), tell_(tell), trials_(trials) {}

    void RunAll() {
        const std::vector<Run> runs = ReadRuns(settings_, bits_);
        if (bits_ == L"x64" && !HasBothBitnesses()) return LeaveOut(runs, "this Windows runs no 64-bit programs");
        StartScriptHostOnce();
        const RegistryPicture before = TakePicture();
        if (!Register(L"register", L"")) return LeaveOut(runs, "the library could not be registered");
        const RegistryPicture registered = TakePicture();
        for (const Run& run : runs) Add(run, CarryOut(run, settings_));
        AddDifferences(L"registered", registered);
        Register(L"unregister", L"/u ");
        AddDifferences(L"registry", before);
    }

private:
    // Wine's registers a type library of its own when it first starts, which is no doing of the library's.
    void StartScriptHostOnce() const {
        const std::wstring commandLine = L"\"" + SystemFolder(bits_) + L"\\cscript.exe\" //nologo \"" +
                                         settings_.folder + L"\\scripts\\windows\\empty.vbs\"";
        RunProgram(commandLine, settings_.results + L"\\" + bits_ + L" script host.txt", kRegistrationSeconds);
    }

    void Add(const Run& run, Result result) {
        trials_.push_back({run, std::move(result)});
        tell_(trials_.back());
    }

    void Add(const wchar_t* name, Result result) { Add(Step(name), std::move(result)); }

    Run Step(const wchar_t* name) const {
        return {name, bits_, L"code 0", false, kRegistrationSeconds, "passed", {}, {}};
    }

    void LeaveOut(const std::vector<Run>& runs, const std::string& reason) {
        for (const Run& run : runs) Add(run, NotRun(reason));
    }

    bool Register(const wchar_t* name, const wchar_t* option) {
        const std::wstring commandLine = L"\"" + SystemFolder(bits_) + L"\\regsvr32.exe\" /s " + option + L"\"" +
                                         settings_.folder + L"\\bin\\" + bits_ + L"\\TVLejisCore.dll\"";
        const std::wstring output = settings_.results + L"\\" + bits_ + L" " + name + L".txt";
        Result result = Judge(L"code 0", bits_, RunProgram(commandLine, output, kRegistrationSeconds), {});
        const bool passed = result.status == kPassed;
        Add(name, std::move(result));
        return passed;
    }

    void AddDifferences(const wchar_t* name, const RegistryPicture& expected) {
        const std::string differences = Differences(expected, TakePicture());
        if (differences.empty()) return Add(name, {kPassed, "nothing is other than before"});
        Add(name, {kFailed, "not as before", {}, differences});
    }

    const Settings& settings_;
    const std::wstring bits_;
    const Tell& tell_;
    std::vector<Trial>& trials_;
};

std::wstring LibraryIn(REGSAM view) {
    wchar_t id[64] = {};
    DWORD size = sizeof id;
    const std::wstring programId = std::wstring(L"Software\\Classes\\") + kAnyClass + L"\\CLSID";
    for (const HKEY root : {HKEY_LOCAL_MACHINE, HKEY_CURRENT_USER}) {
        if (RegGetValueW(root, programId.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, id, &size) == ERROR_SUCCESS) break;
    }
    if (!*id) return {};
    HKEY server = nullptr;
    const std::wstring path = std::wstring(L"CLSID\\") + id + L"\\InprocServer32";
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_READ | view, &server) != ERROR_SUCCESS) return {};
    wchar_t file[MAX_PATH] = {};
    size = sizeof file;
    RegGetValueW(server, nullptr, nullptr, RRF_RT_REG_SZ, nullptr, file, &size);
    RegCloseKey(server);
    return file;
}

}  // namespace

std::vector<Trial> TryAll(const Settings& settings, const Tell& tell) {
    std::vector<Trial> trials;
    for (const wchar_t* bits : {L"x86", L"x64"}) {
        // A kit can be made of one bitness.
        if (Exists(settings.folder + L"\\bin\\" + bits)) Round(settings, bits, tell, trials).RunAll();
    }
    return trials;
}

std::wstring RegisteredLibrary() {
    const std::wstring file = LibraryIn(KEY_WOW64_32KEY);
    return file.empty() ? LibraryIn(KEY_WOW64_64KEY) : file;
}

}  // namespace kit
