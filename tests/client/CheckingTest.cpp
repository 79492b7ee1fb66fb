// The lists of the formatter and the validator, and the order in which cards are looked at.
#include "client/ClientObject.h"
#include "client/LateBound.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace client {
namespace {

// A client's own object that passes for an incident where only its interface is asked for.
class FalseIncident final : public ClientObject<IDispatch> {
public:
    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        return ClientObject::QueryInterface(iid == __uuidof(ILejisIncidentIndexCard) ? __uuidof(IDispatch) : iid,
                                            object);
    }

    // The library calls none of its members: it finds out that the object is not its own.
    ILejisIncidentIndexCard* AsIncident() {
        return reinterpret_cast<ILejisIncidentIndexCard*>(static_cast<IDispatch*>(this));
    }
};

template <typename Checker>
long CountOf(Checker* checker, HRESULT (STDMETHODCALLTYPE Checker::*list)(ICollection**)) {
    ComPtr<ICollection> texts;
    long count = -1;
    EXPECT_OK((checker->*list)(texts.GetAddressOf()));
    EXPECT_OK(texts->get_Count(&count));
    return count;
}

TEST(Validation, EmptiesItsListFirstAlsoForAnArgumentThatItRefuses) {
    const auto falseIncident = Make<FalseIncident>();
    for (ILejisIncidentIndexCard* const refused :
         {static_cast<ILejisIncidentIndexCard*>(nullptr), falseIncident->AsIncident()}) {
        const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
        const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
        VARIANT_BOOL found = VARIANT_FALSE;
        ComPtr<ICollection> earlier;
        long count = 0;
        ASSERT_OK(validator->Validate(incident.Get(), &found));
        ASSERT_OK(validator->get_Errors(earlier.GetAddressOf()));
        EXPECT_EQ(4, CountOf(validator.Get(), &ILejisIncidentValidator::get_Errors));
        EXPECT_TRUE(FAILED(validator->Validate(refused, &found)));
        EXPECT_EQ(0, CountOf(validator.Get(), &ILejisIncidentValidator::get_Errors));
        EXPECT_OK(validator->get_HasErrors(&found));
        EXPECT_EQ(VARIANT_FALSE, found);
        EXPECT_OK(earlier->get_Count(&count));
        EXPECT_EQ(4, count) << "a list obtained earlier keeps its entries";
    }
}

TEST(Validation, GivesItsListAndNoCopy) {
    const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
    const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    VARIANT_BOOL found = VARIANT_FALSE;
    ASSERT_OK(validator->Validate(incident.Get(), &found));
    ComPtr<ICollection> errors;
    ASSERT_OK(validator->get_Errors(errors.GetAddressOf()));
    while (CountOf(validator.Get(), &ILejisIncidentValidator::get_Errors) > 0) ASSERT_OK(errors->Remove(1));
    EXPECT_OK(validator->get_HasErrors(&found));
    EXPECT_EQ(VARIANT_FALSE, found);
}

TEST(Formatting, GivesItsListAndNoCopy) {
    const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
    const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    ASSERT_OK(incident->put_ChargeNCICCode(support::Bstr(L"9999")));
    ComPtr<ILejisIncidentIndexCard> copy;
    ASSERT_OK(formatter->Format(incident.Get(), copy.GetAddressOf()));
    ComPtr<ICollection> warnings;
    ASSERT_OK(formatter->get_Warnings(warnings.GetAddressOf()));
    ASSERT_OK(warnings->Remove(1));
    VARIANT_BOOL has = VARIANT_TRUE;
    EXPECT_OK(formatter->get_HasWarnings(&has));
    EXPECT_EQ(VARIANT_FALSE, has);
}

TEST(Formatting, EmptiesItsListFirstAlsoForAnArgumentThatItRefuses) {
    const auto falseIncident = Make<FalseIncident>();
    for (ILejisIncidentIndexCard* const refused :
         {static_cast<ILejisIncidentIndexCard*>(nullptr), falseIncident->AsIncident()}) {
        const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
        const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
        ASSERT_OK(incident->put_ChargeNCICCode(support::Bstr(L"9999")));
        ComPtr<ILejisIncidentIndexCard> copy;
        ComPtr<ICollection> earlier;
        VARIANT_BOOL has = VARIANT_TRUE;
        long count = 0;
        ASSERT_OK(formatter->Format(incident.Get(), copy.GetAddressOf()));
        ASSERT_OK(formatter->get_Warnings(earlier.GetAddressOf()));
        EXPECT_EQ(1, CountOf(formatter.Get(), &ILejisIncidentFormatter::get_Warnings));
        EXPECT_TRUE(FAILED(formatter->Format(refused, copy.ReleaseAndGetAddressOf())));
        EXPECT_EQ(0, CountOf(formatter.Get(), &ILejisIncidentFormatter::get_Warnings));
        EXPECT_OK(formatter->get_HasWarnings(&has));
        EXPECT_EQ(VARIANT_FALSE, has);
        EXPECT_OK(earlier->get_Count(&count));
        EXPECT_EQ(1, count) << "a list obtained earlier keeps its entries";
    }
}

