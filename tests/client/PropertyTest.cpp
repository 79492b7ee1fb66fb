// Every property that clients can set, of every class, keeps what it was given: by name and through the table.
#include "client/LateBound.h"
#include "client/Members.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <climits>

namespace client {
namespace {

using support::Utf8;

struct Property {
    const ClassRow* owner;
    Member getter;
    Member setter;
};

std::vector<Property> SettableProperties(VARTYPE type) {
    std::vector<Property> properties;
    for (const ClassRow& row : CreatableClasses()) {
        const std::vector<Member> members = MembersOf(row.defaultInterface);
        for (size_t index = 1; index < members.size(); ++index) {
            const Member& setter = members[index];
            // A property's getter is declared before its setter.
            if (setter.kind == INVOKE_PROPERTYPUT && setter.parameters[0].type == type) {
                properties.push_back({&row, members[index - 1], setter});
            }
        }
    }
    return properties;
}

std::string Name(const Property& property) { return Utf8(property.owner->name) + "." + Utf8(property.getter.name); }

// The pointer to which a getter writes.
VARIANT Receiver(VARIANT* value) {
    VARIANT receiver{};
    V_VT(&receiver) = static_cast<VARTYPE>(VT_BYREF | V_VT(value));
    V_BYREF(&receiver) = &value->llVal;
    return receiver;
}

// Sets each value by name and reads it through the table, then the other way round.
void ExpectKept(const Property& property, const _variant_t& value) {
    const LateBound byName = CreateLateBound(property.owner->name);
    ComPtr<IUnknown> byTable;
    ASSERT_OK(byName.Pointer()->QueryInterface(property.owner->defaultInterface,
                                               reinterpret_cast<void**>(byTable.GetAddressOf())));
    _variant_t read;
    V_VT(&read) = V_VT(&value);
    EXPECT_TRUE(Done(byName.Put(property.setter.name.c_str(), value)));
    EXPECT_OK(CallDirectly(byTable.Get(), property.getter, {Receiver(&read)}));
    EXPECT_EQ(value, read) << Name(property);

    const LateBound other = CreateLateBound(property.owner->name);
    ASSERT_OK(other.Pointer()->QueryInterface(property.owner->defaultInterface,
                                              reinterpret_cast<void**>(byTable.ReleaseAndGetAddressOf())));
    EXPECT_OK(CallDirectly(byTable.Get(), property.setter, {value}));
    EXPECT_EQ(value, other.Get(property.getter.name.c_str()).value) << Name(property);
}

TEST(Property, OfTextKeepsItsText) {
    const std::vector<Property> properties = SettableProperties(VT_BSTR);
    // 8 of the address, 15 of the person, 8 of the vehicle, 6 of the property card, 6 of the incident, 2 of the
    // envelope, 1 of the service.
    ASSERT_EQ(73U, properties.size());
    for (const Property& property : properties) {
        for (const std::wstring& text : {std::wstring(), std::wstring(L" <&>'\" "), std::wstring(40000, L'\u00E4'),
                                         std::wstring(L"\u20AC \U0001F600\r\n"), std::wstring(L"a\0b", 3)}) {
            ExpectKept(property, _variant_t(support::Bstr(text)));
        }
    }
}

TEST(Property, OfBooleanKindKeepsTrueAndFalse) {
    const std::vector<Property> properties = SettableProperties(VT_BOOL);
    ASSERT_EQ(7U, properties.size());
    for (const Property& property : properties) {
        for (const bool flag : {true, false}) ExpectKept(property, _variant_t(flag));
    }
}

TEST(Property, OfBooleanKindTurnsEveryTrueValueIntoVariantTrue) {
    for (const Property& property : SettableProperties(VT_BOOL)) {
        const LateBound object = CreateLateBound(property.owner->name);
        ComPtr<IUnknown> byTable;
        ASSERT_OK(object.Pointer()->QueryInterface(property.owner->defaultInterface,
                                                   reinterpret_cast<void**>(byTable.GetAddressOf())));
        VARIANT one{};
        V_VT(&one) = VT_BOOL;
        V_BOOL(&one) = 1;
        EXPECT_OK(CallDirectly(byTable.Get(), property.setter, {one}));
        EXPECT_EQ(_variant_t(true), object.Get(property.getter.name.c_str()).value) << Name(property);
    }
}

TEST(Property, OfNumberKindKeepsItsNumber) {
    const std::vector<Property> properties = SettableProperties(VT_I4);
    ASSERT_EQ(2U, properties.size());
    for (const Property& property : properties) {
        for (const long number : {0L, -1L, LONG_MAX, LONG_MIN}) ExpectKept(property, _variant_t(number, VT_I4));
    }
}

TEST(Property, IsEmptyWhenNew) {
    for (const VARTYPE type : {VARTYPE(VT_BSTR), VARTYPE(VT_BOOL), VARTYPE(VT_I4)}) {
        for (const Property& property : SettableProperties(type)) {
            const Outcome read = CreateLateBound(property.owner->name).Get(property.getter.name.c_str());
            ASSERT_TRUE(Done(read));
            EXPECT_EQ(type, V_VT(&read.value)) << Name(property);
            const _variant_t empty = type == VT_BSTR ? _variant_t(L"") : _variant_t(0L, type);
            EXPECT_EQ(empty, read.value) << Name(property);
        }
    }
}

TEST(Property, SetToOneValueLeavesTheOthersAlone) {
    for (const ClassRow& row : CreatableClasses()) {
        const LateBound object = CreateLateBound(row.name);
        std::vector<Property> own = SettableProperties(VT_BSTR);
        std::erase_if(own, [&](const Property& property) { return property.owner->id != row.id; });
        for (const Property& property : own) object.Put(property.setter.name.c_str(), property.setter.name.c_str());
        for (const Property& property : own) {
            EXPECT_EQ(property.getter.name, object.Get(property.getter.name.c_str()).Text()) << Name(property);
        }
    }
}

TEST(Property, NamesTheMissingPlaceForItsValue) {
    ForEachMember([](const ClassRow&, IUnknown* object, const Member& member) {
        if (member.kind != INVOKE_PROPERTYGET) return;
        VARIANT nowhere{};
        V_VT(&nowhere) = VT_BYREF | VT_UI1;
        EXPECT_EQ(E_POINTER, CallDirectly(object, member, {nowhere}));
    });
}

}  // namespace
}  // namespace client
