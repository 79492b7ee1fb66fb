// The four standard exports, and the classes that clients can create.
#include "checking/LejisIncidentFormatter.h"
#include "checking/LejisIncidentValidator.h"
#include "deferred/FutureManager.h"
#include "foundation/LejisCommon.h"
#include "foundation/NullableDate.h"
#include "foundation/NullableNumber.h"
#include "harness/TestSearch.h"
#include "inquiry/LejisInquiryResponse.h"
#include "inquiry/LejisSearchRequest.h"
#include "model/LejisSubmissionDocument.h"
#include "platform/com/ClassFactory.h"
#include "platform/com/Guard.h"
#include "platform/com/Module.h"
#include "platform/com/Registration.h"
#include "platform/msxml/Document.h"
#include "platform/thread/ThreadState.h"
#include "services/LejisSearchWebService.h"
#include "services/LejisSubmissionWebService.h"
#include "services/SOAPEnvelope.h"

using platform::Creatable;

namespace {

std::span<const platform::CreatableClass> CreatableClasses() {
    static const platform::CreatableClass classes[] = {
        Creatable<lejis::NullableDate>(),
        Creatable<lejis::NullableInteger>(),
        Creatable<lejis::NullableLong>(),
        Creatable<lejis::LejisCommon>(),
        Creatable<lejis::LejisStreetAddress>(),
        Creatable<lejis::LejisPersonIndexCard>(),
        Creatable<lejis::LejisVehicleIndexCard>(),
        Creatable<lejis::LejisPropertyIndexCard>(),
        Creatable<lejis::LejisIncidentIndexCard>(),
        Creatable<lejis::LejisContributingSystem>(),
        Creatable<lejis::LejisSubmissionDocument>(),
        Creatable<lejis::Future>(),
        Creatable<lejis::FutureManager>(),
        Creatable<lejis::LejisIncidentValidator>(),
        Creatable<lejis::LejisIncidentFormatter>(),
        Creatable<lejis::PersonInquiryArguments>(),
        Creatable<lejis::LocationInquiryArguments>(),
        Creatable<lejis::PropertyInquiryArguments>(),
        Creatable<lejis::VehicleInquiryArguments>(),
        Creatable<lejis::LejisAdHocInquiryArguments>(),
        Creatable<lejis::LejisInquiryControls>(),
        Creatable<lejis::LejisSearchRequest>(),
        Creatable<lejis::LejisInquiryResponse>(),
        Creatable<lejis::SOAPEnvelope>(),
        Creatable<lejis::LejisSearchWebService>(),
        Creatable<lejis::LejisSubmissionWebService>(),
        Creatable<lejis::TestSearch>(),
    };
    return classes;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, void** factory) {
    return platform::GetClassFactory(CreatableClasses(), classId, iid, factory);
}

STDAPI DllCanUnloadNow() {
    if (platform::module::InUse()) {
        platform::living::Report();
        return S_FALSE;
    }
    platform::thread::ReleaseParts();
    msxml::ReleaseDocumentClass();
    return S_OK;
}

STDAPI DllRegisterServer() { return platform::Guard(GUID_NULL, platform::RegisterModule); }

STDAPI DllUnregisterServer() { return platform::Guard(GUID_NULL, platform::UnregisterModule); }
