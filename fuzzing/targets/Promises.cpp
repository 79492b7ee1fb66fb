#include "targets/Promises.h"

#include "deferred/Future.h"
#include "engine/Finding.h"
#include "inquiry/LejisSearchRequest.h"
#include "platform/msxml/Document.h"
#include "platform/Text.h"
#include "services/LejisSearchWebService.h"
#include "services/SOAPEnvelope.h"
#include "unit_support/Answers.h"
#include "unit_support/EventLog.h"
#include "unit_support/RecordingRunnable.h"
#include "unit_support/Soap.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

void Promise(bool kept, const char* what) {
    if (!kept) throw Finding{what};
}

// The requests of this case answer well for a while.
class GoodAnswers {
public:
    explicit GoodAnswers(World& world)
        : world_(world),
          before_(std::exchange(
              world.script, {.readyStates = {1, 4},
                             .responseText = support::InquiryResponse(L"<lejis:incidentcount>1</lejis:incidentcount>" +
                                                                      support::AnsweredCard(L"2007-1"))})) {}
    ~GoodAnswers() { world_.script = before_; }
    GoodAnswers(const GoodAnswers&) = delete;
    GoodAnswers& operator=(const GoodAnswers&) = delete;

private:
    World& world_;
    const support::Script before_;
};

void AdvanceSome(World& world) {
    constexpr int kEnough = 6;
    for (int step = 0; step < kEnough; ++step) world.Advance();
}

std::wstring TextsOf(lejis::SOAPEnvelope& envelope) {
    using TextMember = HRESULT (STDMETHODCALLTYPE ISOAPEnvelope::*)(BSTR*);
    constexpr TextMember kTexts[] = {&ISOAPEnvelope::get_Body, &ISOAPEnvelope::FaultMessage, &ISOAPEnvelope::FaultCode};
    std::wstring all;
    for (const TextMember member : kTexts) {
        BSTR text = nullptr;
        all += std::to_wstring((static_cast<ISOAPEnvelope&>(envelope).*member)(&text)) + L"|";
        all += platform::TakeText(text) + L"|";
    }
    VARIANT_BOOL isFault = VARIANT_FALSE;
    all += std::to_wstring(static_cast<ISOAPEnvelope&>(envelope).IsFault(&isFault));
    return all + std::to_wstring(isFault);
}

void Change(const msxml::Document& document, Case& input) {
    switch (input.Below(4)) {
        case 0:
            document->loadXML(platform::ToBstr(L"<a/>"), nullptr);
            break;
        case 1:
            document->setProperty(platform::ToBstr(L"SelectionNamespaces"), _variant_t(L"xmlns:soap='urn:another'"));
            break;
        case 2:
            document->put_preserveWhiteSpace(VARIANT_TRUE);
            break;
        default:
            if (const msxml::Element root = msxml::Root(document)) root->put_text(platform::ToBstr(L"changed"));
    }
}

}  // namespace

void FailedSearchLeavesTheOtherAlone(Case& input, World& world) {
    const GoodAnswers good(world);
    const auto service = platform::Create<lejis::LejisSearchWebService>();
    const auto request = platform::Create<lejis::LejisSearchRequest>();
    const auto log = support::EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    service->URL = L"http://127.0.0.1/search";
    static_cast<ILejisSearchWebService*>(service.Get())->Search(request.Get());
    Promise(log->events.empty(), "a search has its event inside of the call");
    service->Username = input.OneIn(2) ? L"<" : L"jdoe";
    const bool isNamed = service->Username == L"jdoe";
    static_cast<ILejisSearchWebService*>(service.Get())->Search(isNamed ? nullptr : request.Get());
    Promise(log->events.size() == 1 && log->events[0].starts_with(L"ConfigurationError"),
            "a search that cannot be sent has no event of its own");
    AdvanceSome(world);
    Promise(log->events.size() == 2 && log->events[1] == L"SearchCompleted: 1 cards",
            "a search that cannot be sent takes the event of the one under way");
    log->Disconnect();
}

void EnvelopeKeepsItsTexts(Case& input) {
    const std::wstring answers[] = {support::SoapFault(L"c", L"m"), support::SubmissionResponse(L" 0 "),
                                    support::Soap(L" <a> b </a> ")};
    const msxml::Document document = msxml::CreateDocument();
    msxml::LoadXml(document, input.Pick(answers));
    const auto envelope = platform::Create<lejis::SOAPEnvelope>();
    static_cast<ISOAPEnvelope*>(envelope.Get())->FromXmlDocument(document.Get());
    const std::wstring before = TextsOf(*envelope);
    for (uint32_t changes = 1 + input.Below(3); changes > 0; --changes) Change(document, input);
    Promise(TextsOf(*envelope) == before, "an envelope changes with its client's document");
}

void FutureRunsRepeatedWork(Case& input, World& world) {
    const auto future = platform::Create<lejis::Future>();
    const auto runnable = platform::Create<support::RecordingRunnable>();
    const auto observer = platform::Create<support::RecordingObserver>();
    const int wanted = 1 + static_cast<int>(input.Below(3));
    runnable->result = input.OneIn(2) ? S_OK : E_FAIL;
    runnable->onRun = [&] {
        if (runnable->runs < wanted) future->Schedule(runnable.Get(), observer.Get());
    };
    future->Schedule(runnable.Get(), observer.Get());
    AdvanceSome(world);
    runnable->onRun = [] {};
    Promise(runnable->runs == wanted, "work that a future's own work gave it is not run");
    const size_t told = SUCCEEDED(runnable->result) ? static_cast<size_t>(wanted) : 0;
    Promise(observer->completed.size() == told, "an observer is not told of each run that succeeds");
}

}  // namespace fuzzing
