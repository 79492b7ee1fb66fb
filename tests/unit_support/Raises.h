// What the library's inside raises.
#pragma once

#include "platform/com/Guard.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace support {

// The work raises an error with this number and this description.
template <typename Work>
testing::AssertionResult Raises(long number, const std::wstring& description, Work&& work) {
    try {
        work();
    } catch (...) {
        const platform::ComError error = platform::CaughtError();
        if (error.Number() == number && error.Description() == description) return testing::AssertionSuccess();
        return testing::AssertionFailure()
               << "expected " << Hexadecimal(number) << " " << Utf8(description) << "\n     got "
               << Hexadecimal(error.Number()) << " " << Utf8(error.Description());
    }
    return testing::AssertionFailure() << "expected " << Hexadecimal(number) << " " << Utf8(description)
                                       << ", but nothing was raised";
}

// The built-in number of an invalid argument, where no host suite is registered.
inline constexpr long kInvalidArgument = static_cast<long>(0x80040205);
inline constexpr long kObjectRequired = static_cast<long>(0x800A01A8);

}  // namespace support
