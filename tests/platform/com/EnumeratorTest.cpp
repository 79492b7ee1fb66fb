#include "platform/com/Enumerator.h"

#include "platform/com/Collection.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

#include <vector>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;
using Walk = ComPtr<IEnumVARIANT>;

platform::Ref<Collection> Letters() {
    auto collection = Create<Collection>();
    for (const wchar_t* text : {L"a", L"b", L"c"}) collection->AddText(text);
    return collection;
}

Walk WalkOf(const platform::Ref<Collection>& collection) {
    ComPtr<IUnknown> object;
    EXPECT_OK(collection->get__NewEnum(object.GetAddressOf()));
    Walk walk;
    EXPECT_OK(object.As(&walk));
    return walk;
}

// Up to `wanted` items as one text, and what the enumerator returned for them.
std::wstring Take(const Walk& walk, ULONG wanted, HRESULT expected) {
    std::vector<_variant_t> items(wanted);
    ULONG fetched = 99;
    EXPECT_EQ(expected, walk->Next(wanted, items.data(), &fetched));
    std::wstring text;
    for (ULONG index = 0; index < fetched && index < wanted; ++index) text += _bstr_t(items[index]);
    EXPECT_EQ(text.size(), fetched);
    return text;
}

TEST(Enumerator, GivesItemsOneByOneToTheEnd) {
    const Walk walk = WalkOf(Letters());
    EXPECT_EQ(L"a", Take(walk, 1, S_OK));
    EXPECT_EQ(L"b", Take(walk, 1, S_OK));
    EXPECT_EQ(L"c", Take(walk, 1, S_OK));
    EXPECT_EQ(L"", Take(walk, 1, S_FALSE));
}

TEST(Enumerator, GivesSeveralItemsAtOnce) {
    const Walk walk = WalkOf(Letters());
    EXPECT_EQ(L"ab", Take(walk, 2, S_OK));
    EXPECT_EQ(L"c", Take(walk, 2, S_FALSE));
    EXPECT_EQ(L"", Take(walk, 2, S_FALSE));
}

TEST(Enumerator, NeedsNoCountForOneItem) {
    const Walk walk = WalkOf(Letters());
    _variant_t item;
    EXPECT_EQ(S_OK, walk->Next(1, &item, nullptr));
    EXPECT_EQ(_variant_t(L"a"), item);
    _variant_t two[2];
    EXPECT_EQ(E_POINTER, walk->Next(2, two, nullptr));
    ULONG fetched = 99;
    EXPECT_EQ(E_POINTER, walk->Next(1, nullptr, &fetched));
    EXPECT_EQ(0u, fetched);
    EXPECT_EQ(E_POINTER, walk->Clone(nullptr));
}

TEST(Enumerator, SkipsItemsAndSaysWhenThereWereTooFew) {
    const Walk walk = WalkOf(Letters());
    EXPECT_EQ(S_OK, walk->Skip(2));
    EXPECT_EQ(L"c", Take(walk, 1, S_OK));
    EXPECT_OK(walk->Reset());
    EXPECT_EQ(S_OK, walk->Skip(3));
    EXPECT_EQ(L"", Take(walk, 1, S_FALSE));
    EXPECT_OK(walk->Reset());
    EXPECT_EQ(S_FALSE, walk->Skip(4));
    EXPECT_EQ(L"", Take(walk, 1, S_FALSE));
}

TEST(Enumerator, BeginsAnewAfterReset) {
    const Walk walk = WalkOf(Letters());
    EXPECT_EQ(L"abc", Take(walk, 3, S_OK));
    EXPECT_EQ(S_OK, walk->Reset());
    EXPECT_EQ(L"abc", Take(walk, 3, S_OK));
}

TEST(Enumerator, ClonesItselfWithItsPlace) {
    const Walk walk = WalkOf(Letters());
    EXPECT_EQ(L"a", Take(walk, 1, S_OK));
    Walk clone;
    ASSERT_OK(walk->Clone(clone.GetAddressOf()));
    EXPECT_EQ(L"bc", Take(walk, 2, S_OK));
    EXPECT_EQ(L"bc", Take(clone, 2, S_OK));
}

TEST(Enumerator, WalksItemsAddedMeanwhile) {
    const auto letters = Letters();
    const Walk walk = WalkOf(letters);
    EXPECT_EQ(L"abc", Take(walk, 3, S_OK));
    letters->AddText(L"d");
    EXPECT_EQ(L"d", Take(walk, 1, S_OK));
}

TEST(Enumerator, SurvivesTheRemovalOfItems) {
    const auto letters = Letters();
    const Walk walk = WalkOf(letters);
    EXPECT_EQ(L"abc", Take(walk, 3, S_OK));
    EXPECT_OK(letters->Remove(1));
    EXPECT_EQ(L"", Take(walk, 1, S_FALSE));
    EXPECT_EQ(S_FALSE, walk->Skip(1));
    EXPECT_EQ(S_OK, walk->Skip(0));
}

TEST(Enumerator, GivesBackWhatItHadCopiedWhenOneItemFails) {
    int copies = 0;
    bool fails = true;
    const auto walk = Create<Enumerator<IEnumVARIANT, VARIANT>>(
        Enumerable<VARIANT>{[] { return 3UL; },
                            [&](ULONG position, VARIANT*) {
                                if (fails && position == 2) throw ComError(E_ACCESSDENIED, L"refused");
                                ++copies;
                            },
                            [&](VARIANT*) { --copies; }});
    VARIANT items[3] = {};
    ULONG fetched = 99;
    EXPECT_EQ(E_ACCESSDENIED, walk->Next(3, items, &fetched));
    EXPECT_EQ(0u, fetched);
    EXPECT_EQ(0, copies);
    fails = false;
    EXPECT_EQ(S_OK, walk->Next(3, items, &fetched));
    EXPECT_EQ(3, copies);
}

}  // namespace
}  // namespace platform