TEST(Validation, ByNameEmptiesItsListForNothing) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    const _variant_t incident = CreateLateBound(L"LejisIncidentIndexCard").AsArgument();
    ASSERT_TRUE(Done(validator.Call(L"Validate", {incident})));
    EXPECT_EQ(_variant_t(4L, VT_I4), validator.Object(L"Errors").Get(L"Count").value);
    EXPECT_TRUE(FAILED(validator.Call(L"Validate", {support::Nothing()}).result));
    EXPECT_EQ(_variant_t(0L, VT_I4), validator.Object(L"Errors").Get(L"Count").value);
    EXPECT_EQ(_variant_t(false), validator.Get(L"HasErrors").value);
}

// What the caller's own dispatcher refuses never reaches the object, so the object keeps what it had.
TEST(Validation, ByNameKeepsItsListWhenTheArgumentIsRefusedOnItsWay) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    const _variant_t incident = CreateLateBound(L"LejisIncidentIndexCard").AsArgument();
    ASSERT_TRUE(Done(validator.Call(L"Validate", {incident})));
    EXPECT_TRUE(FAILED(validator.Call(L"Validate", {L"text"}).result));
    EXPECT_EQ(_variant_t(4L, VT_I4), validator.Object(L"Errors").Get(L"Count").value);
}

TEST(Validation, ListsTheFindingsBeforeAPersonOfAnotherClass) {
    const LateBound validator = CreateLateBound(L"LejisIncidentValidator");
    const LateBound incident = CreateLateBound(L"LejisIncidentIndexCard");
    const LateBound person = CreateLateBound(L"LejisPersonIndexCard");
    ASSERT_TRUE(Done(person.Put(L"SurName", L"LEE")));
    ASSERT_TRUE(Done(person.Put(L"SSN", L"1")));
    const LateBound persons = incident.Object(L"PersonIndexCards");
    ASSERT_TRUE(Done(persons.Call(L"Add", {person.AsArgument()})));
    ASSERT_TRUE(Done(persons.Call(L"Add", {CreateLateBound(L"LejisVehicleIndexCard").AsArgument()})));
    ASSERT_TRUE(Done(persons.Call(L"Add", {person.AsArgument()})));
    EXPECT_TRUE(RaisedBy(validator.Call(L"Validate", {incident.AsArgument()}), DISP_E_TYPEMISMATCH, L"Type mismatch"));
    const LateBound errors = validator.Object(L"Errors");
    ASSERT_EQ(_variant_t(5L, VT_I4), errors.Get(L"Count").value);
    EXPECT_EQ(L" LEE: '1' is not a valid SSN. SSN's submitted to LEJIS must be 9 digits long, or left blank.",
              errors.Call(L"Item", {5L}).Text());
    EXPECT_EQ(_variant_t(true), validator.Get(L"HasErrors").value);
}

TEST(Submission, AppendsTheCardsBeforeOneOfAnotherClass) {
    const LateBound submission = CreateLateBound(L"LejisSubmissionDocument");
    const LateBound incidents = submission.Object(L"IncidentIndexCards");
    const LateBound incident = CreateLateBound(L"LejisIncidentIndexCard");
    ASSERT_TRUE(Done(incident.Put(L"ActivityID", L"FIRST")));
    ASSERT_TRUE(Done(incidents.Call(L"Add", {incident.AsArgument()})));
    ASSERT_TRUE(Done(incidents.Call(L"Add", {CreateLateBound(L"LejisPersonIndexCard").AsArgument()})));
    const support::Document document = support::NewDocument();
    EXPECT_TRUE(RaisedBy(submission.Call(L"ToXmlElement", {_variant_t(document.Get())}), DISP_E_TYPEMISMATCH,
                         L"Type mismatch"));
    ComPtr<IXMLDOMElement> root;
    ComPtr<IXMLDOMNodeList> children;
    long count = 0;
    BSTR text = nullptr;
    ASSERT_EQ(S_OK, document->get_documentElement(root.GetAddressOf()));
    ASSERT_OK(root->get_childNodes(children.GetAddressOf()));
    ASSERT_OK(children->get_length(&count));
    EXPECT_EQ(1, count);
    ASSERT_OK(root->get_text(&text));
    EXPECT_EQ(0U, support::Take(text).find(L"FIRST"));
}

}  // namespace
}  // namespace client
