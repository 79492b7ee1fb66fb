#include "platform/com/Collection.h"

#include "model/LejisPersonIndexCard.h"
#include "model/LejisVehicleIndexCard.h"
#include "platform/com/LateBound.h"
#include "support/ComCheck.h"
#include "unit_support/LateBoundObject.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using lejis::LejisPersonIndexCard;
using lejis::LejisVehicleIndexCard;
using Microsoft::WRL::ComPtr;
using support::FailedWith;
using support::Raises;
using support::Texts;

// Calls back when it dies, as an object of a client may.
class Parting final : public support::LateBoundObject {
public:
    explicit Parting(std::function<void()> onEnd) : LateBoundObject({}), onEnd_(std::move(onEnd)) {}
    ~Parting() override { onEnd_(); }

private:
    std::function<void()> onEnd_;
};

platform::Ref<Collection> CollectionOf(std::initializer_list<const wchar_t*> texts) {
    auto collection = Create<Collection>();
    for (const wchar_t* text : texts) collection->AddText(text);
    return collection;
}

TEST(Collection, IsEmptyWhenNew) {
    const auto collection = Create<Collection>();
    long count = -1;
    EXPECT_OK(collection->get_Count(&count));
    EXPECT_EQ(0, count);
}

TEST(Collection, KeepsTheOrderOfAddingAndCountsFromOne) {
    const auto collection = Create<Collection>();
    EXPECT_OK(collection->Add(_variant_t(L"first")));
    EXPECT_OK(collection->Add(_variant_t(2L)));
    long count = 0;
    EXPECT_OK(collection->get_Count(&count));
    EXPECT_EQ(2, count);
    _variant_t item;
    EXPECT_OK(collection->get_Item(1, &item));
    EXPECT_EQ(_variant_t(L"first"), item);
    EXPECT_OK(collection->get_Item(2, &item));
    EXPECT_EQ(_variant_t(2L), item);
}

TEST(Collection, SaysWhichItemIsMissing) {
    const auto collection = CollectionOf({L"a", L"b"});
    _variant_t item;
    constexpr long kBadIndex = static_cast<long>(0x8002000B);
    EXPECT_TRUE(FailedWith(collection->get_Item(0, &item), kBadIndex, L"There is no item 0: the collection holds 2."));
    EXPECT_TRUE(FailedWith(collection->get_Item(3, &item), kBadIndex, L"There is no item 3: the collection holds 2."));
    EXPECT_TRUE(FailedWith(collection->Remove(-1), kBadIndex, L"There is no item -1: the collection holds 2."));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"b"}), Texts(*collection));
}

TEST(Collection, RemovesAnItemAndMovesTheOthersUp) {
    const auto collection = CollectionOf({L"a", L"b", L"c"});
    EXPECT_OK(collection->Remove(2));
    EXPECT_EQ((std::vector<std::wstring>{L"a", L"c"}), Texts(*collection));
}

TEST(Collection, IsWholeAgainWhenARemovedItemDies) {
    const auto collection = Create<Collection>();
    size_t countAtEnd = 99;
    collection->AddObject(Create<Parting>([&] { countAtEnd = collection->Count(); }).Get());
    collection->AddText(L"stays");
    EXPECT_OK(collection->Remove(1));
    EXPECT_EQ(1u, countAtEnd);
    EXPECT_EQ((std::vector<std::wstring>{L"stays"}), Texts(*collection));
}

TEST(Collection, KeepsTheValueOfWhatIsPassedByReference) {
    const auto collection = Create<Collection>();
    _variant_t text(L"before");
    _variant_t reference;
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &text;
    EXPECT_OK(collection->Add(reference));
    text = L"after";
    EXPECT_EQ((std::vector<std::wstring>{L"before"}), Texts(*collection));
}

