// Calls in any order on living objects, also from inside of events, of the host's yield and of deferred work.
#include "com/Calls.h"
#include "com/FailureCheck.h"
#include "com/Texts.h"
#include "engine/Finding.h"
#include "platform/com/ComObject.h"
#include "platform/msxml/Document.h"
#include "platform/Text.h"
#include "services/LejisSubmissionWebService.h"
#include "targets/Promises.h"
#include "targets/Targets.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "unit_support/Soap.h"
#include "world/Creation.h"
#include "world/Documents.h"
#include "world/Runnable.h"
#include "world/World.h"

#include <memory>
#include <optional>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

constexpr int kMostSteps = 60;
constexpr int kDeepest = 4;

template <typename Interface>
ComPtr<Interface> New(REFCLSID classId) {
    ComPtr<Interface> object;
    platform::Check(CreateObject(classId).As(&object));
    return object;
}

// The objects that one careless client has, and what it does with them. It calls through pointers that it may release
// during the call, as Visual Basic does.
class Client {
public:
    Client(Case& input, World& world) : case_(input), world_(world) {
        world_.onYield = [this] { StepInside(); };
    }
    ~Client() {
        world_.onYield = [] {};
        // Sinks and runnables may outlive this client.
        *isAlive_ = false;
    }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    void Run() {
        for (uint32_t steps = 3 + case_.Below(15); steps > 0; --steps) Step();
        if (finding_) throw *finding_;
    }

private:
    struct Operation {
        const wchar_t* name;
        void (Client::*run)();
    };

    // What fails in the middle of somebody else's call is kept for later: an exception must not cross that call.
    void Step() {
        static constexpr Operation kOperations[] = {
            {L"make services", &Client::MakeServices},
            {L"search", &Client::Search},
            {L"search", &Client::Search},
            {L"submit", &Client::Submit},
            {L"submit", &Client::Submit},
            {L"submit async", &Client::SubmitAsync},
            {L"drop search", &Client::DropSearch},
            {L"drop submission", &Client::DropSubmission},
            {L"advance", &Client::Advance},
            {L"advance", &Client::Advance},
            {L"advance", &Client::Advance},
            {L"connect", &Client::Connect},
            {L"connect", &Client::Connect},
            {L"disconnect", &Client::Disconnect},
            {L"execute", &Client::Execute},
            {L"invoke later", &Client::InvokeLater},
            {L"drop futures", &Client::DropFutures},
            {L"change incident", &Client::ChangeIncident},
            {L"read incident", &Client::ReadIncident},
            {L"run services", &Client::RunServices},
            {L"change script", &Client::ChangeScript},
            {L"change script", &Client::ChangeScript},
            {L"read envelope", &Client::ReadEnvelope},
            {L"walk cards", &Client::WalkCards},
            {L"try search", &Client::TrySearch},
            {L"change services", &Client::ChangeServices},
            {L"call anything", &Client::CallAnything},
            {L"change request", &Client::ChangeRequest},
            {L"fail to search", &Client::FailToSearch},
            {L"change a document that was read", &Client::ChangeDocument},
            {L"repeat work", &Client::RepeatWork},
        };
        if (++steps_ > kMostSteps) return;
        const Operation& operation = case_.Pick(kOperations);
        case_.Trace([&] { return std::wstring(static_cast<size_t>(depth_) * 2, L' ') + operation.name; });
        try {
            (this->*operation.run)();
        } catch (const Finding& finding) {
            if (!finding_) finding_ = finding;
        }
    }

    void StepInside() {
        if (depth_ >= kDeepest || !case_.OneIn(2)) return;
        ++depth_;
        Step();
        --depth_;
    }

    std::function<void()> Inside() {
        return [this, isAlive = isAlive_] {
            if (*isAlive) StepInside();
        };
    }

    void Check(HRESULT result, const wchar_t* call) { AfterCall(CallKind::kMember, result, call); }

    void MakeServices() {
        search_ = New<ILejisSearchWebService>(__uuidof(::LejisSearchWebService));
        submission_ = New<ILejisSubmissionWebService>(__uuidof(::LejisSubmissionWebService));
        request_ = New<ILejisSearchRequest>(__uuidof(::LejisSearchRequest));
        const _bstr_t address = platform::ToBstr(L"http://lejis-interface/");
        Check(search_->put_URL(address), L"put_URL");
        Check(submission_->put_URL(address), L"put_URL");
    }

    void Search() {
        if (!search_) MakeServices();
        BeforeCall();
        Check(search_.Get()->Search(request_.Get()), L"Search");
    }

    void Submit() {
        if (!submission_) MakeServices();
        ComPtr<ICollection> warnings;
        BeforeCall();
        ILejisSubmissionWebService* const service = submission_.Get();
        ILejisIncidentIndexCard* const incident = incident_.Get();
        Check(case_.OneIn(3) ? service->DeleteIncident(incident)
                             : service->SubmitIncident(incident, warnings.GetAddressOf()),
              L"SubmitIncident");
    }

