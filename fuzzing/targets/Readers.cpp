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
    for (const PublicClass& creatable : PublicClasses()) {
        if (!creatable.isCreatable) continue;
        for (const Member& member : creatable.interfaces.front()->members) {
            if (member.name == name) found.push_back({&creatable, creatable.interfaces.front(), &member});
        }
    }
    return found;
}

msxml::Document Parsed(const std::wstring& text, Case& input) {
    msxml::Document document = msxml::CreateDocument();
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (input.OneIn(2)) platform::Check(document->put_preserveWhiteSpace(VARIANT_TRUE));
    // As a client loads it: a DOCTYPE passes.
    document->loadXML(platform::ToBstr(text), &loaded);
    // As a client builds it by itself: about as deep as may be read, or deeper.
    if (loaded && input.OneIn(20))
        support::NestIn(AnyElementOf(document, input).Get(), 200 + static_cast<int>(input.Below(150)));
    return document;
}

VARIANT_BOOL AnyValidation(Case& input) { return input.OneIn(6) ? VARIANT_TRUE : VARIANT_FALSE; }

class ReadersTarget final : public Target {
public:
    void Run(Case& input) override {
        World world(input);
        const std::wstring text = AnyXml(input);
        PardonMeasures(text, input);
        input.Trace([&] { return text; });
        switch (input.Below(8)) {
            case 5:
                return ReadEnvelope(text, input, world);
            case 6:
                return Search(text, input, world);
            case 7:
                return Submit(text, input, world);
            default:
                return Read(Parsed(text, input), input, world);
        }
    }

private:
    void Read(const msxml::Document& document, Case& input, World& world) {
        static const std::vector<Reader> elementReaders = MembersNamed(L"FromXmlElement");
        static const std::vector<Reader> documentReaders = MembersNamed(L"FromXmlDocument");
        for (int times = 0; times < 4; ++times) {
            ReadBy(input.Pick(elementReaders), AnyElementOf(document, input).Get(), input, world);
        }
        ReadBy(input.Pick(documentReaders), document.Get(), input, world);
    }

    // Hands the node to the reader, then looks at what became of it.
    void ReadBy(const Reader& reader, IDispatch* node, Case& input, World& world) {
        const ComPtr<IUnknown> object = CreateObject(reader.itsClass->id);
        ComPtr<IDispatch> dispatch;
        platform::Check(object.As(&dispatch));
        _variant_t argument(node);
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        EXCEPINFO exception{};
        input.Trace([&] { return reader.itsClass->name + L" reads"; });
        BeforeCall();
        const HRESULT result = dispatch->Invoke(reader.member->id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD,
                                                &parameters, nullptr, &exception, nullptr);
        AfterCall(CallKind::kInvoke, result, reader.itsClass->name + L"." + reader.member->name, &exception);
        for (uint32_t looks = input.Below(3); looks > 0; --looks) {
            const ComPtr<IUnknown> held = CallAny(object.Get(), *reader.itsInterface,
                                                  input.Pick(reader.itsInterface->members), input, world.Any());
            world.See(held);
        }
        world.See(object);
    }

    void ReadEnvelope(const std::wstring& text, Case& input, World& world) {
        const PublicInterface& envelopes = *FindInterface(__uuidof(ISOAPEnvelope));
        const ComPtr<IUnknown> object = CreateObject(__uuidof(::SOAPEnvelope));
        ComPtr<ISOAPEnvelope> envelope;
        platform::Check(object.As(&envelope));
        envelope->put_Body(platform::ToBstr(text));
        for (int calls = 0; calls < 5; ++calls) {
            world.See(CallAny(object.Get(), envelopes, input.Pick(envelopes.members), input, world.Any()));
        }
    }

    void SetAnswer(const std::wstring& text, Case& input, World& world) {
        world.script.responseText = text;
        world.script.status = input.Pick(kReadStatuses);
        world.script.hasStatusText = !input.OneIn(8);
        input.Trace([&] { return L"the server answers with status " + std::to_wstring(world.script.status); });
        world.script.statusText = input.OneIn(2) ? L"" : L"What the server says";
    }

    void Search(const std::wstring& text, Case& input, World& world) {
        SetAnswer(text, input, world);
        ComPtr<ILejisSearchWebService> service;
        ComPtr<ILejisSearchRequest> request;
        platform::Check(CreateObject(__uuidof(::LejisSearchWebService)).As(&service));
        platform::Check(CreateObject(__uuidof(::LejisSearchRequest)).As(&request));
        input.Trace([] { return std::wstring(L"search"); });
        const auto log = support::EventLog::ForSearches();
        log->ConnectTo(service.Get());
        service->put_ValidateSchema(AnyValidation(input));
        service->put_Username(platform::ToBstr(input.OneIn(3) ? AnyText(input) : L"jdoe"));
        BeforeCall();
        AfterCall(CallKind::kMember, service->Search(request.Get()), L"Search");
        for (int steps = 0; steps < 3; ++steps) world.Advance();
        log->Disconnect();
        if (log->events.size() != 1) {
            throw Finding{"a search that raised " + std::to_string(log->events.size()) + " events"};
        }
    }

    void Submit(const std::wstring& text, Case& input, World& world) {
        SetAnswer(text, input, world);
        ComPtr<ILejisSubmissionWebService> service;
        ComPtr<ICollection> warnings;
        platform::Check(CreateObject(__uuidof(::LejisSubmissionWebService)).As(&service));
        input.Trace([] { return std::wstring(L"submit"); });
        const auto incident = support::CleanIncident();
        service->put_ValidateSchema(AnyValidation(input));
        BeforeCall();
        const HRESULT result = input.OneIn(2) ? service->SubmitIncident(incident.Get(), warnings.GetAddressOf())
                                              : service->DeleteIncident(incident.Get());
        AfterCall(CallKind::kMember, result, L"SubmitIncident");
        if (FAILED(result) && result != tvTransientError && result != tvFatalError) {
            throw Finding{"a submission that failed with neither of its two errors"};
        }
    }
};

}  // namespace

std::unique_ptr<Target> CreateReaders() { return std::make_unique<ReadersTarget>(); }

}  // namespace fuzzing
