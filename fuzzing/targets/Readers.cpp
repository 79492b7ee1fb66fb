// XML from hostile hands into everything that reads it: cards, blocks, envelopes, and the answers of servers.
#include "com/Calls.h"
#include "com/FailureCheck.h"
#include "com/Texts.h"
#include "engine/Finding.h"
#include "platform/msxml/Document.h"
#include "platform/Text.h"
#include "support/DeepXml.h"
#include "targets/Targets.h"
#include "unit_support/EventLog.h"
#include "unit_support/Incidents.h"
#include "world/Creation.h"
#include "world/Documents.h"
#include "world/World.h"
#include "xml/Mutation.h"

#include <algorithm>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

constexpr long kReadStatuses[] = {200, 200, 200, 200, 0, 204, 400, 403, 404, 408, 500, 502, 12002, 12019, 12029, -1};

// Every member of one name, with the class and interface that has it.
struct Reader {
    const PublicClass* itsClass;
    const PublicInterface* itsInterface;
    const Member* member;
};

std::vector<Reader> MembersNamed(const std::wstring& name) {
    std::vector<Reader> found;
    for (const PublicClass& one : PublicClasses()) {
        if (!one.isCreatable) continue;
        for (const Member& member : one.interfaces.front()->members) {
            if (member.name == name) found.push_back({&one, one.interfaces.front(), &member});
        }
    }
    return found;
}

msxml::Document Parsed(const std::wstring& text, Case& one) {
    msxml::Document document = msxml::CreateDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (one.OneIn(2)) platform::Check(document->put_preserveWhiteSpace(VARIANT_TRUE));
    // As a client loads it: a DOCTYPE passes.
    document->loadXML(platform::ToBstr(text), &loaded);
    // As a client builds it by itself: about as deep as may be read, or deeper.
    if (loaded && one.OneIn(20))
        support::NestIn(AnyElementOf(document, one).Get(), 200 + static_cast<int>(one.Below(150)));
    return document;
}

VARIANT_BOOL AnyValidation(Case& one) { return one.OneIn(6) ? VARIANT_TRUE : VARIANT_FALSE; }

class ReadersTarget final : public Target {
public:
    void Run(Case& one) override {
        World world(one);
        const std::wstring text = AnyXml(one);
        PardonMeasures(text, one);
        one.Trace([&] { return text; });
        switch (one.Below(8)) {
            case 5:
                return ReadEnvelope(text, one, world);
            case 6:
                return Search(text, one, world);
            case 7:
                return Submit(text, one, world);
            default:
                return Read(Parsed(text, one), one, world);
        }
    }

private:
    void Read(const msxml::Document& document, Case& one, World& world) {
        static const std::vector<Reader> elementReaders = MembersNamed(L"FromXmlElement");
        static const std::vector<Reader> documentReaders = MembersNamed(L"FromXmlDocument");
        for (int times = 0; times < 4; ++times) {
            ReadBy(one.Pick(elementReaders), AnyElementOf(document, one).Get(), one, world);
        }
        ReadBy(one.Pick(documentReaders), document.Get(), one, world);
    }

    // Hands the node to the reader, then looks at what became of it.
    void ReadBy(const Reader& reader, IDispatch* node, Case& one, World& world) {
        const ComPtr<IUnknown> object = CreateObject(reader.itsClass->id);
        ComPtr<IDispatch> dispatch;
        platform::Check(object.As(&dispatch));
        _variant_t argument(node);
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        EXCEPINFO exception{};
        one.Trace([&] { return reader.itsClass->name + L" reads"; });
        BeforeCall();
        const HRESULT result = dispatch->Invoke(reader.member->id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                &parameters, nullptr, &exception, nullptr);
        AfterCall(Road::kInvoke, result, reader.itsClass->name + L"." + reader.member->name, &exception);
        for (uint32_t looks = one.Below(3); looks > 0; --looks) {
            const ComPtr<IUnknown> held =
                CallAny(object.Get(), *reader.itsInterface, one.Pick(reader.itsInterface->members), one, world.Any());
            world.See(held);
        }
        world.See(object);
    }

    void ReadEnvelope(const std::wstring& text, Case& one, World& world) {
        const PublicInterface& envelopes = *FindInterface(__uuidof(ISOAPEnvelope));
        const ComPtr<IUnknown> object = CreateObject(__uuidof(::SOAPEnvelope));
        ComPtr<ISOAPEnvelope> envelope;
        platform::Check(object.As(&envelope));
        envelope->put_Body(platform::ToBstr(text));
        for (int calls = 0; calls < 5; ++calls) {
            world.See(CallAny(object.Get(), envelopes, one.Pick(envelopes.members), one, world.Any()));
        }
    }

    void SetAnswer(const std::wstring& text, Case& one, World& world) {
        world.script.responseText = text;
        world.script.status = one.Pick(kReadStatuses);
        world.script.hasStatusText = !one.OneIn(8);
        one.Trace([&] { return L"the server answers with status " + std::to_wstring(world.script.status); });
        world.script.statusText = one.OneIn(2) ? L"" : L"What the server says";
    }

    void Search(const std::wstring& text, Case& one, World& world) {
        SetAnswer(text, one, world);
        ComPtr<ILejisSearchWebService> service;
        ComPtr<ILejisSearchRequest> request;
        platform::Check(CreateObject(__uuidof(::LejisSearchWebService)).As(&service));
        platform::Check(CreateObject(__uuidof(::LejisSearchRequest)).As(&request));
        one.Trace([] { return std::wstring(L"search"); });
        const auto log = support::EventLog::ForSearches();
        log->ConnectTo(service.Get());
        service->put_ValidateSchema(AnyValidation(one));
        service->put_Username(platform::ToBstr(one.OneIn(3) ? AnyText(one) : L"jdoe"));
        BeforeCall();
        AfterCall(Road::kMember, service->Search(request.Get()), L"Search");
        for (int steps = 0; steps < 3; ++steps) world.Advance();
        log->Disconnect();
        if (log->events.size() != 1) {
            throw Finding{"a search that raised " + std::to_string(log->events.size()) + " events"};
        }
    }

    void Submit(const std::wstring& text, Case& one, World& world) {
        SetAnswer(text, one, world);
        ComPtr<ILejisSubmissionWebService> service;
        ComPtr<ICollection> warnings;
        platform::Check(CreateObject(__uuidof(::LejisSubmissionWebService)).As(&service));
        one.Trace([] { return std::wstring(L"submit"); });
        const auto incident = support::CleanIncident();
        service->put_ValidateSchema(AnyValidation(one));
        BeforeCall();
        const HRESULT result = one.OneIn(2) ? service->SubmitIncident(incident.Get(), warnings.GetAddressOf())
                                            : service->DeleteIncident(incident.Get());
        AfterCall(Road::kMember, result, L"SubmitIncident");
        if (FAILED(result) && result != tvTransientError && result != tvFatalError) {
            throw Finding{"a submission that failed with neither of its two errors"};
        }
    }
};

}  // namespace

std::unique_ptr<Target> CreateReaders() { return std::make_unique<ReadersTarget>(); }

}  // namespace fuzzing
