// The ordered collection that the library hands out.
#include "client/Client.h"
#include "client/ClientObject.h"
#include "client/LateBound.h"

#include <gtest/gtest.h>

#include <climits>

namespace client {
namespace {

class CollectionOfClients : public testing::Test {
protected:
    void SetUp() override {
        const auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
        ASSERT_OK(incident->get_PersonIndexCards(items_.GetAddressOf()));
    }

    long Count() {
        long count = -1;
        EXPECT_OK(items_->get_Count(&count));
        return count;
    }

    _variant_t Item(long index) {
        _variant_t item;
        EXPECT_OK(items_->get_Item(index, &item));
        return item;
    }

    ComPtr<IEnumVARIANT> Enumerator() {
        ComPtr<IUnknown> unknown;
        ComPtr<IEnumVARIANT> enumerator;
        EXPECT_OK(items_->get__NewEnum(unknown.GetAddressOf()));
        EXPECT_OK(unknown.As(&enumerator));
        return enumerator;
    }

    void AddLetters(const wchar_t* letters) {
        for (; *letters; ++letters) ASSERT_OK(items_->Add(_variant_t(std::wstring(1, *letters).c_str())));
    }

    ComPtr<ICollection> items_;
};

TEST_F(CollectionOfClients, KeepsTheOrderAndCountsFromOne) {
    EXPECT_EQ(0, Count());
    AddLetters(L"abc");
    EXPECT_EQ(3, Count());
    EXPECT_EQ(_variant_t(L"a"), Item(1));
    EXPECT_EQ(_variant_t(L"c"), Item(3));
}

TEST_F(CollectionOfClients, ClosesTheGapOfARemovedItem) {
    AddLetters(L"abc");
    ASSERT_OK(items_->Remove(2));
    EXPECT_EQ(2, Count());
    EXPECT_EQ(_variant_t(L"c"), Item(2));
    ASSERT_OK(items_->Remove(1));
    ASSERT_OK(items_->Remove(1));
    EXPECT_EQ(0, Count());
}

TEST_F(CollectionOfClients, RefusesNumbersOfNoItem) {
    AddLetters(L"ab");
    for (const long index : {0L, 3L, -1L, LONG_MIN, LONG_MAX}) {
        _variant_t item;
        const std::wstring text = L"There is no item " + std::to_wstring(index) + L": the collection holds 2.";
        EXPECT_TRUE(support::FailedWith(items_->get_Item(index, &item), DISP_E_BADINDEX, text));
        EXPECT_EQ(VT_EMPTY, V_VT(&item));
        EXPECT_TRUE(support::FailedWith(items_->Remove(index), DISP_E_BADINDEX, text));
    }
    EXPECT_EQ(2, Count());
}

TEST_F(CollectionOfClients, HoldsValuesOfEveryKind) {
    const auto stranger = Make<Stranger>();
    const _variant_t values[] = {_variant_t(),
                                 support::Null(),
                                 5L,
                                 2.5,
                                 true,
                                 L"text",
                                 support::Nothing(),
                                 support::Date(L"2007-03-09"),
                                 _variant_t(static_cast<IDispatch*>(stranger.Get()))};
    for (const _variant_t& value : values) ASSERT_OK(items_->Add(value));
    for (long index = 1; index <= Count(); ++index) {
        const _variant_t item = Item(index);
        EXPECT_EQ(V_VT(&values[index - 1]), V_VT(&item));
        EXPECT_EQ(values[index - 1], item);
    }
}

TEST_F(CollectionOfClients, TakesTheValueOfAVariableAsItIsThen) {
    _variant_t variable(L"then");
    VARIANT reference{};
    V_VT(&reference) = VT_BYREF | VT_VARIANT;
    V_VARIANTREF(&reference) = &variable;
    ASSERT_OK(items_->Add(reference));
    variable = L"later";
    EXPECT_EQ(_variant_t(L"then"), Item(1));
}

TEST_F(CollectionOfClients, HasItsItemsAsDefaultMember) {
    AddLetters(L"xy");
    const LateBound items(ComPtr<IDispatch>(items_.Get()));
    const Outcome second = items.InvokeNumber(DISPID_VALUE, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {2L});
    ASSERT_TRUE(Done(second));
    EXPECT_EQ(L"y", second.Text());
    EXPECT_EQ(DISPID_VALUE, items.NumberOf(L"Item"));
}

TEST_F(CollectionOfClients, EnumeratesSeveralAtATime) {
    AddLetters(L"abcde");
    const auto enumerator = Enumerator();
    _variant_t items[4];
    ULONG fetched = 0;
    EXPECT_EQ(S_OK, enumerator->Next(2, items, &fetched));
    EXPECT_EQ(2U, fetched);
    EXPECT_EQ(_variant_t(L"b"), items[1]);
    EXPECT_EQ(S_OK, enumerator->Skip(1));
    for (_variant_t& item : items) item.Clear();
    EXPECT_EQ(S_FALSE, enumerator->Next(4, items, &fetched));
    EXPECT_EQ(2U, fetched);
    EXPECT_EQ(_variant_t(L"e"), items[1]);
    EXPECT_EQ(VT_EMPTY, V_VT(&items[2]));
}

TEST_F(CollectionOfClients, EnumeratesAgainFromTheStartAndFromACopy) {
    AddLetters(L"ab");
    const auto enumerator = Enumerator();
    ComPtr<IEnumVARIANT> copy;
    _variant_t item;
    EXPECT_EQ(S_OK, enumerator->Next(1, &item, nullptr));
    EXPECT_OK(enumerator->Clone(copy.GetAddressOf()));
    EXPECT_EQ(S_FALSE, enumerator->Skip(2));
    EXPECT_OK(enumerator->Reset());
    item.Clear();
    EXPECT_EQ(S_OK, enumerator->Next(1, &item, nullptr));
    EXPECT_EQ(_variant_t(L"a"), item);
    item.Clear();
    EXPECT_EQ(S_OK, copy->Next(1, &item, nullptr));
    EXPECT_EQ(_variant_t(L"b"), item) << "the copy stands where it was made";
}

TEST_F(CollectionOfClients, EnumeratesWhatIsAddedMeanwhileAndEndsWhenItShrinks) {
    AddLetters(L"a");
    const auto enumerator = Enumerator();
    _variant_t item;
    EXPECT_EQ(S_OK, enumerator->Next(1, &item, nullptr));
    AddLetters(L"b");
    item.Clear();
    EXPECT_EQ(S_OK, enumerator->Next(1, &item, nullptr));
    EXPECT_EQ(_variant_t(L"b"), item);
    ASSERT_OK(items_->Remove(1));
    item.Clear();
    EXPECT_EQ(S_FALSE, enumerator->Next(1, &item, nullptr));
    EXPECT_EQ(VT_EMPTY, V_VT(&item));
}

TEST_F(CollectionOfClients, NamesTheMissingPlacesForResults) {
    const auto enumerator = Enumerator();
    _variant_t items[2];
    EXPECT_EQ(E_POINTER, items_->get_Count(nullptr));
    EXPECT_EQ(E_POINTER, items_->get_Item(1, nullptr));
    EXPECT_EQ(E_POINTER, items_->get__NewEnum(nullptr));
    EXPECT_EQ(E_POINTER, enumerator->Next(1, nullptr, nullptr));
    EXPECT_EQ(E_POINTER, enumerator->Next(2, items, nullptr)) << "only a single item needs no count";
    EXPECT_EQ(E_POINTER, enumerator->Clone(nullptr));
}

TEST_F(CollectionOfClients, OutlivesItsOwnerAndGivesItsItemsBack) {
    bool ended = false;
    auto work = Make<Work>([] { return S_OK; });
    work->TellEnd(&ended);
    ASSERT_OK(items_->Add(_variant_t(static_cast<IDispatch*>(work.Get()))));
    work.Reset();
    EXPECT_FALSE(ended);
    items_.Reset();
    EXPECT_TRUE(ended);
}

}  // namespace
}  // namespace client
