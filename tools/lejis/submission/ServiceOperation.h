// What needs the submission service.
#pragma once

#include "submission/Operation.h"
#include "submission/ServerProbe.h"
#include "submission/ServiceSettings.h"

namespace lejis_client {

class ServiceOperation : public Operation {
public:
    Outcome Run(ILejisIncidentIndexCard* incident, const std::function<void()>& beforeSending) override;

protected:
    explicit ServiceOperation(const ServiceSettings& settings);

    ILejisSubmissionWebService& Service() const { return *service_.Get(); }

private:
    // Has the service do it and returns its warnings; raises a LibraryError.
    virtual std::vector<std::wstring> Ask(ILejisIncidentIndexCard* incident) = 0;
    // Raises a LibraryError for what the service would refuse without sending it.
    virtual void RequireFit(ILejisIncidentIndexCard* incident) const = 0;

    Microsoft::WRL::ComPtr<ILejisSubmissionWebService> service_;
    ServerProbe probe_;
};

}  // namespace lejis_client
