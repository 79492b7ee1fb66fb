#include "com/Numbers.h"

#include <cstring>
#include <limits>

namespace fuzzing {
namespace {

constexpr int64_t kIntegers[] = {
    0,
    1,
    -1,
    2,
    3,
    100,
    127,
    128,
    255,
    256,
    32767,
    32768,
    -32768,
    -32769,
    65535,
    65536,
    2147483647,
    2147483648,
    -2147483648LL,
    -2147483649LL,
    4294967295LL,
    std::numeric_limits<int64_t>::max(),
    std::numeric_limits<int64_t>::min(),
};

using Limits = std::numeric_limits<double>;

constexpr double kDoubles[] = {
    0,
    -0.0,
    0.5,
    1.5,
    2.5,
    -2.5,
    0.1,
    39150.5868,
    32767.5,
    -32768.5,
    2147483647.5,
    -2147483648.5,
    1e15,
    1e300,
    // 30 December 1899 and its neighbours, the calendar's first and last days, and one beyond each.
    1,
    -1,
    -1.25,
    -657434,
    -657434.999999,
    -657435,
    2958465.99999,
    2958465.999999999,
    2958466,
    60,
    61,
    Limits::infinity(),
    -Limits::infinity(),
    Limits::quiet_NaN(),
    Limits::signaling_NaN(),
    Limits::max(),
    Limits::lowest(),
    Limits::min(),
    Limits::denorm_min(),
    Limits::epsilon(),
};

}  // namespace

int64_t AnyInteger(Case& input) {
    if (!input.OneIn(4)) return input.Pick(kIntegers);
    const int64_t high = input.Bits();
    return static_cast<int64_t>(static_cast<uint64_t>(high) << 32 | input.Bits());
}

double AnyDouble(Case& input) {
    switch (input.Below(6)) {
        case 4:
            return static_cast<double>(AnyInteger(input));
        case 5: {
            const int64_t bits = AnyInteger(input);
            double number;
            std::memcpy(&number, &bits, sizeof number);
            return number;
        }
        default:
            return input.Pick(kDoubles);
    }
}

}  // namespace fuzzing
