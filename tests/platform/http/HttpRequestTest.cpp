// What the boundary to MSXML's request evens out, on Windows and under Wine.
#include "platform/http/HttpRequest.h"

#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/Wine.h"
#include "support/ComCheck.h"
#include "unit_support/EarlyBound.h"
#include "unit_support/PlayedWindows.h"
#include "unit_support/Raises.h"
#include "unit_support/ScriptedRequest.h"

#include <gtest/gtest.h>

#include <optional>

using Microsoft::WRL::ComPtr;
using support::ScriptedHttp;

namespace platform {
namespace {

constexpr wchar_t kUrl[] = L"http://lejis-interface/search";

// The number that the work raises; none when it raises nothing.
template <typename Work>
std::optional<HRESULT> NumberRaised(Work&& work) {
    try {
        work();
        return std::nullopt;
    } catch (const ComError& error) {
        return error.Number();
    }
}

// Counts what a request calls, and knows who holds it.
class Handler final : public support::EarlyBound<IDispatch> {
public:
    explicit Handler(int& living) : living_(living) { ++living_; }
    ~Handler() override { --living_; }

    STDMETHODIMP Invoke(DISPID member, REFIID, LCID, WORD, DISPPARAMS* parameters, VARIANT*, EXCEPINFO*,
                        UINT*) override {
        if (member == DISPID_VALUE && parameters && parameters->cArgs == 0) ++calls;
        return S_OK;
    }

    int calls = 0;

private:
    int& living_;
};

class HttpRequestTest : public testing::Test {
protected:
    // A request, opened to be posted, that calls the handler.
    HttpRequest Posted(const ComPtr<Handler>& handler) {
        HttpRequest request = HttpRequest::Create();
        request.SetReadyStateHandler(handler.Get());
        request.Open(L"POST", kUrl, true);
        return request;
    }

