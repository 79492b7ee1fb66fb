#include "foundation/ElementName.h"

#include <gtest/gtest.h>

namespace lejis {
namespace {

TEST(ElementPath, HasAStepForEachName) {
    constexpr ElementPath kOne = L"j:a";
    ASSERT_EQ(1u, kOne.Steps().size());
    constexpr ElementPath kThree = L"j:a/ext:b.c/card:d";
    ASSERT_EQ(3u, kThree.Steps().size());
    EXPECT_EQ(L"a", kThree.Steps()[0].LocalName());
    EXPECT_EQ(L"b.c", kThree.Steps()[1].LocalName());
    EXPECT_EQ(ElementName(L"card:d").Key(), kThree.Steps()[2].Key());
}

}  // namespace
}  // namespace lejis
