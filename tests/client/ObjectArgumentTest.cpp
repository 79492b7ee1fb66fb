// Nothing, and objects that do not belong there, given to every method that takes an object: refused with a reason.
#include "client/ClientObject.h"
#include "client/LateBound.h"
#include "client/Members.h"
#include "support/Printing.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace client {
namespace {

bool TakesObjects(const Member& member) {
    return std::any_of(member.parameters.begin(), member.parameters.end(),
                       [](const Member::Parameter& parameter) { return parameter.IsObject(); });
}

bool TakesClientInterfaces(const Member& member) {
    return std::any_of(member.parameters.begin(), member.parameters.end(),
                       [](const Member::Parameter& parameter) { return parameter.isClientInterface; });
}

// Reports by an event, or shows, what others raise: a search, and the harness that waits for one.
bool AlwaysReturnsSuccess(const Member& member) { return member.name == L"Search"; }

VARIANT ObjectArgument(IDispatch* object) {
    VARIANT argument{};
    V_VT(&argument) = VT_DISPATCH;
    V_DISPATCH(&argument) = object;
    return argument;
}

constexpr SHORT kUntouched = -1;

// The member refuses `object` as every one of its objects, says why, and leaves nothing in its result.
void ExpectRefused(IUnknown* callee, const Member& member, IDispatch* object) {
    LONG_PTR result = kUntouched;
    VARIANT receiver{};
    V_VT(&receiver) = VT_BYREF | VT_UI1;
    V_BYREF(&receiver) = &result;
    std::vector<VARIANT> arguments;
    for (const Member::Parameter& parameter : member.parameters) {
        arguments.push_back(parameter.isResult ? receiver : ObjectArgument(object));
    }
    SetErrorInfo(0, nullptr);
    const HRESULT outcome = CallDirectly(callee, member, arguments);
    EXPECT_TRUE(FAILED(outcome)) << support::Hexadecimal(outcome);
    EXPECT_NE(L"", support::TakeError(outcome).description);
    const bool hasResult = !member.parameters.empty() && member.parameters.back().isResult;
    // A null pointer or False, whichever the result is: its first two bytes tell.
    EXPECT_EQ(hasResult ? 0 : kUntouched, static_cast<SHORT>(result));
}

TEST(ObjectArgument, IsRefusedWhenItIsNothing) {
    int methods = 0;
    ForEachMember([&](const ClassRow&, IUnknown* object, const Member& member) {
        if (!TakesObjects(member) || AlwaysReturnsSuccess(member) || member.name == L"FutureCompleted") return;
        ++methods;
        ExpectRefused(object, member, nullptr);
    });
    // Fifteen writers and fifteen readers, two readers of documents, two of deferred calls, the validator, the
    // formatter, two submissions.
    EXPECT_EQ(38, methods);
}

TEST(ObjectArgument, IsRefusedByAManagerWhenItIsNoFutureOfItsOwn) {
    ComPtr<IFutureObserver> manager;
    ASSERT_OK(CreateByName(L"FutureManager").As(&manager));
    for (const ComPtr<IFuture>& future : {ComPtr<IFuture>(), Create<Future, IFuture>()}) {
        const HRESULT outcome = manager->FutureCompleted(future.Get());
        EXPECT_TRUE(FAILED(outcome)) << support::Hexadecimal(outcome);
        EXPECT_NE(L"", support::TakeError(outcome).description);
    }
}

TEST(ObjectArgument, IsRefusedWhenItIsAStranger) {
    const auto stranger = Make<Stranger>();
    ForEachMember([&](const ClassRow&, IUnknown* object, const Member& member) {
        // A pointer to an interface that clients implement can be any client's object.
        if (!TakesObjects(member) || AlwaysReturnsSuccess(member) || TakesClientInterfaces(member) ||
            member.name == L"FutureCompleted")
            return;
        ExpectRefused(object, member, stranger.Get());
    });
}

TEST(ObjectArgument, IsRefusedWhenItIsOfAnotherClassOfTheLibrary) {
    const ComPtr<IDispatch> other = CreateByName(L"NullableLong");
    ForEachMember([&](const ClassRow&, IUnknown* object, const Member& member) {
        if (!TakesObjects(member) || AlwaysReturnsSuccess(member) || TakesClientInterfaces(member) ||
            member.name == L"FutureCompleted")
            return;
        ExpectRefused(object, member, other.Get());
    });
}

TEST(ObjectArgument, IsRefusedByNameWhateverStandsForNothing) {
    VARIANT missing{};
    V_VT(&missing) = VT_ERROR;
    V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
    const _variant_t nothings[] = {support::Nothing(), _variant_t(), support::Null(),
                                   _variant_t(static_cast<IUnknown*>(nullptr)), _variant_t(missing)};
    ForEachMember([&](const ClassRow& row, IUnknown*, const Member& member) {
        const LateBound object = CreateLateBound(row.name);
        if (!TakesObjects(member) || AlwaysReturnsSuccess(member) ||
            object.NumberOf(member.name.c_str()) == DISPID_UNKNOWN)
            return;
        const auto count = static_cast<size_t>(std::count_if(member.parameters.begin(), member.parameters.end(),
                                                             [](const auto& one) { return one.IsObject(); }));
        for (const _variant_t& nothing : nothings) {
            const Outcome outcome = object.Call(member.name.c_str(), std::vector<_variant_t>(count, nothing));
            EXPECT_TRUE(FAILED(outcome.result)) << "type " << V_VT(&nothing);
        }
    });
}

TEST(ObjectArgument, IsRefusedByNameWhenItIsNoObjectOrTheWrongOne) {
    const auto stranger = Make<Stranger>();
    const _variant_t wrong[] = {
        L"text", 5L, 2.5, true, support::Date(L"2007-03-09"), _variant_t(static_cast<IDispatch*>(stranger.Get()))};
    ForEachMember([&](const ClassRow& row, IUnknown*, const Member& member) {
        const LateBound object = CreateLateBound(row.name);
        if (!TakesObjects(member) || AlwaysReturnsSuccess(member) ||
            object.NumberOf(member.name.c_str()) == DISPID_UNKNOWN)
            return;
        const auto count = static_cast<size_t>(std::count_if(member.parameters.begin(), member.parameters.end(),
                                                             [](const auto& one) { return one.IsObject(); }));
        for (const _variant_t& argument : wrong) {
            const Outcome outcome = object.Call(member.name.c_str(), std::vector<_variant_t>(count, argument));
            EXPECT_TRUE(FAILED(outcome.result)) << "type " << V_VT(&argument);
        }
    });
}

struct ObjectTaker {
    const wchar_t* className;
    const wchar_t* member;
};

constexpr ObjectTaker kObjectTakers[] = {{L"LejisIncidentValidator", L"Validate"},
                                         {L"LejisIncidentFormatter", L"Format"},
                                         {L"LejisSubmissionWebService", L"SubmitIncident"},
                                         {L"LejisSubmissionWebService", L"DeleteIncident"},
                                         {L"LejisSearchWebService", L"Search"},
                                         {L"FutureManager", L"InvokeLater"},
                                         {L"LejisStreetAddress", L"ToXmlElement"},
                                         {L"LejisSubmissionDocument", L"ToXmlElement"},
                                         {L"LejisInquiryResponse", L"FromXmlDocument"},
                                         {L"SOAPEnvelope", L"FromXmlElement"}};

// The call by name tells all that a failure has to tell: number, text and source.
void ExpectMismatch(const ObjectTaker& taker, VARIANT argument) {
    SCOPED_TRACE(support::Utf8(taker.className) + "." + support::Utf8(taker.member) + ", passed as " +
                 std::to_string(V_VT(&argument)));
    const LateBound object = CreateLateBound(taker.className);
    DISPPARAMS parameters{&argument, nullptr, 1, 0};
    const Outcome outcome = object.InvokeWith(object.NumberOf(taker.member), DISPATCH_METHOD, &parameters);
    EXPECT_TRUE(RaisedBy(outcome, DISP_E_TYPEMISMATCH, L"Type mismatch"));
    EXPECT_EQ(ProgIdOf(taker.className), outcome.source);
}

TEST(ObjectArgument, OfTheWrongKindRaisesTheTypeMismatchByName) {
    const auto stranger = Make<Stranger>();
    VARIANT missing{};
    V_VT(&missing) = VT_ERROR;
    V_ERROR(&missing) = DISP_E_PARAMNOTFOUND;
    _variant_t wrong[] = {_variant_t(),
                          support::Null(),
                          L"text",
                          5L,
                          true,
                          _variant_t(missing),
                          _variant_t(static_cast<IDispatch*>(stranger.Get())),
                          _variant_t(static_cast<IUnknown*>(stranger.Get()))};
    for (const ObjectTaker& taker : kObjectTakers) {
        for (_variant_t& argument : wrong) {
            VARIANT variable{};
            V_VT(&variable) = VT_BYREF | VT_VARIANT;
            V_VARIANTREF(&variable) = &argument;
            ExpectMismatch(taker, argument);
            ExpectMismatch(taker, variable);
        }
    }
}

TEST(ObjectArgument, OfAnotherClassRaisesTheTypeMismatchByName) {
    _variant_t other = CreateLateBound(L"NullableLong").AsArgument();
    VARIANT variable{};
    V_VT(&variable) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&variable) = &other;
    for (const ObjectTaker& taker : kObjectTakers) {
        ExpectMismatch(taker, other);
        ExpectMismatch(taker, variable);
    }
}