    ScriptedHttp http;
    int handlers = 0;
};

TEST_F(HttpRequestTest, LeavesTheModeToMsxmlWhenItIsNotGiven) {
    const support::PlayedWindows windows;
    HttpRequest::Create().Open(L"GET", kUrl);
    EXPECT_FALSE(http.Last().Seen().isModeGiven);
    EXPECT_TRUE(http.Last().Seen().asynchronous);
}

TEST_F(HttpRequestTest, IsSynchronousUnderWineWhenTheModeIsNotGiven) {
    wine::Pretend(true);
    HttpRequest::Create().Open(L"GET", kUrl);
    wine::Pretend(std::nullopt);
    EXPECT_TRUE(http.Last().Seen().isModeGiven);
    EXPECT_FALSE(http.Last().Seen().asynchronous);
}

TEST_F(HttpRequestTest, DoesNotGiveAnInvalidAddressToMsxml) {
    for (const wchar_t* url : {L"", L"no url", L"ftp://host/", L"file:///C:/x.xml", L"http://", L"http:///x"}) {
        EXPECT_EQ(kInvalidUrl, NumberRaised([&] { HttpRequest::Create().Open(L"GET", url); }));
        EXPECT_EQ(kInvalidUrl, NumberRaised([&] { HttpRequest::Create().Open(L"POST", url, true); }));
        EXPECT_EQ(L"", http.Last().Seen().method) << "not opened";
    }
}

TEST_F(HttpRequestTest, HasOneNumberForAnAddressThatMsxmlRefuses) {
    for (const HRESULT refusal : {MK_E_SYNTAX, static_cast<HRESULT>(0x800C0002), static_cast<HRESULT>(0x800C000D)}) {
        http.script = {.openResult = refusal};
        EXPECT_EQ(kInvalidUrl, NumberRaised([] { HttpRequest::Create().Open(L"GET", kUrl); }));
        http.script = {.sendResult = refusal};
        EXPECT_EQ(kInvalidUrl, NumberRaised([] { HttpRequest::Create().Send(); }));
    }
    http.script = {.openResult = E_INVALIDARG};
    EXPECT_EQ(kInvalidUrl, NumberRaised([] { HttpRequest::Create().Open(L"GET", kUrl); }));
    http.script = {.sendResult = E_INVALIDARG};
    EXPECT_EQ(E_INVALIDARG, NumberRaised([] { HttpRequest::Create().Send(); })) << "may be the body";
}

struct NameOfFailure {
    HRESULT result;
    HRESULT onWindows;
    HRESULT underWine;
};

TEST_F(HttpRequestTest, TakesWinesNumbersOfFailedSendsForWhatTheyMeanUnderWineAlone) {
    constexpr auto kDownloadFailure = static_cast<HRESULT>(0x800C0008);
    constexpr auto kCannotConnect = static_cast<HRESULT>(0x800C0004);
    constexpr NameOfFailure kNames[] = {
        {kServerUnreachable, kServerUnreachable, kServerUnreachable},
        {kDownloadFailure, kDownloadFailure, kServerUnreachable},
        {kCannotConnect, kCannotConnect, kInvalidUrl},
        {E_OUTOFMEMORY, E_OUTOFMEMORY, E_OUTOFMEMORY},
    };
    for (const NameOfFailure& name : kNames) {
        http.script = {.sendResult = name.result};
        const auto send = [] { HttpRequest::Create().Send(); };
        wine::Pretend(true);
        EXPECT_EQ(name.underWine, NumberRaised(send)) << name.result;
        wine::Pretend(false);
        EXPECT_EQ(name.onWindows, NumberRaised(send)) << name.result;
        wine::Pretend(std::nullopt);
    }
}

TEST_F(HttpRequestTest, TakesAFailedDocumentForAnEmptyOneUnderWineAlone) {
    http.script = {.responseXmlResult = E_FAIL};
    wine::Pretend(true);
    EXPECT_EQ(nullptr, msxml::Root(HttpRequest::Create().ResponseXml()).Get());
    wine::Pretend(false);
    EXPECT_EQ(E_FAIL, NumberRaised([] { HttpRequest::Create().ResponseXml(); }));
    wine::Pretend(std::nullopt);
}

TEST_F(HttpRequestTest, HoldsWhatIsAbandonedUnderWineAlone) {
    for (const bool underWine : {true, false}) {
        wine::Pretend(underWine);
        http.script = {.readyStates = {1, 4}};
        HttpRequest request = HttpRequest::Create();
        request.Open(L"POST", kUrl, true);
        request.Abandon();
        request = {};
        const ComPtr<support::ScriptedRequest> abandoned = http.requests.back();
        http.requests.clear();
        abandoned->AddRef();
        EXPECT_EQ(underWine ? 2u : 1u, abandoned->Release());
        abandoned->Advance();
        HttpRequest::Create();
    }
    wine::Pretend(std::nullopt);
}

TEST_F(HttpRequestTest, CallsItsHandlerWhetherOrNotItGetsParameters) {
    for (const bool without : {false, true}) {
        http.script = {.callsWithoutParameters = without};
        const auto handler = Create<Handler>(handlers);
        const HttpRequest request = Posted(handler);
        http.Last().Advance();
        EXPECT_EQ(1, handler->calls);
    }
}

TEST_F(HttpRequestTest, ReleasesItsHandlerEvenWhenMsxmlKeepsIt) {
    for (const HRESULT refusal : {S_OK, E_FAIL}) {
        http.script = {.clearHandlerResult = refusal};
        Microsoft::WRL::ComPtr<Handler> handler = Create<Handler>(handlers);
        HttpRequest request = Posted(handler);
        handler.Reset();
        EXPECT_EQ(1, handlers);
        request.ClearReadyStateHandler();
        EXPECT_EQ(0, handlers);
        http.Last().Advance();
        request.ClearReadyStateHandler();
    }
}

TEST_F(HttpRequestTest, LeavesNoDescriptionOfARefusalForALaterFailure) {
    http.script = {.clearHandlerResult = E_FAIL};
    HttpRequest request = Posted(Create<Handler>(handlers));
    ComPtr<ICreateErrorInfo> creation;
    ComPtr<IErrorInfo> information;
    ASSERT_OK(CreateErrorInfo(creation.GetAddressOf()));
    ASSERT_OK(creation.As(&information));
    SetErrorInfo(0, information.Get());
    request.ClearReadyStateHandler();
    EXPECT_EQ(S_FALSE, GetErrorInfo(0, information.ReleaseAndGetAddressOf()));
}

TEST_F(HttpRequestTest, ReleasesItsHandlerWithTheRequest) {
    HttpRequest request = Posted(Create<Handler>(handlers));
    EXPECT_EQ(1, handlers);
    http.Last().ClearHandler();
    EXPECT_EQ(0, handlers);
}

TEST_F(HttpRequestTest, IsTheSameAsItsCopies) {
    const HttpRequest request = HttpRequest::Create();
    const HttpRequest copy = request;
    EXPECT_TRUE(copy == request);
    EXPECT_FALSE(HttpRequest::Create() == request);
    EXPECT_TRUE(HttpRequest() == HttpRequest());
}

}  // namespace
}  // namespace platform
