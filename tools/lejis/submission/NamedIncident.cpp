#include "submission/NamedIncident.h"

namespace lejis_client {

Microsoft::WRL::ComPtr<ILejisIncidentIndexCard> NamedIncident(const IncidentName& name) {
    auto card = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    Check(card->put_OrganizationORI(_bstr_t(name.ori->c_str())));
    Check(card->put_ActivityID(_bstr_t(name.number->c_str())));
    Check(card->put_OrganizationName(_bstr_t(name.organization.value_or(L"").c_str())));
    Microsoft::WRL::ComPtr<INullableDate> submitted;
    Check(card->get_SubmittedDate(&submitted));
    Check(submitted->put_Value(_variant_t(*name.submitted, VT_DATE)));
    return card;
}

}  // namespace lejis_client
