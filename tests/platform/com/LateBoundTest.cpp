#include "platform/com/LateBound.h"

#include "platform/Text.h"
#include "support/ComCheck.h"
#include "unit_support/LateBoundObject.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;
using support::LateBoundObject;
using Arguments = std::vector<_variant_t>;

ComPtr<IDispatch> ObjectWith(const wchar_t* name, support::Member member) {
    return ComPtr<IDispatch>(
        Create<LateBoundObject>(std::map<std::wstring, support::Member>{{name, std::move(member)}}).Get());
}

// Fails each call with the exception that the test fills in, as objects in other languages do.
class Failing final : public LateBoundObject {
public:
    explicit Failing(std::function<void(EXCEPINFO*)> fill)
        : LateBoundObject({{L"Work", [](const Arguments&, WORD) { return _variant_t(); }}}), fill_(std::move(fill)) {}

    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO* exception, UINT*) override {
        fill_(exception);
        return DISP_E_EXCEPTION;
    }

private:
    std::function<void(EXCEPINFO*)> fill_;
};

HRESULT STDMETHODCALLTYPE FillInLate(EXCEPINFO* exception) {
    exception->scode = E_ABORT;
    exception->bstrDescription = ToBstr(L"given up").Detach();
    return S_OK;
}

ComError ErrorOf(std::function<void(EXCEPINFO*)> fill) {
    const auto object = Create<Failing>(std::move(fill));
    try {
        CallMember(object.Get(), L"Work");
    } catch (const ComError& error) {
        return error;
    }
    return ComError(E_NOTIMPL, L"nothing was raised");
}

TEST(LateBound, PassesArgumentsInTheirOrderAndReturnsTheResult) {
    const auto object = ObjectWith(L"Join", [](const Arguments& arguments, WORD kind) {
        EXPECT_EQ(DISPATCH_METHOD, kind);
        return _variant_t(_bstr_t(arguments.at(0)) + _bstr_t(arguments.at(1)));
    });
    EXPECT_EQ(_variant_t(L"ab"), CallMember(object.Get(), L"Join", {L"a", L"b"}));
    EXPECT_EQ(_variant_t(L"ab"), CallMember(object.Get(), L"join", {L"a", L"b"}));
}

TEST(LateBound, ReadsAndSetsProperties) {
    _variant_t held(1L);
    const auto object = ObjectWith(L"Interval", [&](const Arguments& arguments, WORD kind) {
        EXPECT_EQ(arguments.empty() ? DISPATCH_PROPERTYGET : DISPATCH_PROPERTYPUT, kind);
        if (!arguments.empty()) held = arguments[0];
        return held;
    });
    EXPECT_EQ(_variant_t(1L), GetMember(object.Get(), L"Interval"));
    PutMember(object.Get(), L"Interval", 100L);
    EXPECT_EQ(_variant_t(100L), held);
}

TEST(LateBound, FailsForAnUnknownMember) {
    const auto object = ObjectWith(L"Interval", [](const Arguments&, WORD) { return _variant_t(); });
    for (const auto& call : std::vector<std::function<void()>>{[&] { CallMember(object.Get(), L"Yield"); },
                                                               [&] { GetMember(object.Get(), L"Yield"); },
                                                               [&] { PutMember(object.Get(), L"Yield", 1L); }}) {
        try {
            call();
            ADD_FAILURE() << "nothing was raised";
        } catch (const ComError& error) {
            EXPECT_EQ(DISP_E_UNKNOWNNAME, error.Number());
        }
    }
}

TEST(LateBound, RaisesTheCalleesNumberTextAndSource) {
    const ComError error = ErrorOf([](EXCEPINFO* exception) {
        exception->scode = E_ACCESSDENIED;
        exception->bstrDescription = ToBstr(L"not for you").Detach();
        exception->bstrSource = ToBstr(L"Suite").Detach();
    });
    EXPECT_EQ(E_ACCESSDENIED, error.Number());
    EXPECT_EQ(L"not for you", error.Description());
    EXPECT_EQ(L"Suite", error.Source());
}

TEST(LateBound, MakesANumberOfAShortErrorCode) {
    EXPECT_EQ(static_cast<HRESULT>(0x800A01F4), ErrorOf([](EXCEPINFO* exception) { exception->wCode = 500; }).Number());
}

TEST(LateBound, LetsTheCalleeFillInTheErrorLate) {
    const ComError error = ErrorOf([](EXCEPINFO* exception) { exception->pfnDeferredFillIn = FillInLate; });
    EXPECT_EQ(E_ABORT, error.Number());
    EXPECT_EQ(L"given up", error.Description());
}

TEST(LateBound, FindsSomeTextForAnErrorWithoutOne) {
    EXPECT_NE(L"", ErrorOf([](EXCEPINFO* exception) { exception->scode = E_OUTOFMEMORY; }).Description());
}

TEST(LateBound, MakesRegisteredObjectsAndNoOthers) {
    EXPECT_NE(nullptr, CreateRegistered(L"Msxml2.DOMDocument.6.0").Get());
    EXPECT_EQ(nullptr, CreateRegistered(L"TalvexSuite.NotThere").Get());
}

}  // namespace
}  // namespace platform
