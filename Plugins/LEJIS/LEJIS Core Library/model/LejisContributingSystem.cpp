#include "model/LejisContributingSystem.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "platform/com/Module.h"

namespace lejis {

LejisContributingSystem::LejisContributingSystem()
    : CompanyName(L"Talvex"), SystemName(L"TalvexSuite"), SystemVersion(platform::module::Version()) {}

msxml::Element LejisContributingSystem::Write(const OutputDocument& document) const {
    // The names begin in lower case, unlike the GJXDM names around them.
    ElementWriter system(document, L"lejis:ContributingSystem");
    system.Text(L"ext:companyName", CompanyName);
    system.Text(L"ext:systemName", SystemName);
    system.Text(L"ext:systemVersion", SystemVersion);
    return system.Element();
}

void LejisContributingSystem::Read(const ElementReader& system) {
    CompanyName = system.Text(L"ext:companyName");
    SystemName = system.Text(L"ext:systemName");
    SystemVersion = system.Text(L"ext:systemVersion");
}

}  // namespace lejis