    void SubmitAsync() {
        if (!submission_) MakeServices();
        const auto service = platform::ImplementationOf<lejis::LejisSubmissionWebService>(submission_.Get());
        const auto document = platform::Create<lejis::LejisSubmissionDocument>();
        service->SubmitAsync(*document);
    }

    void DropSearch() { search_.Reset(); }
    void DropSubmission() { submission_.Reset(); }
    void Advance() { world_.Advance(); }

    void Connect() {
        const ComPtr<IUnknown> service = AnyService();
        if (!service) return;
        const auto log = support::EventLog::ForSearches();
        log->onEvent = Inside();
        DWORD cookie = 0;
        if (const auto point = PointOf(service.Get()); SUCCEEDED(point->Advise(log.Get(), &cookie)))
            cookies_.push_back(cookie);
    }

    void Disconnect() {
        const ComPtr<IUnknown> service = AnyService();
        if (!service || cookies_.empty()) return;
        PointOf(service.Get())->Unadvise(case_.Pick(cookies_));
    }

    ComPtr<IUnknown> AnyService() {
        return case_.OneIn(2) ? ComPtr<IUnknown>(search_.Get()) : ComPtr<IUnknown>(submission_.Get());
    }

    static ComPtr<IConnectionPoint> PointOf(IUnknown* service) {
        ComPtr<IConnectionPointContainer> container;
        ComPtr<IEnumConnectionPoints> points;
        ComPtr<IConnectionPoint> point;
        platform::Check(service->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())));
        platform::Check(container->EnumConnectionPoints(points.GetAddressOf()));
        platform::Check(points->Next(1, point.GetAddressOf(), nullptr));
        return point;
    }

    ComPtr<IRunnable> AnyRunnable() {
        ComPtr<IRunnable> runnable;
        const ComPtr<IUnknown> service = AnyService();
        if (service && case_.OneIn(3)) {
            platform::Check(service.As(&runnable));
        } else if (!case_.OneIn(10)) {
            runnable = platform::Create<Runnable>(case_.OneIn(3) ? E_FAIL : S_OK, Inside());
        }
        return runnable;
    }

    void Execute() {
        if (!future_ || case_.OneIn(3)) future_ = New<IFuture>(__uuidof(::Future));
        ComPtr<IFutureObserver> observer;
        if (manager_ && case_.OneIn(2)) platform::Check(manager_.As(&observer));
        const ComPtr<IRunnable> runnable = AnyRunnable();
        BeforeCall();
        Check(future_.Get()->Execute(runnable.Get(), observer.Get()), L"Execute");
    }

    void InvokeLater() {
        if (!manager_ || case_.OneIn(3)) manager_ = New<IFutureManager>(__uuidof(::FutureManager));
        const ComPtr<IRunnable> runnable = AnyRunnable();
        BeforeCall();
        Check(manager_.Get()->InvokeLater(runnable.Get()), L"InvokeLater");
    }

    void DropFutures() { case_.OneIn(2) ? (void)future_.Reset() : (void)manager_.Reset(); }

    ComPtr<ICollection> AnyCards() {
        ComPtr<ICollection> cards;
        if (!incident_) return cards;
        switch (case_.Below(3)) {
            case 0:
                incident_->get_PersonIndexCards(cards.GetAddressOf());
                break;
            case 1:
                incident_->get_VehicleIndexCards(cards.GetAddressOf());
                break;
            default:
                incident_->get_PropertyIndexCards(cards.GetAddressOf());
        }
        world_.See(ComPtr<IUnknown>(cards.Get()));
        return cards;
    }

    void ChangeIncident() {
        if (!incident_ || case_.OneIn(5)) incident_ = support::FullIncident().Get();
        const PublicInterface& members = *FindInterface(__uuidof(ILejisIncidentIndexCard));
        CallAny(incident_.Get(), members, case_.Pick(members.members), case_, world_.Any());
        if (case_.OneIn(3)) AnyCards()->Add(world_.Any().Any());
        if (case_.OneIn(6)) incident_.Reset();
    }

    void ReadIncident() {
        if (!incident_) return;
        const ComPtr<ICollection> cards = AnyCards();
        BeforeCall();
        Check(incident_->FromXmlElement(ComPtr<IDispatch>(AnyElement(case_).Get()).Get()), L"FromXmlElement");
    }

    void RunServices() {
        ComPtr<IRunnable> runnable;
        if (search_ && case_.OneIn(2)) {
            search_.Get()->OnReadyStateChange();
        } else if (submission_ && case_.OneIn(2)) {
            submission_.Get()->OnReadyStateChange();
        } else if (const ComPtr<IUnknown> service = AnyService()) {
            platform::Check(service.As(&runnable));
            runnable->Run();
        }
    }

    void ChangeScript() {
        static constexpr HRESULT kResults[] = {S_OK,   S_OK,         S_OK,
                                               E_FAIL, E_INVALIDARG, static_cast<HRESULT>(0x800C0008)};
        static constexpr long kStatuses[] = {200, 200, 200, 0, 403, 404, 500, 12029};
        const std::wstring answers[] = {support::InquiryResponse(L"<lejis:incidentcount>1</lejis:incidentcount>" +
                                                                 support::AnsweredCard(L"2007-1")),
                                        support::SubmissionResponse(L"0"),
                                        support::SubmissionResponse(L"100"),
                                        support::SoapFault(L"c", L"m"),
                                        L"",
                                        L"<"};
        support::Script& script = world_.script;
        script.openResult = case_.Pick(kResults);
        script.sendResult = case_.Pick(kResults);
        script.status = case_.Pick(kStatuses);
        script.responseText = case_.Pick(answers);
        script.hasResponseXml = !case_.OneIn(8);
        script.readyStates = case_.OneIn(6) ? std::vector<long>{1} : std::vector<long>{1, 2, 4};
    }

    // The envelope keeps what it has read, which its client may go on to change.
    void ReadEnvelope() {
        if (!envelope_) envelope_ = New<ISOAPEnvelope>(__uuidof(::SOAPEnvelope));
        if (!document_ || case_.OneIn(3)) {
            document_ = msxml::CreateDocument();
            msxml::LoadXml(document_, case_.Pick(DocumentTexts()));
            BeforeCall();
            Check(envelope_->FromXmlDocument(document_.Get()), L"FromXmlDocument");
        }
        if (case_.OneIn(2)) document_->loadXML(platform::ToBstr(L"<a/>"), nullptr);
        if (case_.OneIn(3)) document_.Reset();
        const PublicInterface& members = *FindInterface(__uuidof(ISOAPEnvelope));
        CallAny(envelope_.Get(), members, case_.Pick(members.members), case_, world_.Any());
    }

    void WalkCards() {
        const ComPtr<ICollection> cards = AnyCards();
        ComPtr<IUnknown> enumerator;
        ComPtr<IEnumVARIANT> walker;
        if (!cards || FAILED(cards->get__NewEnum(enumerator.GetAddressOf()))) return;
        platform::Check(enumerator.As(&walker));
        for (uint32_t steps = case_.Below(5); steps > 0; --steps) {
            _variant_t item;
            if (walker->Next(1, &item, nullptr) != S_OK) break;
            StepInside();
            if (case_.OneIn(3)) cards->Remove(1);
        }
    }

    void TrySearch() {
        if (!case_.OneIn(12)) return;
        const auto harness = New<ITestSearch>(__uuidof(::TestSearch));
        ComPtr<ICollection> results;
        BeforeCall();
        Check(harness->Search(platform::ToBstr(L"jdoe"), request_.Get(), results.GetAddressOf()), L"TestSearch.Search");
        world_.See(ComPtr<IUnknown>(results.Get()));
    }

    void ChangeServices() {
        const VARIANT_BOOL validate = case_.OneIn(3) ? VARIANT_TRUE : VARIANT_FALSE;
        if (search_) search_->put_ValidateSchema(validate);
        if (submission_) submission_->put_ValidateSchema(validate);
        if (search_) search_->put_Username(platform::ToBstr(AnyText(case_)));
    }

    void ChangeRequest() {
        if (!request_ || case_.OneIn(4)) return request_.Reset(), (void)0;
        BeforeCall();
        Check(request_->FromXmlElement(ComPtr<IDispatch>(AnyElement(case_).Get()).Get()), L"FromXmlElement");
    }

    void FailToSearch() { FailedSearchLeavesTheOtherAlone(case_, world_); }
    void ChangeDocument() { EnvelopeKeepsItsTexts(case_); }
    void RepeatWork() { FutureRunsRepeatedWork(case_, world_); }

    void CallAnything() {
        const ComPtr<IUnknown> object = world_.AnyObject();
        const PublicClass* const itsClass = ClassOf(object.Get());
        if (!itsClass || itsClass->name == L"TestSearch") return;
        world_.See(object);
        const PublicInterface& members = *case_.Pick(itsClass->interfaces);
        world_.See(CallAny(object.Get(), members, case_.Pick(members.members), case_, world_.Any()));
    }

    Case& case_;
    World& world_;
    std::shared_ptr<bool> isAlive_ = std::make_shared<bool>(true);
    std::optional<Finding> finding_;
    int steps_ = 0;
    int depth_ = 0;

    ComPtr<ILejisSearchWebService> search_;
    ComPtr<ILejisSubmissionWebService> submission_;
    ComPtr<ILejisSearchRequest> request_;
    ComPtr<ILejisIncidentIndexCard> incident_{support::FullIncident().Get()};
    ComPtr<IFuture> future_;
    ComPtr<IFutureManager> manager_;
    ComPtr<ISOAPEnvelope> envelope_;
    msxml::Document document_;
    std::vector<DWORD> cookies_;
};

class SequencesTarget final : public Target {
public:
    void Run(Case& input) override {
        World world(input);
        Client(input, world).Run();
    }
};

}  // namespace

std::unique_ptr<Target> CreateSequences() { return std::make_unique<SequencesTarget>(); }

}  // namespace fuzzing
