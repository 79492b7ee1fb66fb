#include "platform/com/UnknownObject.h"

#include "platform/com/Collection.h"

#include <gtest/gtest.h>

#include <utility>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;

TEST(Ref, HoldsItsObject) {
    auto collection = Create<Collection>();
    const ComPtr<Collection> other = collection;
    EXPECT_EQ(3u, (other->AddRef(), other->Release() + 1));
    collection = Create<Collection>();
    EXPECT_EQ(2u, (other->AddRef(), other->Release() + 1));
}

TEST(Ref, IsTheObjectItself) {
    const auto collection = Create<Collection>();
    collection->AddText(L"x");
    EXPECT_EQ(1u, (*collection).Count());
    EXPECT_EQ(&*collection, collection.Get());
}

TEST(Ref, StaysWhatItIsWhenItIsMoved) {
    auto collection = Create<Collection>();
    const auto moved = std::move(collection);
    EXPECT_EQ(moved.Get(), collection.Get());
}

TEST(Ref, GoesIntoAPlaceThatMayBeNull) {
    const auto collection = Create<Collection>();
    const ComPtr<ICollection> same = collection;
    EXPECT_EQ(static_cast<ICollection*>(collection.Get()), same.Get());
}

}  // namespace
}  // namespace platform
