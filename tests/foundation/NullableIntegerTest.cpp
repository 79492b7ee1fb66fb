#include "foundation/NullableNumber.h"

#include "support/ComCheck.h"
#include "unit_support/Doubles.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

using support::kInfinity;
using support::kNoNumber;

namespace lejis {
namespace {

struct IntegerCase {
    const char* name;
    _variant_t given;
    short held;
};

void PrintTo(const IntegerCase& row, std::ostream* out) { *out << row.name; }

class NullableIntegerValues : public testing::TestWithParam<IntegerCase> {};

TEST_P(NullableIntegerValues, AreHeldAsShortIntegers) {
    const auto holder = platform::Create<NullableInteger>();
    EXPECT_OK(holder->put_Value(GetParam().given));
    _variant_t held;
    EXPECT_OK(holder->get_Value(&held));
    EXPECT_EQ(VT_I2, V_VT(&held));
    EXPECT_EQ(GetParam().held, V_I2(&held));
}

const IntegerCase kIntegerCases[] = {
    {"Integer", short{510}, 510},
    {"Long", 510L, 510},
    {"Byte", BYTE{255}, 255},
    {"Single", 510.0f, 510},
    {"Double", 510.0, 510},
    {"Zero", 0L, 0},
    {"RoundsUp", 3.6, 4},
    {"HalfToEvenUp", 3.5, 4},
    {"HalfToEvenDown", 2.5, 2},
    {"NegativeHalfToEven", -2.5, -2},
    {"SingleHalfToEven", 2.5f, 2},
    {"Greatest", 32767L, 32767},
    {"GreatestAfterRounding", 32767.4, 32767},
    {"Smallest", -32768L, -32768},
    {"TooGreat", 32768L, 0},
    {"TooSmall", -32769L, 0},
    {"FarTooGreat", 40000L, 0},
    {"TooGreatAfterRounding", 32767.5, 0},
    {"TooGreatSingle", 1e30f, 0},
    {"TooGreatDouble", 3000000000.0, 0},
    {"Infinity", kInfinity, 0},
    {"MinusInfinity", -kInfinity, 0},
    {"NoNumber", kNoNumber, 0},
    {"NoSingleNumber", std::numeric_limits<float>::quiet_NaN(), 0},
};

INSTANTIATE_TEST_SUITE_P(All, NullableIntegerValues, testing::ValuesIn(kIntegerCases),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace lejis
