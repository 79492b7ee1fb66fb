// Events of the submission service, as a client's sink connects to them and hears them.
#include "client/ClientObject.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace client {
namespace {

// Hears the events and notes them.
class Sink final : public ClientObject<IDispatch> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        const bool isEvents = answersForEvents && iid == __uuidof(_LejisSubmissionWebServiceEvents);
        return ClientObject::QueryInterface(isEvents ? __uuidof(IDispatch) : iid, object);
    }

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        heard.push_back({event, parameters->cArgs == 1 ? V_BSTR(&parameters->rgvarg[0]) : L""});
        if (whenHeard) whenHeard();
        return result;
    }

    bool answersForEvents = true;
    HRESULT result = S_OK;
    std::function<void()> whenHeard;
    std::vector<std::pair<DISPID, std::wstring>> heard;
};

class EventSource : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_OK(service_.As(&container_));
        ASSERT_OK(container_->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), point_.GetAddressOf()));
    }

    DWORD Advise(Sink* sink) {
        DWORD cookie = 0;
        EXPECT_OK(point_->Advise(sink, &cookie));
        EXPECT_NE(0U, cookie);
        return cookie;
    }

    // Run without a request that was sent ends in the event of a failed service.
    void Raise() {
        ComPtr<IRunnable> runnable;
        ASSERT_OK(service_.As(&runnable));
        EXPECT_OK(runnable->Run());
    }

    ComPtr<ILejisSubmissionWebService> service_ = Create<LejisSubmissionWebService, ILejisSubmissionWebService>();
    ComPtr<IConnectionPointContainer> container_;
    ComPtr<IConnectionPoint> point_;
};

const std::pair<DISPID, std::wstring> kServiceError{5, L"Internal error in web service code: Object required"};

TEST_F(EventSource, HasOnePointWhichIsFoundAndEnumerated) {
    ComPtr<IEnumConnectionPoints> points;
    ComPtr<IConnectionPoint> found;
    ComPtr<IConnectionPoint> second;
    ASSERT_OK(container_->EnumConnectionPoints(points.GetAddressOf()));
    EXPECT_EQ(S_OK, points->Next(1, found.GetAddressOf(), nullptr));
    EXPECT_EQ(point_, found);
    EXPECT_EQ(S_FALSE, points->Next(1, second.GetAddressOf(), nullptr));
    EXPECT_EQ(E_POINTER, container_->EnumConnectionPoints(nullptr));
}

TEST_F(EventSource, HasThePointThatItsClassInformationNames) {
    ComPtr<IProvideClassInfo2> provider;
    ComPtr<IConnectionPoint> found;
    GUID events = GUID_NULL;
    IID declared = GUID_NULL;
    ASSERT_OK(service_.As(&provider));
    ASSERT_OK(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    EXPECT_OK(container_->FindConnectionPoint(events, found.GetAddressOf()));
    EXPECT_EQ(point_, found);
    ASSERT_OK(point_->GetConnectionInterface(&declared));
    EXPECT_EQ(GuidText(events), GuidText(declared));
}

TEST_F(EventSource, HasNoOtherPoint) {
    ComPtr<IConnectionPoint> found = point_;
    EXPECT_EQ(CONNECT_E_NOCONNECTION,
              container_->FindConnectionPoint(__uuidof(IDispatch), found.ReleaseAndGetAddressOf()));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(E_POINTER, container_->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), nullptr));
}

TEST_F(EventSource, PointLeadsBackToItsContainer) {
    ComPtr<IConnectionPointContainer> container;
    ASSERT_OK(point_->GetConnectionPointContainer(container.GetAddressOf()));
    EXPECT_EQ(container_, container);
    EXPECT_EQ(E_POINTER, point_->GetConnectionPointContainer(nullptr));
    EXPECT_EQ(E_POINTER, point_->GetConnectionInterface(nullptr));
}

