// Wine opens long names as they are. So the texts are looked at.
#include "files/LongPath.h"

#include <gtest/gtest.h>

namespace lejis_client {
namespace {

// So many characters.
std::wstring Name(std::size_t size) { return std::wstring(size, L'n'); }

TEST(LongPath, LeavesShortNamesAlone) {
    EXPECT_EQ(L"a.xml", LongPath(L"a.xml"));
    EXPECT_EQ(L"C:\\" + Name(243), LongPath(L"C:\\" + Name(243)));
}

TEST(LongPath, PrefixesNamesThatAreTooLongForAFolder) {
    EXPECT_EQ(L"\\\\?\\C:\\" + Name(244), LongPath(L"C:\\" + Name(244)));
    EXPECT_EQ(L"\\\\?\\C:\\night\\" + Name(300), LongPath(L"C:/night/" + Name(300)));
}

TEST(LongPath, CountsTheWholeNameOfARelativeOne) {
    const std::wstring whole = WholePath(Name(245));
    EXPECT_GE(whole.size(), 248u);
    EXPECT_EQ(L"\\\\?\\" + whole, LongPath(Name(245)));
}

TEST(LongPath, HasAPrefixOfItsOwnOnAServer) {
    EXPECT_EQ(L"\\\\?\\UNC\\server\\share\\" + Name(300), LongPath(L"\\\\server\\share\\" + Name(300)));
}

TEST(LongPath, LeavesAPrefixAlone) {
    for (const wchar_t* prefix : {L"\\\\?\\C:\\", L"\\\\.\\C:\\"}) {
        EXPECT_EQ(prefix + Name(300), LongPath(prefix + Name(300)));
    }
}

}  // namespace
}  // namespace lejis_client
