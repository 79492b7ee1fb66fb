#include "platform/com/EventSource.h"

#include "platform/com/EventSink.h"
#include "platform/com/UnknownObject.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

#include <ocidl.h>
#include <olectl.h>

#include <TVLejisCore.h>
#include <functional>
#include <memory>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

constexpr DISPID kEvent = 3;

class Source final : public UnknownObject<IConnectionPointContainer> {
public:
    ~Source() override { *ended = true; }

    STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** result) override {
        *result = point.EnumerateAlone().Detach();
        return S_OK;
    }
    STDMETHODIMP FindConnectionPoint(REFIID, IConnectionPoint**) override { return E_NOTIMPL; }

    ConnectionPoint point{this, __uuidof(_ISuiteTimerEvents)};
    std::shared_ptr<bool> ended = std::make_shared<bool>(false);
};

// A plain automation object that is told of the events.
class Sink : public EventSink<> {
public:
    using Handler = std::function<HRESULT(const DISPPARAMS&)>;

    explicit Sink(Handler handler = [](const DISPPARAMS&) { return S_OK; }) : handler_(std::move(handler)) {}

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD flags, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        if (event != kEvent) return DISP_E_MEMBERNOTFOUND;
        EXPECT_EQ(DISPATCH_METHOD, flags);
        ++told;
        return handler_(*parameters);
    }

    int told = 0;

private:
    Handler handler_;
};

// Answers for the events' own interface and not for automation's.
class OwnSink final : public Sink {
protected:
    void* Find(REFIID iid) override {
        if (iid == __uuidof(_ISuiteTimerEvents)) return First();
        return iid == __uuidof(IUnknown) ? Sink::Find(iid) : nullptr;
    }
};

DWORD Connect(Source& source, IUnknown* sink) {
    DWORD cookie = 0;
    EXPECT_OK(source.point.Advise(sink, &cookie));
    EXPECT_NE(0u, cookie);
    return cookie;
}

TEST(ConnectionPoint, CallsAllSinksInTheOrderOfTheirConnecting) {
    const auto source = Create<Source>();
    std::wstring order;
    const auto first = Create<Sink>([&](const DISPPARAMS&) { return order += L"1", S_OK; });
    const auto second = Create<Sink>([&](const DISPPARAMS&) { return order += L"2", S_OK; });
    const DWORD firstCookie = Connect(*source, first.Get());
    EXPECT_NE(firstCookie, Connect(*source, second.Get()));
    source->point.Fire(kEvent, {});
    source->point.Fire(kEvent, {});
    EXPECT_EQ(L"1212", order);
}

TEST(ConnectionPoint, PassesArgumentsLastOneFirst) {
    const auto source = Create<Source>();
    const auto sink = Create<Sink>([](const DISPPARAMS& parameters) {
        EXPECT_EQ(2u, parameters.cArgs);
        EXPECT_EQ(0u, parameters.cNamedArgs);
        EXPECT_EQ(_variant_t(L"first"), _variant_t(parameters.rgvarg[1]));
        EXPECT_EQ(_variant_t(2L), _variant_t(parameters.rgvarg[0]));
        return S_OK;
    });
    Connect(*source, sink.Get());
    source->point.Fire(kEvent, {L"first", 2L});
    EXPECT_EQ(1, sink->told);
}

TEST(ConnectionPoint, CallsTheOtherSinksWhenOneLacksTheEventOrFails) {
    const auto source = Create<Source>();
    const auto failing = Create<Sink>([](const DISPPARAMS&) { return E_UNEXPECTED; });
    const auto last = Create<Sink>();
    Connect(*source, failing.Get());
    Connect(*source, last.Get());
    source->point.Fire(kEvent + 1, {});
    EXPECT_EQ(0, last->told);
    source->point.Fire(kEvent, {});
    EXPECT_EQ(1, failing->told);
    EXPECT_EQ(1, last->told);
}

TEST(ConnectionPoint, DoesNotCallADisconnectedSink) {
    const auto source = Create<Source>();
    const auto sink = Create<Sink>();
    const DWORD cookie = Connect(*source, sink.Get());
    EXPECT_EQ(S_OK, source->point.Unadvise(cookie));
    EXPECT_EQ(CONNECT_E_NOCONNECTION, source->point.Unadvise(cookie));
    source->point.Fire(kEvent, {});
    EXPECT_EQ(0, sink->told);
}