TEST_F(EventSource, RefusesNoSinkAndASinkThatCannotHear) {
    DWORD cookie = 7;
    // An object, but none that can be called by name.
    ComPtr<IEnumConnectionPoints> deaf;
    ASSERT_OK(container_->EnumConnectionPoints(deaf.GetAddressOf()));
    EXPECT_EQ(E_POINTER, point_->Advise(nullptr, &cookie));
    EXPECT_EQ(E_POINTER, point_->Advise(Make<Sink>().Get(), nullptr));
    EXPECT_EQ(CONNECT_E_CANNOTCONNECT, point_->Advise(deaf.Get(), &cookie));
    EXPECT_EQ(0U, cookie);
}

TEST_F(EventSource, ForgetsASinkOnceAndOnlyByItsCookie) {
    const auto sink = Make<Sink>();
    const DWORD cookie = Advise(sink.Get());
    EXPECT_EQ(CONNECT_E_NOCONNECTION, point_->Unadvise(cookie + 1));
    Raise();
    EXPECT_OK(point_->Unadvise(cookie));
    EXPECT_EQ(CONNECT_E_NOCONNECTION, point_->Unadvise(cookie));
    Raise();
    EXPECT_EQ(1U, sink->heard.size());
}

TEST_F(EventSource, TellsEverySinkWhatHappened) {
    const auto first = Make<Sink>();
    const auto second = Make<Sink>();
    Advise(first.Get());
    const DWORD cookie = Advise(second.Get());
    Raise();
    ASSERT_EQ(1U, first->heard.size());
    EXPECT_EQ(kServiceError, first->heard[0]);
    EXPECT_EQ(first->heard, second->heard);
    EXPECT_OK(point_->Unadvise(cookie));
}

TEST_F(EventSource, ListsItsConnections) {
    const auto sink = Make<Sink>();
    const DWORD cookie = Advise(sink.Get());
    ComPtr<IEnumConnections> connections;
    CONNECTDATA data{};
    ASSERT_OK(point_->EnumConnections(connections.GetAddressOf()));
    ASSERT_EQ(S_OK, connections->Next(1, &data, nullptr));
    EXPECT_EQ(cookie, data.dwCookie);
    EXPECT_EQ(static_cast<IUnknown*>(sink.Get()), data.pUnk);
    data.pUnk->Release();
    EXPECT_EQ(S_FALSE, connections->Next(1, &data, nullptr));
}

TEST_F(EventSource, TellsAPlainAutomationObjectToo) {
    const auto sink = Make<Sink>();
    sink->answersForEvents = false;
    Advise(sink.Get());
    Raise();
    EXPECT_EQ(1U, sink->heard.size());
}

TEST_F(EventSource, IsNotHarmedByASinkThatFails) {
    const auto failing = Make<Sink>();
    const auto other = Make<Sink>();
    failing->result = E_FAIL;
    Advise(failing.Get());
    Advise(other.Get());
    Raise();
    EXPECT_EQ(1U, other->heard.size());
}

TEST_F(EventSource, IsNotHarmedByASinkThatDisconnectsDuringTheEvent) {
    const auto leaving = Make<Sink>();
    const auto other = Make<Sink>();
    const DWORD cookie = Advise(leaving.Get());
    leaving->whenHeard = [&] { EXPECT_OK(point_->Unadvise(cookie)); };
    Advise(other.Get());
    Raise();
    Raise();
    EXPECT_EQ(1U, leaving->heard.size());
    EXPECT_EQ(2U, other->heard.size());
}

TEST_F(EventSource, IsNotHarmedByASinkThatReleasesItDuringTheEvent) {
    const auto sink = Make<Sink>();
    Advise(sink.Get());
    ComPtr<IRunnable> runnable;
    ASSERT_OK(service_.As(&runnable));
    // The call that raises the event is the last to hold the service.
    IRunnable* const called = runnable.Get();
    sink->whenHeard = [&] {
        point_.Reset();
        container_.Reset();
        service_.Reset();
        runnable.Reset();
    };
    EXPECT_OK(called->Run());
    EXPECT_EQ(1U, sink->heard.size());
}

TEST_F(EventSource, LetsItsSinksGoAtItsEnd) {
    const auto sink = Make<Sink>();
    Advise(sink.Get());
    point_.Reset();
    container_.Reset();
    service_.Reset();
    sink->AddRef();
    EXPECT_EQ(1U, sink->Release());
}

}  // namespace
}  // namespace client
