#include "world/World.h"

#include "com/Texts.h"
#include "platform/ComError.h"
#include "platform/host/SuiteHost.h"
#include "platform/http/AbandonedRequests.h"
#include "platform/Registry.h"
#include "world/Creation.h"
#include "world/Documents.h"
#include "world/MessageBoxes.h"
#include "world/Runnable.h"

#include <utility>

using Microsoft::WRL::ComPtr;

namespace fuzzing {
namespace {

// Automation objects of clients: one that has a value, and one whose members fail.
ComPtr<IUnknown> ClientObject(Case& input) {
    const bool fails = input.OneIn(2);
    const _variant_t value(AnyText(input).c_str());
    const auto answer = [fails, value](const std::vector<_variant_t>&, WORD) {
        if (fails) throw platform::ComError(E_FAIL, L"The client's object fails.");
        return value;
    };
    const auto object = platform::Create<support::LateBoundObject>(
        std::map<std::wstring, support::Member>{{L"Value", answer}, {L"Run", answer}});
    return ComPtr<IUnknown>(static_cast<IDispatch*>(object.Get()));
}

// Finding a class in the registry costs more than most cases; one that is registered in the process is found at once.
void KeepFactory(REFCLSID classId) {
    ComPtr<IUnknown> factory;
    DWORD cookie = 0;
    platform::Check(CoGetClassObject(classId, CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(factory.GetAddressOf())));
    platform::Check(CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie));
}

}  // namespace

World::World(Case& input) : case_(input), values_(input, [this] { return AnyObject(); }) {
    static const NoMessageBoxes none;
    Host().onYield = [this] { Yield(); };
    platform::SetHttpRequestFactory([this] { return MakeRequest(); });
    script.readyStates = {1, 4};
}

World::~World() {
    isEnding_ = true;
    constexpr int kSteps = 4;
    for (int step = 0; step < kSteps; ++step) Advance();
    EndRequests();
    EmptyCollections();
    platform::SetHttpRequestFactory(nullptr);
    Host().onYield = [] {};
    Host().errorKinds.clear();
    Host().timers.clear();
}

support::TestHost& World::Host() {
    static support::TestHost* const host = [] {
        // Never deleted: it would outlive what it needs.
        auto* const made = new support::TestHost;
        // Its parts are made on first use, which no case is to be blamed for.
        platform::host::YieldToHost();
        platform::host::DiagnosticsFolder();
        KeepFactory(__uuidof(DOMDocument60));
        KeepFactory(__uuidof(XMLSchemaCache60));
        return made;
    }();
    return *host;
}

void World::ForgetHost() {
    for (const wchar_t* name :
         {L"TalvexSuite.SuiteServices", L"TalvexSuite.SuiteEnvironment", L"TalvexSuite.SuiteTimer"}) {
        platform::DeleteRegistryTree(HKEY_CLASSES_ROOT, name);
    }
}

ComPtr<IXMLHTTPRequest> World::MakeRequest() {
    requests_.push_back(platform::Create<support::ScriptedRequest>(script));
    return ComPtr<IXMLHTTPRequest>(requests_.back().Get());
}

void World::Yield() {
    if (isEnding_ || ++yields_ > kLongestWait) throw platform::ComError(E_ABORT, L"The host ends the wait.");
    onYield();
    Advance();
}

void World::Advance() {
    // By index, and held: a request or a timer may make others.
    for (size_t index = 0; index < requests_.size(); ++index) {
        const auto request = requests_[index];
        request->Advance();
    }
    for (size_t index = 0; index < Host().timers.size(); ++index) {
        const auto timer = Host().timers[index];
        timer->Tick();
    }
}

ComPtr<IUnknown> World::AnyObject() {
    switch (case_.Below(10)) {
        case 0:
        case 1:
            return nullptr;
        case 2:
            return ClientObject(case_);
        case 3:
            return ComPtr<IUnknown>(AnyElement(case_).Get());
        case 4:
            return ComPtr<IUnknown>(AnyDocument(case_).Get());
        case 5:
            return ComPtr<IUnknown>(platform::Create<Runnable>(case_.OneIn(3) ? E_FAIL : S_OK).Get());
        case 6:
        case 7:
            if (!seen_.empty()) return case_.Pick(seen_);
            [[fallthrough]];
        default:
            return CreateAny(case_);
    }
}

void World::See(ComPtr<IUnknown> object) {
    if (object) seen_.push_back(std::move(object));
}

void World::EndRequests() {
    for (const auto& request : requests_) {
        // Some never complete.
        request->ClearHandler();
        // The WSDL is fetched, whose schemas are documents made from it: Wine keeps such documents for ever.
        if (request->Seen().method == L"GET") case_.PardonLeaks();
    }
    platform::ReleaseCompleteRequests();
}

void World::EmptyCollections() {
    for (const auto& object : std::exchange(seen_, {})) {
        ComPtr<ICollection> collection;
        long count = 0;
        if (FAILED(object.As(&collection)) || FAILED(collection->get_Count(&count))) continue;
        for (; count > 0; --count) collection->Remove(count);
    }
}

}  // namespace fuzzing