TEST(Collection, HandsOutTheObjectsThemselves) {
    const auto collection = Create<Collection>();
    const auto vehicle = Create<LejisVehicleIndexCard>();
    collection->AddObject(vehicle->Dispatch());
    EXPECT_OK(collection->Add(_variant_t(static_cast<IUnknown*>(vehicle->Dispatch()))));
    const auto vehicles = collection->ItemsAs<LejisVehicleIndexCard>();
    ASSERT_EQ(2u, vehicles.size());
    EXPECT_EQ(vehicle.Get(), vehicles[0].Get());
    EXPECT_EQ(vehicle.Get(), vehicles[1].Get());
}

TEST(Collection, RaisesTheTypeMismatchForAnItemOfAnotherKind) {
    const auto foreign = Create<support::LateBoundObject>(std::map<std::wstring, support::Member>{});
    const _variant_t items[] = {_variant_t(Create<LejisPersonIndexCard>()->Dispatch()),
                                _variant_t(static_cast<IDispatch*>(foreign.Get())),
                                _variant_t(L"text"),
                                _variant_t(1L),
                                support::Null(),
                                _variant_t()};
    for (const _variant_t& item : items) {
        const auto collection = Create<Collection>();
        EXPECT_OK(collection->Add(item));
        EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] {
            collection->ItemsAs<LejisVehicleIndexCard>();
        })) << V_VT(&item);
    }
}

TEST(Collection, VisitsEachItemBeforeItAsksForTheNext) {
    const auto collection = Create<Collection>();
    const auto vehicle = Create<LejisVehicleIndexCard>();
    collection->AddObject(vehicle->Dispatch());
    collection->AddObject(Create<LejisPersonIndexCard>()->Dispatch());
    std::vector<const LejisVehicleIndexCard*> visited;
    EXPECT_TRUE(Raises(DISP_E_TYPEMISMATCH, L"Type mismatch", [&] {
        collection->ForEach<LejisVehicleIndexCard>([&](const auto& card) { visited.push_back(&card); });
    }));
    EXPECT_EQ((std::vector<const LejisVehicleIndexCard*>{vehicle.Get()}), visited);
}

TEST(Collection, MayShrinkWhileItIsVisited) {
    const auto collection = Create<Collection>();
    for (int count = 0; count < 3; ++count) collection->AddObject(Create<LejisVehicleIndexCard>()->Dispatch());
    int visits = 0;
    collection->ForEach<LejisVehicleIndexCard>([&](const auto&) {
        ++visits;
        EXPECT_OK(collection->Remove(1));
    });
    EXPECT_EQ(2, visits);
}

TEST(Collection, RaisesTheObjectErrorForNoObject) {
    const auto collection = Create<Collection>();
    collection->AddObject(nullptr);
    EXPECT_TRUE(
        Raises(support::kObjectRequired, L"Object required", [&] { collection->ItemsAs<LejisVehicleIndexCard>(); }));
}

TEST(Collection, IsReadByClientsThroughItsMembers) {
    const auto collection = CollectionOf({L"a", L"b"});
    EXPECT_EQ(_variant_t(2L), GetMember(collection->Dispatch(), L"Count"));
    CallMember(collection->Dispatch(), L"Remove", {1L});
    CallMember(collection->Dispatch(), L"Add", {L"c"});
    EXPECT_EQ((std::vector<std::wstring>{L"b", L"c"}), Texts(*collection));
}

TEST(Collection, HasItemAsItsDefaultMember) {
    const auto collection = CollectionOf({L"a", L"b"});
    _variant_t index(2L);
    DISPPARAMS parameters{&index, nullptr, 1, 0};
    _variant_t item;
    EXPECT_OK(collection->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &parameters, &item,
                                 nullptr, nullptr));
    EXPECT_EQ(_variant_t(L"b"), item);
}

TEST(Collection, WantsAPlaceForItsResults) {
    const auto collection = CollectionOf({L"a"});
    EXPECT_EQ(E_POINTER, collection->get_Count(nullptr));
    EXPECT_EQ(E_POINTER, collection->get_Item(1, nullptr));
    EXPECT_EQ(E_POINTER, collection->get__NewEnum(nullptr));
}

}  // namespace
}  // namespace platform
