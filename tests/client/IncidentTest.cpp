// A client of the early-bound kind fills an incident with all its cards, and everything arrives.
#include "client/Client.h"
#include "support/Printing.h"
#include "support/Xml.h"

#include <gtest/gtest.h>

namespace client {
namespace {

using support::Bstr;
using support::Date;

_variant_t Short(short number) { return _variant_t(number); }

template <typename Holder>
void SetHolder(const ComPtr<Holder>& holder, const _variant_t& value) {
    EXPECT_OK(holder->put_Value(value));
}

void FillAddress(ILejisStreetAddress* address) {
    ComPtr<INullableLong> number;
    EXPECT_OK(address->put_StreetFullText(Bstr(L"12 N MAIN ST")));
    EXPECT_OK(address->put_StreetName(Bstr(L"MAIN")));
    EXPECT_OK(address->put_StreetType(Bstr(L"ST")));
    EXPECT_OK(address->put_StreetDirection(Bstr(L"NORTH")));
    EXPECT_OK(address->put_StreetExtension(Bstr(L"REAR")));
    EXPECT_OK(address->put_City(Bstr(L"SPRINGFIELD")));
    EXPECT_OK(address->put_State(Bstr(L"PA")));
    EXPECT_OK(address->put_ZIP(Bstr(L"12345")));
    EXPECT_OK(address->get_StreetNumber(number.GetAddressOf()));
    SetHolder(number, _variant_t(12L));
}

ComPtr<ILejisPersonIndexCard> FilledPerson() {
    const auto person = Create<LejisPersonIndexCard, ILejisPersonIndexCard>();
    ComPtr<ILejisStreetAddress> address;
    ComPtr<INullableDate> birthDate;
    ComPtr<INullableInteger> height;
    EXPECT_OK(person->put_OrganizationName(Bstr(L"SPRINGFIELD PD")));
    EXPECT_OK(person->put_GivenName(Bstr(L"JOHN")));
    EXPECT_OK(person->put_SurName(Bstr(L"PUBLIC")));
    EXPECT_OK(person->put_SSN(Bstr(L"123456789")));
    EXPECT_OK(person->put_SexNCIC(Bstr(L"M")));
    EXPECT_OK(person->put_RaceNCIC(Bstr(L"W")));
    EXPECT_OK(person->put_Involvement(Bstr(L"SUSPECT")));
    EXPECT_OK(person->put_CautionIndicator(VARIANT_TRUE));
    EXPECT_OK(person->get_address(address.GetAddressOf()));
    FillAddress(address.Get());
    EXPECT_OK(person->get_BirthDate(birthDate.GetAddressOf()));
    SetHolder(birthDate, Date(L"1970-01-31"));
    EXPECT_OK(person->get_Height(height.GetAddressOf()));
    SetHolder(height, Short(510));
    return person;
}

ComPtr<ILejisVehicleIndexCard> FilledVehicle() {
    const auto vehicle = Create<LejisVehicleIndexCard, ILejisVehicleIndexCard>();
    ComPtr<INullableInteger> year;
    EXPECT_OK(vehicle->put_Make(Bstr(L"FORD")));
    EXPECT_OK(vehicle->put_Model(Bstr(L"F150")));
    EXPECT_OK(vehicle->put_LicensePlate(Bstr(L"ABC1234")));
    EXPECT_OK(vehicle->put_LicensePlateState(Bstr(L"PA")));
    EXPECT_OK(vehicle->get_Year(year.GetAddressOf()));
    SetHolder(year, Short(2004));
    return vehicle;
}

ComPtr<ILejisPropertyIndexCard> FilledProperty() {
    const auto item = Create<LejisPropertyIndexCard, ILejisPropertyIndexCard>();
    EXPECT_OK(item->put_Category(Bstr(L"BICYCLE")));
    EXPECT_OK(item->put_SerialID(Bstr(L"S-77")));
    return item;
}

class FilledIncident : public testing::Test {
protected:
    using Cards = HRESULT (STDMETHODCALLTYPE ILejisIncidentIndexCard::*)(ICollection**);

    void SetUp() override {
        ComPtr<INullableDate> submitted;
        ComPtr<INullableDate> happened;
        ComPtr<ILejisStreetAddress> location;
        ASSERT_OK(incident_->put_OrganizationName(Bstr(L"SPRINGFIELD PD")));
        ASSERT_OK(incident_->put_OrganizationORI(Bstr(L"PA0123456")));
        ASSERT_OK(incident_->put_ActivityID(Bstr(L"2007-0042")));
        ASSERT_OK(incident_->put_ChargeNCICCode(Bstr(L"0101")));
        ASSERT_OK(incident_->get_SubmittedDate(submitted.GetAddressOf()));
        SetHolder(submitted, Date(L"2007-03-10"));
        ASSERT_OK(incident_->get_ActivityDateTime(happened.GetAddressOf()));
        SetHolder(happened, Date(L"2007-03-09 14:05:00"));
        ASSERT_OK(incident_->get_Location(location.GetAddressOf()));
        FillAddress(location.Get());
        Add(&ILejisIncidentIndexCard::get_PersonIndexCards, FilledPerson().Get());
        Add(&ILejisIncidentIndexCard::get_VehicleIndexCards, FilledVehicle().Get());
        Add(&ILejisIncidentIndexCard::get_PropertyIndexCards, FilledProperty().Get());
    }

