#include "submission/NamedIncident.h"

#include "text/Day.h"

namespace lejis_client {

Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> NamedIncident(const CommandLine& commandLine) {
    auto card = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    Check(card->put_OrganizationORI(_bstr_t(commandLine.ori->c_str())));
    Check(card->put_ActivityID(_bstr_t(commandLine.id->c_str())));
    Check(card->put_OrganizationName(_bstr_t(commandLine.organization.value_or(L"").c_str())));
    Microsoft::WRL::ComPtr<INullableDate> submitted;
    Check(card->get_SubmittedDate(&submitted));
    Check(submitted->put_Value(_variant_t(*ParseDay(*commandLine.submitted), VT_DATE)));
    return card;
}

}  // namespace lejis_client
