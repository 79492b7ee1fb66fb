#include "foundation/DebugDump.h"

#include "platform/host/SuiteHost.h"
#include "platform/msxml/Document.h"
#include "platform/Registry.h"

namespace lejis::LejisUtils {

bool DebugFlagIsOn() {
    // The suite keeps its per-user settings there.
    const auto flag = platform::ReadRegistryText(
        HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\TalvexSuite\\Flags", L"DebugLejis");
    return flag == L"Y";
}

void SaveDebugDocument(const msxml::Document& document, const std::wstring& fileName) {
    if (!DebugFlagIsOn()) return;
    std::wstring folder = platform::host::DiagnosticsFolder();
    if (!folder.ends_with(L'\\')) folder += L'\\';
    msxml::Save(document, folder + fileName);
}

}  // namespace lejis::LejisUtils
