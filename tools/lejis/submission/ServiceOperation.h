// What needs the submission service.
#pragma once

#include "submission/Operation.h"
#include "submission/ServerProbe.h"
#include "submission/ServiceSettings.h"

namespace lejis_client {

class ServiceOperation : public Operation {
public:
    Outcome Run(ILejisIncidentIndexCard* incident) override;

protected:
    // The advice is for an incident of which nobody knows what LEJIS made of it.
    ServiceOperation(const ServiceSettings& settings, const wchar_t* adviceOnUnknown);

    ILejisSubmissionWebService& Service() const { return *service_.Get(); }

private:
    // Has the service do it and returns its warnings; raises a LibraryError.
    virtual std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) = 0;
    Outcome Advised(Outcome outcome) const;

    Microsoft::WRL::ComPtr<ILejisSubmissionWebService> service_;
    const wchar_t* adviceOnUnknown_;
    ServerProbe probe_;
};

}  // namespace lejis_client
