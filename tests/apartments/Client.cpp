#include "apartments/Client.h"

#include "apartments/Address.h"
#include "support/ComCheck.h"
#include "support/Messages.h"

#include <atomic>

using support::Bstr;

namespace apartments {

bool PumpPatiently(const std::function<bool()>& condition) {
    constexpr int kTries = 12;
    for (int tries = 0; tries < kTries; ++tries) {
        if (support::PumpUntil(condition)) return true;
    }
    return false;
}

LibraryClient::LibraryClient()
    : search_(library_.Create<LejisSearchWebService, ILejisSearchWebService>()),
      request_(library_.Create<LejisSearchRequest, ILejisSearchRequest>()),
      submission_(library_.Create<LejisSubmissionWebService, ILejisSubmissionWebService>()),
      counter_(new EventCounter) {
    ComPtr<IPersonInquiryArguments> person;
    ComPtr<IConnectionPointContainer> container;
    request_->get_personArguments(person.GetAddressOf());
    person->put_SurName(Bstr(L"NOBODY"));
    search_->put_URL(Bstr(SearchAddress()));
    search_->put_Username(Bstr(L"jdoe"));
    submission_->put_URL(Bstr(SubmissionAddress()));
    search_.As(&container);
    container->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), events_.GetAddressOf());
    events_->Advise(counter_.Get(), &cookie_);
}

LibraryClient::~LibraryClient() {
    if (events_) events_->Unadvise(cookie_);
}

void LibraryClient::Work(Tally& tally) {
    const int completed = counter_->completed;
    ComPtr<ICollection> warnings;
    search_->Search(request_.Get());
    if (submission_->SubmitIncident(NewIncident().Get(), warnings.GetAddressOf()) == S_OK) ++tally.submissions;
    PumpPatiently([&] { return counter_->completed + counter_->others > completed; });
    tally.searches += counter_->completed - completed;
}

void LibraryClient::Begin() {
    ComPtr<IRunnable> runnable;
    search_.As(&runnable);
    library_.Create<FutureManager, IFutureManager>()->InvokeLater(runnable.Get());
    search_->Search(request_.Get());
}

void LibraryClient::Forget() {
    events_.Detach();
    counter_.Detach();
    request_.Detach();
    submission_.Detach();
    search_.Detach();
}

ComPtr<ILejisIncidentIndexCard> LibraryClient::NewIncident() const {
    static std::atomic<int> number = 0;
    auto incident = library_.Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    ComPtr<INullableDate> submitted;
    incident->put_OrganizationORI(Bstr(L"PA0250100"));
    incident->put_OrganizationName(Bstr(L"ERIE CITY POLICE"));
    incident->put_ActivityID(Bstr(L"2007-" + std::to_wstring(++number)));
    incident->get_SubmittedDate(submitted.GetAddressOf());
    submitted->put_Value(_variant_t(L"2007-03-09"));
    return incident;
}

}  // namespace apartments
