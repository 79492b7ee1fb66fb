#include "platform/Registry.h"

#include "platform/ComError.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

constexpr wchar_t kKey[] = L"Software\\TVLejisCore Tests\\Registry";

class Registry : public testing::Test {
protected:
    void TearDown() override { DeleteRegistryTree(HKEY_CURRENT_USER, L"Software\\TVLejisCore Tests"); }

    static auto Read(const wchar_t* value) { return ReadRegistryText(HKEY_CURRENT_USER, kKey, value); }
    static void Write(const wchar_t* value, const std::wstring& text) {
        WriteRegistryText(HKEY_CURRENT_USER, kKey, value, text);
    }
};

TEST_F(Registry, HasNoTextWhereKeyOrValueIsMissing) {
    EXPECT_EQ(std::nullopt, Read(L"Flag"));
    Write(L"Other", L"Y");
    EXPECT_EQ(std::nullopt, Read(L"Flag"));
}

TEST_F(Registry, ReadsBackWhatItWrote) {
    for (const std::wstring text : {L"Y", L"", L" blanks ", L"\x00E9\x4E2D"}) {
        Write(L"Flag", text);
        EXPECT_EQ(text, Read(L"Flag"));
    }
    const std::wstring longText(5000, L'x');
    Write(L"Flag", longText);
    EXPECT_EQ(longText, Read(L"Flag"));
}

TEST_F(Registry, WritesTheDefaultValueOfAKey) {
    Write(L"", L"default");
    EXPECT_EQ(L"default", Read(L""));
    EXPECT_EQ(std::nullopt, Read(L"Flag"));
}

TEST_F(Registry, TakesANumberForNoText) {
    const DWORD number = 1;
    ASSERT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Flag", REG_DWORD, &number, sizeof number));
    EXPECT_EQ(std::nullopt, Read(L"Flag"));
}

TEST_F(Registry, ReadsATextThatLacksItsEnd) {
    ASSERT_EQ(ERROR_SUCCESS, RegSetKeyValueW(HKEY_CURRENT_USER, kKey, L"Flag", REG_SZ, L"Yes", 2 * sizeof(wchar_t)));
    EXPECT_EQ(L"Ye", Read(L"Flag"));
}

TEST_F(Registry, DeletesAKeyWithAllBelowIt) {
    Write(L"Flag", L"Y");
    DeleteRegistryTree(HKEY_CURRENT_USER, L"Software\\TVLejisCore Tests");
    EXPECT_EQ(std::nullopt, Read(L"Flag"));
    EXPECT_NO_THROW(DeleteRegistryTree(HKEY_CURRENT_USER, kKey));
}

TEST_F(Registry, RaisesWhatTheSystemRefuses) {
    const HKEY closed = nullptr;
    EXPECT_EQ(std::nullopt, ReadRegistryText(closed, kKey, L"Flag"));
    EXPECT_THROW(WriteRegistryText(closed, kKey, L"Flag", L"Y"), ComError);
    EXPECT_THROW(DeleteRegistryTree(closed, kKey), ComError);
}

}  // namespace
}  // namespace platform
