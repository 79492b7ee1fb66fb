#include "doctor/DumpCheck.h"

#include "doctor/DebugFlag.h"
#include "foundation/DebugDump.h"
#include "library/DllFile.h"
#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"

namespace lejis_client {
namespace {

constexpr wchar_t kDumpSubject[] = L"Debug dumps";
constexpr wchar_t kFiles[] = L"Dump files";

constexpr const wchar_t* kDumpNames[] = {L"LejisSubmitRequest.xml", L"LejisSubmitResponse.xml",
                                         L"LejisSearchRequest.xml", L"LejisSearchResponse.xml"};

// Without the suite the library itself makes the folder on its first use. The doctor changes nothing.
std::wstring DumpFolder() {
    CLSID ignored;
    if (SUCCEEDED(CLSIDFromProgID(L"TalvexSuite.SuiteEnvironment", &ignored))) {
        return platform::host::DiagnosticsFolder();
    }
    wchar_t base[MAX_PATH] = {};
    const DWORD length = GetEnvironmentVariableW(L"LOCALAPPDATA", base, ARRAYSIZE(base));
    if (length == 0 || length >= ARRAYSIZE(base)) platform::Check(HRESULT_FROM_WIN32(ERROR_PATH_NOT_FOUND));
    return base + std::wstring(L"\\TalvexSuite\\Diagnostics");
}

Finding FlagThatIsOn() {
    try {
        return {kDumpSubject, Health::kWarning,
                L"on for this user: requests and answers, with personal data, are written to " + DumpFolder(),
                L"Set DebugLejis to \"N\" when you have seen what you looked for, and delete the files."};
    } catch (const platform::ComError& error) {
        return {kDumpSubject, Health::kFailed,
                L"on for this user, but there is no folder for them: " + error.Description(),
                L"Set DebugLejis to \"N\", or repair the suite's diagnostics folder: submissions fail until then."};
    }
}

Finding CheckFlag() {
    if (lejis::LejisUtils::DebugFlagIsOn()) return FlagThatIsOn();
    const std::wstring value = DebugFlagAsWritten();
    if (!LooksOn(value)) return {kDumpSubject, Health::kOk, L"off for this user", {}};
    return {
        kDumpSubject, Health::kWarning,
        L"off for this user, though DebugLejis is " + value + L": only the text \"Y\", in upper case, turns them on",
        L"Set DebugLejis to \"Y\" if you want dumps, and to \"N\" if you do not."};
}

// The names of those that are there, one after the other.
std::wstring DumpsIn(const std::wstring& folder) {
    std::wstring found;
    for (const wchar_t* name : kDumpNames) {
        if (FileExists(folder + L'\\' + name)) found += (found.empty() ? L"" : L", ") + std::wstring(name);
    }
    return found;
}

Finding CheckFiles() {
    try {
        const std::wstring folder = DumpFolder();
        const std::wstring found = DumpsIn(folder);
        if (found.empty()) return {kFiles, Health::kOk, L"none are there", {}};
        return {kFiles, Health::kWarning, L"with personal data in " + folder + L": " + found,
                L"Delete them when nobody needs them any more."};
    } catch (const platform::ComError& error) {
        return {kFiles, Health::kWarning, L"the suite names no folder for them: " + error.Description(),
                L"Repair the suite's diagnostics folder."};
    }
}

}  // namespace

void CheckDumps(Diagnosis& diagnosis) {
    diagnosis.Examine(Late(kDumpSubject), CheckFlag);
    diagnosis.Examine(Late(kFiles), CheckFiles);
}

}  // namespace lejis_client
