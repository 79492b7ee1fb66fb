#include "doctor/DumpCheck.h"

#include "foundation/LejisUtils.h"
#include "platform/ComError.h"
#include "platform/host/SuiteEnvironment.h"

namespace lejis_client {
namespace {

constexpr wchar_t kSubject[] = L"Debug dumps";

Finding CheckFlag() {
    if (!lejis::LejisUtils::DebugFlagIsOn()) return {kSubject, Health::kOk, L"off for this user", {}};
    try {
        return {kSubject, Health::kWarning,
                L"on for this user: requests and answers, with personal data, are written to " +
                    platform::host::DiagnosticsFolder(),
                L"Set DebugLejis to \"N\" when you have seen what you looked for, and delete the files."};
    } catch (const platform::ComError& error) {
        return {kSubject, Health::kFailed, L"on for this user, but there is no folder for them: " + error.Description(),
                L"Set DebugLejis to \"N\", or repair the suite's diagnostics folder: submissions fail until then."};
    }
}

}  // namespace

void CheckDumps(Diagnosis& diagnosis) { diagnosis.Examine(Late(kSubject), CheckFlag); }

}  // namespace lejis_client
