#include "platform/ComError.h"

#include "support/ComCheck.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

#include <oleauto.h>
#include <wrl/client.h>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;
using support::Raises;

// What a callee leaves behind for the caller of a failed method.
void LeaveError(const wchar_t* description, const wchar_t* source) {
    ComPtr<ICreateErrorInfo> creator;
    ComPtr<IErrorInfo> information;
    ASSERT_OK(CreateErrorInfo(creator.GetAddressOf()));
    ASSERT_OK(creator->SetDescription(support::Bstr(description)));
    ASSERT_OK(creator->SetSource(support::Bstr(source)));
    ASSERT_OK(creator.As(&information));
    ASSERT_OK(SetErrorInfo(0, information.Get()));
}

TEST(ComError, MakesAFailureOfASuccessNumber) {
    EXPECT_EQ(E_FAIL, ComError(S_OK, L"bad").Number());
    EXPECT_EQ(E_FAIL, ComError(S_FALSE, L"bad").Number());
    EXPECT_EQ(E_FAIL, ComError(500, L"bad").Number());
    EXPECT_EQ(E_ACCESSDENIED, ComError(E_ACCESSDENIED, L"bad").Number());
}

TEST(ComError, KeepsDescriptionAndSource) {
    const ComError error(E_FAIL, L"what", L"who");
    EXPECT_EQ(L"what", error.Description());
    EXPECT_EQ(L"who", error.Source());
    EXPECT_EQ(L"", ComError(E_FAIL, L"what").Source());
}

TEST(ComError, TakesWhatTheCalleeLeft) {
    LeaveError(L"The disk is full", L"Disk");
    const ComError error = LastError(E_ACCESSDENIED);
    EXPECT_EQ(E_ACCESSDENIED, error.Number());
    EXPECT_EQ(L"The disk is full", error.Description());
    EXPECT_EQ(L"Disk", error.Source());
}

TEST(ComError, FallsBackToTheSystemsTextWithoutItsLineEnd) {
    SetErrorInfo(0, nullptr);
    const std::wstring text = LastError(E_OUTOFMEMORY).Description();
    ASSERT_FALSE(text.empty());
    EXPECT_EQ(std::wstring::npos, text.find_first_of(L"\r\n"));
    EXPECT_NE(L' ', text.back());
}

TEST(ComError, NamesTheNumberWithoutAnyText) {
    LeaveError(L"", L"");
    EXPECT_EQ(L"Error -1610559471", LastError(static_cast<HRESULT>(0xA000D011)).Description());
}

TEST(ComError, IsRaisedByChecksOfFailuresAlone) {
    EXPECT_NO_THROW(Check(S_OK));
    EXPECT_NO_THROW(Check(S_FALSE));
    LeaveError(L"gone", L"");
    EXPECT_TRUE(Raises(E_POINTER, L"gone", [] { Check(E_POINTER); }));
}

TEST(ComError, HasTheNumbersThatClientsKnow) {
    EXPECT_TRUE(Raises(static_cast<long>(0x800A01A8), L"Object required", [] { throw ObjectRequired(); }));
    EXPECT_TRUE(Raises(static_cast<long>(0x80020005), L"Type mismatch", [] { throw TypeMismatch(); }));
    EXPECT_TRUE(Raises(static_cast<long>(0x8002000A), L"Overflow", [] { throw Overflow(); }));
}

}  // namespace
}  // namespace platform
