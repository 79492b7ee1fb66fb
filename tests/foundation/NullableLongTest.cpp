#include "foundation/NullableNumber.h"

#include "support/ComCheck.h"
#include "unit_support/Doubles.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <ostream>

using support::kInfinity;
using support::kNoNumber;

namespace lejis {
namespace {

struct LongCase {
    const char* name;
    _variant_t given;
    long held;
};

void PrintTo(const LongCase& row, std::ostream* out) { *out << row.name; }

class NullableLongValues : public testing::TestWithParam<LongCase> {};

TEST_P(NullableLongValues, AreHeldAsLongIntegers) {
    const auto holder = platform::Create<NullableLong>();
    EXPECT_OK(holder->put_Value(GetParam().given));
    _variant_t held;
    EXPECT_OK(holder->get_Value(&held));
    EXPECT_EQ(VT_I4, V_VT(&held));
    EXPECT_EQ(GetParam().held, V_I4(&held));
}

const LongCase kLongCases[] = {
    {"Integer", short{510}, 510},
    {"Long", 1234567L, 1234567},
    {"Byte", BYTE{255}, 255},
    {"Single", 510.0f, 510},
    {"Double", 510.0, 510},
    {"Zero", 0L, 0},
    {"BeyondShort", 40000L, 40000},
    {"HalfToEvenUp", 3.5, 4},
    {"HalfToEvenDown", 2.5, 2},
    {"NegativeHalfToEven", -2.5, -2},
    {"SingleHalfToEven", 2.5f, 2},
    {"Greatest", LONG_MAX, LONG_MAX},
    {"GreatestDouble", 2147483647.0, LONG_MAX},
    {"Smallest", LONG_MIN, LONG_MIN},
    {"SmallestDouble", -2147483648.0, LONG_MIN},
    {"TooGreat", 2147483648.0, 0},
    {"TooSmall", -2147483649.0, 0},
    {"FarTooGreat", 3000000000.0, 0},
    {"TooGreatAfterRounding", 2147483647.5, 0},
    {"TooGreatSingle", 1e30f, 0},
    {"Infinity", kInfinity, 0},
    {"MinusInfinity", -kInfinity, 0},
    {"NoNumber", kNoNumber, 0},
    {"NoSingleNumber", std::numeric_limits<float>::quiet_NaN(), 0},
};

INSTANTIATE_TEST_SUITE_P(All, NullableLongValues, testing::ValuesIn(kLongCases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace lejis