TEST(ConnectionPoint, SurvivesASinkThatDisconnectsDuringTheEvent) {
    const auto source = Create<Source>();
    DWORD cookie = 0;
    const auto leaving = Create<Sink>([&](const DISPPARAMS&) { return source->point.Unadvise(cookie); });
    const auto last = Create<Sink>();
    cookie = Connect(*source, leaving.Get());
    Connect(*source, last.Get());
    source->point.Fire(kEvent, {});
    source->point.Fire(kEvent, {});
    EXPECT_EQ(1, leaving->told);
    EXPECT_EQ(2, last->told);
}

TEST(ConnectionPoint, CallsASinkThatConnectsDuringAnEventFromTheNextOnwards) {
    const auto source = Create<Source>();
    const auto late = Create<Sink>();
    const auto first = Create<Sink>([&](const DISPPARAMS&) {
        if (late->told == 0) Connect(*source, late.Get());
        return S_OK;
    });
    const DWORD cookie = Connect(*source, first.Get());
    source->point.Fire(kEvent, {});
    EXPECT_EQ(0, late->told);
    EXPECT_OK(source->point.Unadvise(cookie));
    source->point.Fire(kEvent, {});
    EXPECT_EQ(1, late->told);
}

TEST(ConnectionPoint, KeepsItsSourceAliveUntilAllSinksAreCalled) {
    Microsoft::WRL::ComPtr<Source> source = Create<Source>();
    ConnectionPoint& point = source->point;
    const std::shared_ptr<bool> ended = source->ended;
    const auto releasing = Create<Sink>([&](const DISPPARAMS&) { return source.Reset(), S_OK; });
    bool endedMeanwhile = false;
    const auto last = Create<Sink>([&](const DISPPARAMS&) { return endedMeanwhile = *ended, S_OK; });
    Connect(*source.Get(), releasing.Get());
    Connect(*source.Get(), last.Get());
    point.Fire(kEvent, {});
    EXPECT_EQ(1, last->told);
    EXPECT_FALSE(endedMeanwhile);
    EXPECT_TRUE(*ended);
}

TEST(ConnectionPoint, TakesSinksOfTheEventsOwnInterfaceAndRefusesOthers) {
    const auto source = Create<Source>();
    const auto own = Create<OwnSink>();
    Connect(*source, own.Get());
    source->point.Fire(kEvent, {});
    EXPECT_EQ(1, own->told);
    DWORD cookie = 99;
    EXPECT_EQ(CONNECT_E_CANNOTCONNECT, source->point.Advise(Create<Source>().Get(), &cookie));
    EXPECT_EQ(0u, cookie);
    EXPECT_EQ(E_POINTER, source->point.Advise(nullptr, &cookie));
    EXPECT_EQ(E_POINTER, source->point.Advise(own.Get(), nullptr));
}

TEST(ConnectionPoint, KnowsItsEventsAndItsContainer) {
    const auto source = Create<Source>();
    IID iid{};
    EXPECT_OK(source->point.GetConnectionInterface(&iid));
    EXPECT_TRUE(iid == __uuidof(_ISuiteTimerEvents));
    ComPtr<IConnectionPointContainer> container;
    EXPECT_OK(source->point.GetConnectionPointContainer(container.GetAddressOf()));
    EXPECT_EQ(source.Get(), container.Get());
    ComPtr<IDispatch> automation;
    EXPECT_EQ(E_NOINTERFACE, source->point.QueryInterface(IID_PPV_ARGS(automation.GetAddressOf())));
    EXPECT_EQ(E_POINTER, source->point.QueryInterface(__uuidof(IUnknown), nullptr));
    EXPECT_EQ(E_POINTER, source->point.GetConnectionInterface(nullptr));
    EXPECT_EQ(E_POINTER, source->point.GetConnectionPointContainer(nullptr));
}

TEST(ConnectionPoint, ListsItsConnectionsOfTheMoment) {
    const auto source = Create<Source>();
    const auto sink = Create<Sink>();
    const DWORD cookie = Connect(*source, sink.Get());
    ComPtr<IEnumConnections> connections;
    ASSERT_OK(source->point.EnumConnections(connections.GetAddressOf()));
    Connect(*source, sink.Get());
    CONNECTDATA data[2] = {};
    ULONG fetched = 0;
    EXPECT_EQ(S_FALSE, connections->Next(2, data, &fetched));
    ASSERT_EQ(1u, fetched);
    EXPECT_EQ(cookie, data[0].dwCookie);
    EXPECT_EQ(sink.Get(), data[0].pUnk);
    data[0].pUnk->Release();
}

}  // namespace
}  // namespace platform