    void Add(Cards cards, IDispatch* card) {
        ComPtr<ICollection> collection;
        ASSERT_OK((incident_.Get()->*cards)(collection.GetAddressOf()));
        ASSERT_OK(collection->Add(_variant_t(card)));
    }

    static support::Element Write(ILejisIncidentIndexCard* incident) {
        ComPtr<IDispatch> written;
        support::Element element;
        EXPECT_OK(incident->ToXmlElement(support::NewDocument().Get(), written.GetAddressOf()));
        EXPECT_OK(written.As(&element));
        return element;
    }

    static std::wstring Markup(const support::Element& element) {
        BSTR markup = nullptr;
        EXPECT_OK(element->get_xml(&markup));
        return support::Take(markup);
    }

    const ComPtr<ILejisIncidentIndexCard> incident_ = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
};

TEST_F(FilledIncident, WritesAllThatItWasGiven) {
    const std::wstring markup = Markup(Write(incident_.Get()));
    for (const wchar_t* text :
         {L">SPRINGFIELD PD<", L">PA0123456<",    L">2007-0042<", L">0101<",   L">2007-03-10<", L">2007-03-09<",
          L">14:05:00<",       L">12 N MAIN ST<", L">MAIN<",      L">NORTH<",  L">REAR<",       L">SPRINGFIELD<",
          L">12345<",          L">12<",           L">JOHN<",      L">PUBLIC<", L">123456789<",  L">SUSPECT<",
          L">1970-01-31<",     L">510<",          L">FORD<",      L">F150<",   L">ABC1234<",    L">2004<",
          L">BICYCLE<",        L">S-77<",         L">true<"}) {
        EXPECT_NE(std::wstring::npos, markup.find(text)) << support::Utf8(text);
    }
}

TEST_F(FilledIncident, IsTheSameWhenReadBack) {
    const support::Element written = Write(incident_.Get());
    const auto copy = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    ASSERT_OK(copy->FromXmlElement(written.Get()));
    EXPECT_EQ(Markup(written), Markup(Write(copy.Get())));
    EXPECT_NE(Markup(Write(Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>().Get())), Markup(written));
}

TEST_F(FilledIncident, TellsTheCautionOfItsCards) {
    VARIANT_BOOL caution = VARIANT_FALSE;
    VARIANT_BOOL own = VARIANT_TRUE;
    ASSERT_OK(incident_->HasCaution(&caution));
    ASSERT_OK(incident_->get_CautionIndicator(&own));
    EXPECT_EQ(VARIANT_TRUE, caution) << "its person is flagged";
    EXPECT_EQ(VARIANT_FALSE, own);
}

TEST_F(FilledIncident, GoesIntoASubmissionWithItsContributingSystem) {
    const auto submission = Create<LejisSubmissionDocument, ILejisSubmissionDocument>();
    ComPtr<ICollection> incidents;
    ComPtr<IDispatch> document;
    ComPtr<IXMLDOMDocument> dom;
    support::Element root;
    ASSERT_OK(submission->get_IncidentIndexCards(incidents.GetAddressOf()));
    ASSERT_OK(incidents->Add(_variant_t(static_cast<IDispatch*>(incident_.Get()))));
    ASSERT_OK(submission->ToXmlDocument(document.GetAddressOf()));
    ASSERT_OK(document.As(&dom));
    ASSERT_OK(dom->get_documentElement(root.GetAddressOf()));
    const std::wstring markup = Markup(root);
    EXPECT_LT(markup.find(L">2007-0042<"), markup.find(L">Talvex<"));
    EXPECT_NE(std::wstring::npos, markup.find(L">TalvexSuite<"));
}

TEST_F(FilledIncident, WithACardOfAnotherClassFailsWhenItIsWritten) {
    Add(&ILejisIncidentIndexCard::get_PersonIndexCards, FilledVehicle().Get());
    ComPtr<IDispatch> written;
    EXPECT_TRUE(support::FailedWith(incident_->ToXmlElement(support::NewDocument().Get(), written.GetAddressOf()),
                                    DISP_E_TYPEMISMATCH, L"Type mismatch"));
    EXPECT_EQ(nullptr, written);
}

TEST_F(FilledIncident, IsLeftAsItIsByTheFormatterWhichReportsOnItsCopy) {
    const auto formatter = Create<LejisIncidentFormatter, ILejisIncidentFormatter>();
    ComPtr<ILejisIncidentIndexCard> copy;
    ComPtr<ICollection> warnings;
    BSTR code = nullptr;
    _variant_t warning;
    ASSERT_OK(incident_->put_ChargeNCICCode(Bstr(L"101")));
    const std::wstring before = Markup(Write(incident_.Get()));
    ASSERT_OK(formatter->Format(incident_.Get(), copy.GetAddressOf()));
    EXPECT_EQ(before, Markup(Write(incident_.Get())));
    ASSERT_OK(copy->get_ChargeNCICCode(&code));
    EXPECT_EQ(L"", support::Take(code));
    ASSERT_OK(formatter->get_Warnings(warnings.GetAddressOf()));
    ASSERT_OK(warnings->get_Item(1, &warning));
    EXPECT_EQ(_variant_t(L"Main record: Charge NCIC code '101' is not a valid NCIC offense code. Will submit a blank "
                         L"code instead."),
              warning);
}

}  // namespace
}  // namespace client
