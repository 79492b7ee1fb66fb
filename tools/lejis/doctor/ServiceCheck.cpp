#include "doctor/ServiceCheck.h"

#include "doctor/DescriptionCheck.h"
#include "doctor/HostCheck.h"
#include "doctor/SchemaCheck.h"
#include "doctor/ServerCheck.h"

#include <memory>

namespace lejis_client {
namespace {

bool MayGoOn(Health health) { return health == Health::kOk || health == Health::kWarning; }

// What is found out on the way. A check that is given up may still write to it, so nothing else reads it then.
struct Answer {
    WebPage page;
    ServiceDescription description;
};

}  // namespace

void CheckService(ServiceKind kind, const std::wstring& url, const std::optional<std::wstring>& lejisHost,
                  Diagnosis& diagnosis) {
    const Service& service = ServiceOf(kind);
    const std::wstring wsdlUrl = url + L"?wsdl";
    const auto answer = std::make_shared<Answer>();
    bool goesOn = true;
    // After a failure the rest cannot be looked at.
    const auto examine = [&](Finding late, auto check) {
        if (!goesOn) return diagnosis.Add(Unseen(late.subject));
        goesOn = MayGoOn(diagnosis.Examine(std::move(late), check));
    };

    if (Finding address = CheckAddress(service.server, url); MayGoOn(address.health)) {
        examine(LateServer(service.server),
                [=, &service] { return CheckServer(service.server, wsdlUrl, answer->page); });
    } else {
        goesOn = false;
        diagnosis.Add(std::move(address));
    }
    examine(Late(service.description),
            [=] { return CheckDescription(kind, wsdlUrl, answer->page, answer->description); });
    goesOn = goesOn && lejisHost;
    examine(Late(service.host), [=, &service] { return CheckHost(service, answer->description, *lejisHost); });
    examine(LateSchemas(service), [=, &service] { return CheckSchemas(service, wsdlUrl); });
}

}  // namespace lejis_client
