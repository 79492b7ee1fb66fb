#include "end_to_end/Client.h"

#include "support/ComCheck.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::Bstr;

namespace end_to_end {
namespace {

template <typename Class, typename Interface>
ComPtr<Interface> New() {
    ComPtr<Interface> object;
    EXPECT_OK(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

void SetDate(INullableDate* holder, const wchar_t* date) { EXPECT_OK(holder->put_Value(_variant_t(date))); }

using CardsOf = HRESULT (STDMETHODCALLTYPE ILejisIncidentIndexCard::*)(ICollection**);

void Add(ILejisIncidentIndexCard* incident, CardsOf cards, IDispatch* card) {
    ComPtr<ICollection> collection;
    EXPECT_OK((incident->*cards)(collection.GetAddressOf()));
    EXPECT_OK(collection->Add(_variant_t(card)));
}

void AddPerson(ILejisIncidentIndexCard* incident, const wchar_t* surname, const wchar_t* involvement) {
    const auto person = New<LejisPersonIndexCard, ILejisPersonIndexCard>();
    ComPtr<INullableDate> birthDate;
    ComPtr<INullableInteger> height;
    EXPECT_OK(person->put_SurName(Bstr(surname)));
    EXPECT_OK(person->put_GivenName(Bstr(L"JOHN")));
    EXPECT_OK(person->put_SSN(Bstr(L"900123456")));
    EXPECT_OK(person->put_SexNCIC(Bstr(L"M")));
    EXPECT_OK(person->put_RaceNCIC(Bstr(L"W")));
    EXPECT_OK(person->put_Involvement(Bstr(involvement)));
    EXPECT_OK(person->get_BirthDate(birthDate.GetAddressOf()));
    SetDate(birthDate.Get(), L"1970-02-28");
    EXPECT_OK(person->get_Height(height.GetAddressOf()));
    EXPECT_OK(height->put_Value(_variant_t(510L)));
    Add(incident, &ILejisIncidentIndexCard::get_PersonIndexCards, person.Get());
}

}  // namespace

ComPtr<ILejisSubmissionWebService> NewService(const std::wstring& url) {
    auto service = New<LejisSubmissionWebService, ILejisSubmissionWebService>();
    EXPECT_OK(service->put_URL(Bstr(url)));
    return service;
}

ComPtr<ILejisIncidentIndexCard> NewIncident(const std::wstring& id) {
    auto incident = New<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    ComPtr<INullableDate> submitted;
    EXPECT_OK(incident->put_OrganizationName(Bstr(L"ERIE CITY POLICE")));
    EXPECT_OK(incident->put_OrganizationORI(Bstr(L"PA0250100")));
    EXPECT_OK(incident->put_ActivityID(Bstr(id)));
    EXPECT_OK(incident->get_SubmittedDate(submitted.GetAddressOf()));
    SetDate(submitted.Get(), L"2007-03-09");
    EXPECT_OK(incident->put_ChargeNCICCode(Bstr(L"2299")));
    return incident;
}

void Fill(ILejisIncidentIndexCard* incident) {
    ComPtr<INullableDate> activity;
    ComPtr<ILejisStreetAddress> location;
    EXPECT_OK(incident->get_ActivityDateTime(activity.GetAddressOf()));
    SetDate(activity.Get(), L"2007-03-08 23:15:00");
    EXPECT_OK(incident->get_Location(location.GetAddressOf()));
    EXPECT_OK(location->put_City(Bstr(L"ERIE")));
    EXPECT_OK(location->put_State(Bstr(L"PA")));
    EXPECT_OK(location->put_ZIP(Bstr(L"16501")));
    AddPerson(incident, L"PUBLIC", L"VICTIM");
    AddPerson(incident, L"ROE", L"SUSPECT");
    const auto vehicle = New<LejisVehicleIndexCard, ILejisVehicleIndexCard>();
    EXPECT_OK(vehicle->put_Make(Bstr(L"FORD")));
    Add(incident, &ILejisIncidentIndexCard::get_VehicleIndexCards, vehicle.Get());
    const auto item = New<LejisPropertyIndexCard, ILejisPropertyIndexCard>();
    EXPECT_OK(item->put_SerialID(Bstr(L"SN-1")));
    Add(incident, &ILejisIncidentIndexCard::get_PropertyIndexCards, item.Get());
}

std::vector<std::wstring> Texts(ICollection* collection) {
    std::vector<std::wstring> texts;
    long count = 0;
    EXPECT_OK(collection->get_Count(&count));
    for (long index = 1; index <= count; ++index) {
        _variant_t item;
        EXPECT_OK(collection->get_Item(index, &item));
        texts.emplace_back(V_BSTR(&item));
    }
    return texts;
}

}  // namespace end_to_end
