// What Windows shows of the file.
#include "client/Client.h"

#include <gtest/gtest.h>
#include <winver.h>

#include <vector>

namespace client {
namespace {

class VersionResource : public testing::Test {
protected:
    void SetUp() override {
        DWORD ignored = 0;
        const std::wstring path = RegisteredPath();
        block_.resize(GetFileVersionInfoSizeW(path.c_str(), &ignored));
        ASSERT_FALSE(block_.empty());
        ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block_.size()), block_.data()));
    }

    // "(none)" for a value that is not there; an empty one is there.
    std::wstring Text(const std::wstring& name) const {
        void* text = nullptr;
        UINT length = 0;
        const std::wstring path = L"\\StringFileInfo\\040904B0\\" + name;
        if (!VerQueryValueW(block_.data(), path.c_str(), &text, &length)) return L"(none)";
        return length == 0 ? L"" : static_cast<const wchar_t*>(text);
    }

    const VS_FIXEDFILEINFO& Fixed() const {
        void* info = nullptr;
        UINT length = 0;
        EXPECT_TRUE(VerQueryValueW(block_.data(), L"\\", &info, &length));
        return *static_cast<const VS_FIXEDFILEINFO*>(info);
    }

    std::vector<char> block_;
};

TEST_F(VersionResource, NamesTheLibrary) {
    EXPECT_EQ(L"Talvex Core LEJIS Support", Text(L"FileDescription"));
    EXPECT_EQ(L"TVLejisCore.dll", Text(L"OriginalFilename"));
    EXPECT_EQ(L"TVLejisCore", Text(L"InternalName"));
    EXPECT_EQ(L"TalvexSuite", Text(L"ProductName"));
}

TEST_F(VersionResource, SaysThatTheDllRegistersItself) { EXPECT_EQ(L"", Text(L"OLESelfRegister")); }

TEST_F(VersionResource, ShowsThreeOfItsFourNumbers) {
    const VS_FIXEDFILEINFO& fixed = Fixed();
    const std::wstring numbers = std::to_wstring(HIWORD(fixed.dwFileVersionMS)) + L"." +
                                 std::to_wstring(LOWORD(fixed.dwFileVersionMS)) + L"." +
                                 std::to_wstring(LOWORD(fixed.dwFileVersionLS));
    EXPECT_EQ(0, HIWORD(fixed.dwFileVersionLS));
    EXPECT_EQ(numbers, Text(L"FileVersion"));
    EXPECT_EQ(numbers, Text(L"ProductVersion"));
    EXPECT_EQ(static_cast<DWORD>(VFT_DLL), fixed.dwFileType);
}

TEST_F(VersionResource, IsTheVersionThatTheLibraryReports) {
    const auto system = CreateByName(L"LejisContributingSystem");
    ComPtr<ILejisContributingSystem> contributing;
    BSTR version = nullptr;
    ASSERT_OK(system.As(&contributing));
    ASSERT_OK(contributing->get_SystemVersion(&version));
    const VS_FIXEDFILEINFO& fixed = Fixed();
    // Major, minor and revision; the build number is not used.
    EXPECT_EQ(std::to_wstring(HIWORD(fixed.dwFileVersionMS)) + L"." + std::to_wstring(LOWORD(fixed.dwFileVersionMS)) +
                  L"." + std::to_wstring(LOWORD(fixed.dwFileVersionLS)),
              support::Take(version));
}

}  // namespace
}  // namespace client
