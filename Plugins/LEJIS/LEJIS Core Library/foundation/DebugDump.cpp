#include "foundation/LejisUtils.h"

#include "platform/host/SuiteEnvironment.h"
#include "platform/msxml/Document.h"
#include "platform/Registry.h"

namespace lejis::LejisUtils {
namespace {

// Where the suite keeps its per-user settings. Read anew each time, so that the flag can be switched while it runs.
bool DebugFlagIsOn() {
    const auto flag = platform::ReadRegistryText(
        HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\TalvexSuite\\Flags", L"DebugLejis");
    return flag == L"Y";
}

}  // namespace

void SaveDebugDocument(const msxml::Document& document, const std::wstring& fileName) {
    if (!DebugFlagIsOn()) return;
    std::wstring folder = platform::host::DiagnosticsFolder();
    if (!folder.ends_with(L'\\')) folder += L'\\';
    msxml::Save(document, folder + fileName);
}

}  // namespace lejis::LejisUtils
