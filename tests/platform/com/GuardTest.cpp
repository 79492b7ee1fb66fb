#include "platform/com/Guard.h"

#include "platform/com/Module.h"
#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <comdef.h>
#include <TVLejisCore.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

namespace platform {
namespace {

using Microsoft::WRL::ComPtr;
using support::FailedWith;
using support::TakeError;

const CLSID kClass = __uuidof(::LejisVehicleIndexCard);

HRESULT Guarded(const std::function<void()>& work) { return Guard(kClass, work); }

TEST(Guard, ReportsSuccessAndForgetsEarlierErrors) {
    Guarded([] { throw ComError(E_FAIL, L"earlier"); });
    EXPECT_EQ(S_OK, Guarded([] {}));
    EXPECT_EQ(L"", TakeError(S_OK).description);
}

TEST(Guard, ReportsTheLibrarysErrorWithNumberDescriptionAndSource) {
    const auto seen = TakeError(Guarded([] { throw ComError(DISP_E_OVERFLOW, L"too much"); }));
    EXPECT_EQ(DISP_E_OVERFLOW, seen.number);
    EXPECT_EQ(L"too much", seen.description);
    EXPECT_EQ(L"TVLejisCore.LejisVehicleIndexCard", seen.source);
}

TEST(Guard, KeepsTheSourceOfTheCallee) {
    EXPECT_EQ(L"Msxml", TakeError(Guarded([] { throw ComError(E_FAIL, L"no parse", L"Msxml"); })).source);
}

TEST(Guard, MakesAFailureOfASuccessNumber) {
    EXPECT_TRUE(FailedWith(Guarded([] { throw ComError(S_FALSE, L"bad"); }), E_FAIL, L"bad"));
}

TEST(Guard, ReportsMissingMemory) {
    EXPECT_TRUE(FailedWith(Guarded([] { throw std::bad_alloc(); }), E_OUTOFMEMORY, L"Out of memory"));
}

TEST(Guard, ReportsExceptionsOfTheStandardLibrary) {
    EXPECT_TRUE(FailedWith(Guarded([] { throw std::logic_error("a mistake"); }), E_UNEXPECTED, L"a mistake"));
    EXPECT_TRUE(FailedWith(Guarded([] { std::string().at(1); }), E_UNEXPECTED, support::Wide([] {
                               try {
                                   std::string().at(1);
                               } catch (const std::exception& error) {
                                   return std::string(error.what());
                               }
                               return std::string();
                           }())));
}

TEST(Guard, ReportsErrorsOfThePlatformsWrappers) {
    const auto seen = TakeError(Guarded([] { _com_issue_error(E_ACCESSDENIED); }));
    EXPECT_EQ(E_ACCESSDENIED, seen.number);
    EXPECT_NE(L"", seen.description);
}

TEST(Guard, ReportsAnythingElseThatIsThrown) {
    EXPECT_TRUE(FailedWith(Guarded([] { throw 42; }), E_UNEXPECTED, L"Unexpected error"));
}

TEST(Guard, NamesTheLibraryAsSourceWithoutAClass) {
    const HRESULT result = Guard(GUID_NULL, [] { throw ComError(E_ACCESSDENIED, L"refused"); });
    const support::ErrorSeen seen = support::TakeError(result);
    EXPECT_EQ(E_ACCESSDENIED, seen.number);
    EXPECT_EQ(L"refused", seen.description);
    EXPECT_EQ(L"TVLejisCore", seen.source);
}

TEST(Guard, ReportsTheNumberOfAnErrorWhoseClassIsUnknown) {
    EXPECT_EQ(E_ACCESSDENIED, Guard(__uuidof(IUnknown), [] { throw ComError(E_ACCESSDENIED, L"refused"); }));
}

TEST(Guard, NamesTheClassInTheErrorObject) {
    Guarded([] { throw ComError(E_FAIL, L"bad"); });
    ComPtr<IErrorInfo> information;
    ASSERT_EQ(S_OK, GetErrorInfo(0, information.GetAddressOf()));
    GUID guid{};
    EXPECT_OK(information->GetGUID(&guid));
    EXPECT_TRUE(guid == kClass);
}

TEST(Guard, SetsTheResultOfWorkThatSucceeds) {
    long number = 0;
    EXPECT_EQ(S_OK, Guard(kClass, &number, [] { return 7L; }));
    EXPECT_EQ(7, number);
    VARIANT_BOOL flag = VARIANT_FALSE;
    EXPECT_EQ(S_OK, Guard(kClass, &flag, [] { return true; }));
    EXPECT_EQ(VARIANT_TRUE, flag);
    BSTR text = nullptr;
    EXPECT_EQ(S_OK, Guard(kClass, &text, [] { return std::wstring(L"a\0b", 3); }));
    EXPECT_EQ(std::wstring(L"a\0b", 3), support::Take(text));
}

TEST(Guard, ClearsTheResultOfWorkThatFails) {
    long number = 7;
    EXPECT_EQ(E_FAIL, Guard(kClass, &number, []() -> long { throw ComError(E_FAIL, L"bad"); }));
    EXPECT_EQ(0, number);
}

TEST(Guard, DoesNoWorkWithoutAPlaceForTheResult) {
    bool worked = false;
    EXPECT_EQ(E_POINTER, Guard(kClass, static_cast<long*>(nullptr), [&] { return worked = true, 7L; }));
    EXPECT_FALSE(worked);
}

}  // namespace
}  // namespace platform
