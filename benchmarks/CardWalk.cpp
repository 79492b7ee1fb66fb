#include "CardWalk.h"

#include "platform/ComError.h"

#include <comutil.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace benchmarks {
namespace {

using TextTaker = std::function<void(BSTR)>;

template <typename Interface>
using TextGetter = HRESULT (STDMETHODCALLTYPE Interface::*)(BSTR*);

template <typename Interface>
void TakeTexts(Interface* card, std::initializer_list<TextGetter<Interface>> getters, const TextTaker& take) {
    for (const TextGetter<Interface> getter : getters) {
        BSTR text = nullptr;
        Check((card->*getter)(&text));
        take(text);
    }
}

template <typename Interface, typename Holder>
void DropValue(Interface* card, HRESULT (STDMETHODCALLTYPE Interface::*getter)(Holder**)) {
    ComPtr<Holder> holder;
    Check((card->*getter)(holder.GetAddressOf()));
    _variant_t value;
    Check(holder->get_Value(&value));
}

template <typename Interface>
void DropCaution(Interface* card) {
    VARIANT_BOOL flag = VARIANT_FALSE;
    Check(card->get_CautionIndicator(&flag));
}

template <typename Interface>
void ForEach(ICollection* cards, const std::function<void(Interface*)>& body) {
    ComPtr<IUnknown> unknown;
    ComPtr<IEnumVARIANT> enumerator;
    Check(cards->get__NewEnum(unknown.GetAddressOf()));
    Check(unknown.As(&enumerator));
    for (_variant_t item; enumerator->Next(1, &item, nullptr) == S_OK; item.Clear()) {
        ComPtr<Interface> card;
        Check(V_DISPATCH(&item)->QueryInterface(IID_PPV_ARGS(card.GetAddressOf())));
        body(card.Get());
    }
}

template <typename Interface>
void WalkAll(ILejisIncidentIndexCard* incident,
             HRESULT (STDMETHODCALLTYPE ILejisIncidentIndexCard::*getter)(ICollection**),
             const std::function<void(Interface*)>& body) {
    ComPtr<ICollection> cards;
    Check((incident->*getter)(cards.GetAddressOf()));
    ForEach(cards.Get(), body);
}

void WalkAddress(ILejisStreetAddress* address, const TextTaker& take) {
    using I = ILejisStreetAddress;
    TakeTexts(address,
              {&I::get_StreetFullText, &I::get_StreetName, &I::get_StreetType, &I::get_StreetDirection,
               &I::get_StreetExtension, &I::get_City, &I::get_State, &I::get_ZIP},
              take);
    DropValue(address, &I::get_StreetNumber);
}

void WalkPerson(ILejisPersonIndexCard* person, const TextTaker& take) {
    using I = ILejisPersonIndexCard;
    TakeTexts(person,
              {&I::get_OrganizationName, &I::get_GivenName, &I::get_MiddleName, &I::get_SurName, &I::get_SSN,
               &I::get_DriversLicense, &I::get_DriversLicenseState, &I::get_SexNCIC, &I::get_RaceNCIC,
               &I::get_ChargeNCICCode, &I::get_ChargeDescriptionText, &I::get_SubjectCautionInformationCode,
               &I::get_SubjectCautionInformationCaveat, &I::get_CaveatText, &I::get_Involvement},
              take);
    ComPtr<ILejisStreetAddress> address;
    Check(person->get_address(address.GetAddressOf()));
    WalkAddress(address.Get(), take);
    DropValue(person, &I::get_BirthDate);
    DropValue(person, &I::get_Height);
    DropValue(person, &I::get_Weight);
    DropCaution(person);
}

void WalkVehicle(ILejisVehicleIndexCard* vehicle, const TextTaker& take) {
    using I = ILejisVehicleIndexCard;
    TakeTexts(vehicle,
              {&I::get_Make, &I::get_Model, &I::get_Style, &I::get_Color, &I::get_LicensePlate,
               &I::get_LicensePlateState, &I::get_VIN, &I::get_CaveatText},
              take);
    DropValue(vehicle, &I::get_Year);
    DropCaution(vehicle);
}

void WalkProperty(ILejisPropertyIndexCard* item, const TextTaker& take) {
    using I = ILejisPropertyIndexCard;
    TakeTexts(item,
              {&I::get_NibrsCategoryCode, &I::get_Category, &I::get_Make, &I::get_Model, &I::get_SerialID,
               &I::get_CaveatText},
              take);
    DropCaution(item);
}

void WalkIncident(ILejisIncidentIndexCard* incident, const TextTaker& take) {
    using I = ILejisIncidentIndexCard;
    TakeTexts(incident,
              {&I::get_OrganizationName, &I::get_OrganizationORI, &I::get_ActivityID, &I::get_CaveatText,
               &I::get_ChargeNCICCode, &I::get_ChargeDescriptionText},
              take);
    ComPtr<ILejisStreetAddress> location;
    Check(incident->get_Location(location.GetAddressOf()));
    WalkAddress(location.Get(), take);
    DropValue(incident, &I::get_SubmittedDate);
    DropValue(incident, &I::get_ActivityDateTime);
    DropCaution(incident);
    WalkAll<ILejisPersonIndexCard>(incident, &I::get_PersonIndexCards, [&](auto* one) { WalkPerson(one, take); });
    WalkAll<ILejisVehicleIndexCard>(incident, &I::get_VehicleIndexCards, [&](auto* one) { WalkVehicle(one, take); });
    WalkAll<ILejisPropertyIndexCard>(incident, &I::get_PropertyIndexCards, [&](auto* one) { WalkProperty(one, take); });
}

}  // namespace

void WalkCards(ICollection* incidents, const std::function<void(BSTR)>& take) {
    ForEach<ILejisIncidentIndexCard>(incidents, [&](auto* incident) { WalkIncident(incident, take); });
}

}  // namespace benchmarks
