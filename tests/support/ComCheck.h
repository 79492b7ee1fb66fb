// Calls to COM objects in tests: what a client sees of a result and of its error object.
#pragma once

#include "support/Printing.h"

#include <gtest/gtest.h>

#include <comutil.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace support {

// Number, description and source of the failed call just made.
struct ErrorSeen {
    long number;
    std::wstring description;
    std::wstring source;
};

// Takes the thread's error object.
ErrorSeen TakeError(HRESULT result);

testing::AssertionResult Succeeded(const char* call, HRESULT result);

// The call failed with this number and this description.
testing::AssertionResult FailedWith(HRESULT result, long number, const std::wstring& description);

// Text given to a method, freed with the expression; and text taken from one.
_bstr_t Bstr(const std::wstring& text);
std::wstring Take(BSTR text);

// A variant without a value: Null, Empty, Nothing.
_variant_t Null();
_variant_t Nothing();
_variant_t Date(const wchar_t* text);

}  // namespace support

#define EXPECT_OK(call) EXPECT_PRED_FORMAT1(support::Succeeded, (call))
#define ASSERT_OK(call) ASSERT_PRED_FORMAT1(support::Succeeded, (call))