TEST(ObjectArgument, OfTheWrongKindHasItsNumberAsResultWithoutAPlaceForTheException) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    _variant_t text(L"text");
    DISPPARAMS parameters{&text, nullptr, 1, 0};
    EXPECT_TRUE(
        support::FailedWith(validator.Pointer()->Invoke(validator.NumberOf(L"Validate"), IID_NULL, LOCALE_USER_DEFAULT,
                                                        DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr),
                            DISP_E_TYPEMISMATCH, L"Type mismatch"));
}

// Some clients know an object by its identity alone.
TEST(ObjectArgument, MayBeTheIdentityOfTheObject) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    ComPtr<IUnknown> identity;
    ASSERT_OK(CreateByName(L"LejisIncidentIndexCard").As(&identity));
    const Outcome outcome = validator.Call(L"Validate", {_variant_t(identity.Get())});
    ASSERT_TRUE(Done(outcome));
    EXPECT_EQ(_variant_t(true), outcome.value) << "errors were found";
}

TEST(ObjectArgument, LeavesTheObjectFitForWorkAfterARefusal) {
    for (const ClassRow& row : CreatableClasses()) {
        const LateBound object = CreateLateBound(row.name);
        if (object.NumberOf(L"ToXmlElement") == DISPID_UNKNOWN) continue;
        SCOPED_TRACE(support::Utf8(row.name));
        EXPECT_TRUE(FAILED(object.Call(L"ToXmlElement", {support::Nothing()}).result));
        if (object.NumberOf(L"FromXmlElement") != DISPID_UNKNOWN) {
            EXPECT_TRUE(FAILED(object.Call(L"FromXmlElement", {support::Nothing()}).result));
        }
        const support::Document document = support::NewDocument();
        const Outcome written = object.Call(L"ToXmlElement", {_variant_t(document.Get())});
        ASSERT_TRUE(Done(written));
        EXPECT_NE(nullptr, V_DISPATCH(&written.value));
    }
}

TEST(ObjectArgument, IsRefusedWhenItIsAnXmlNodeOfAnotherKind) {
    const support::Document document = support::Parse(L"<card:RMSVehicleIndexCards/>");
    const support::Element element = support::ParseElement(L"<card:RMSVehicleIndexCards/>");
    const auto card = Create<LejisVehicleIndexCard, ILejisVehicleIndexCard>();
    ComPtr<IDispatch> result;
    EXPECT_TRUE(support::FailedWith(card->FromXmlElement(document.Get()), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    EXPECT_TRUE(support::FailedWith(card->ToXmlElement(element.Get(), result.GetAddressOf()), DISP_E_TYPEMISMATCH,
                                    L"Type mismatch"));
    EXPECT_EQ(nullptr, result);
}

}  // namespace
}  // namespace client
