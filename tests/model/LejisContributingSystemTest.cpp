#include "model/LejisContributingSystem.h"

#include "platform/com/Module.h"
#include "support/ComCheck.h"
#include "support/Xml.h"
#include "unit_support/Members.h"
#include "unit_support/Raises.h"

#include <gtest/gtest.h>

#include <cstring>

namespace lejis {
namespace {

using support::FailedWith;
using support::NewDocument;
using support::ParseElement;
using support::SameXml;

// Major, minor and revision of this program's version resource, found by the mark that stands before them.
std::wstring VersionInResource() {
    const HRSRC resource = FindResourceW(platform::module::Handle(), MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION);
    const auto* bytes = static_cast<const char*>(LockResource(LoadResource(platform::module::Handle(), resource)));
    VS_FIXEDFILEINFO info{};
    for (DWORD offset = 0; offset + sizeof info <= SizeofResource(platform::module::Handle(), resource); offset += 4) {
        std::memcpy(&info, bytes + offset, sizeof info);
        if (info.dwSignature == VS_FFI_SIGNATURE) break;
    }
    EXPECT_EQ(VS_FFI_SIGNATURE, static_cast<long>(info.dwSignature));
    return platform::module::VersionText(info);
}

TEST(LejisContributingSystem, HasItsMembersInTheirOrder) {
    const auto system = platform::Create<LejisContributingSystem>();
    EXPECT_TRUE(support::MembersInOrder(
        system->Dispatch(), {L"CompanyName", L"SystemName", L"SystemVersion", L"ToXmlElement", L"FromXmlElement"}));
}

TEST(LejisContributingSystem, DescribesTheSuiteAndThisLibraryWhenNew) {
    const auto system = platform::Create<LejisContributingSystem>();
    EXPECT_EQ(L"Talvex", support::TextMember(system->Dispatch(), L"CompanyName"));
    EXPECT_EQ(L"TalvexSuite", support::TextMember(system->Dispatch(), L"SystemName"));
    EXPECT_EQ(VersionInResource(), support::TextMember(system->Dispatch(), L"SystemVersion"));
}

TEST(LejisContributingSystem, LeavesTheBuildOutOfAVersion) {
    VS_FIXEDFILEINFO info{};
    info.dwFileVersionMS = MAKELONG(1, 3);
    info.dwFileVersionLS = MAKELONG(27, 9);
    EXPECT_EQ(L"3.1.27", platform::module::VersionText(info));
    info.dwFileVersionMS = MAKELONG(0, 10);
    EXPECT_EQ(L"10.0.27", platform::module::VersionText(info));
}

TEST(LejisContributingSystem, IsNotChangedByItsClients) {
    const auto system = platform::Create<LejisContributingSystem>();
    for (const wchar_t* name : {L"CompanyName", L"SystemName", L"SystemVersion"}) {
        EXPECT_ANY_THROW(support::FillTexts(system->Dispatch(), {name}));
        EXPECT_NE(support::FillingOf(name), support::TextMember(system->Dispatch(), name));
    }
}

TEST(LejisContributingSystem, WritesItsTextsInTheirOrder) {
    const auto system = platform::Create<LejisContributingSystem>();
    EXPECT_TRUE(SameXml(system->Write(NewDocument()).Get(),
                        L"<lejis:ContributingSystem><ext:companyName>Talvex</ext:companyName>"
                        L"<ext:systemName>TalvexSuite</ext:systemName><ext:systemVersion>" +
                            VersionInResource() + L"</ext:systemVersion></lejis:ContributingSystem>"));
}

TEST(LejisContributingSystem, ReadsItsTextsAndWritesThemBack) {
    constexpr wchar_t kXml[] =
        L"<lejis:ContributingSystem><ext:companyName>Maker</ext:companyName><ext:systemName>System</ext:systemName>"
        L"<ext:systemVersion>9.8.7</ext:systemVersion></lejis:ContributingSystem>";
    const auto system = platform::Create<LejisContributingSystem>();
    EXPECT_OK(system->FromXmlElement(ParseElement(kXml).Get()));
    EXPECT_EQ(L"Maker", system->CompanyName);
    EXPECT_EQ(L"System", system->SystemName);
    EXPECT_EQ(L"9.8.7", system->SystemVersion);
    EXPECT_TRUE(SameXml(system->Write(NewDocument()).Get(), kXml));
}

TEST(LejisContributingSystem, EmptiesTextsThatTheElementLacksAndWritesThemEmpty) {
    const auto system = platform::Create<LejisContributingSystem>();
    system->Read(
        ElementReader(ParseElement(L"<lejis:ContributingSystem><ext:systemName>Other</ext:systemName>"
                                   L"<j:companyName>x</j:companyName></lejis:ContributingSystem>")));
    EXPECT_EQ(L"", system->CompanyName);
    EXPECT_EQ(L"Other", system->SystemName);
    EXPECT_EQ(L"", system->SystemVersion);
    EXPECT_TRUE(SameXml(system->Write(NewDocument()).Get(),
                        L"<lejis:ContributingSystem><ext:companyName/><ext:systemName>Other</ext:systemName>"
                        L"<ext:systemVersion/></lejis:ContributingSystem>"));
}

TEST(LejisContributingSystem, RefusesNoElementAndNoDocument) {
    const auto system = platform::Create<LejisContributingSystem>();
    Microsoft::WRL::ComPtr<IDispatch> element;
    EXPECT_TRUE(FailedWith(system->FromXmlElement(nullptr), support::kInvalidArgument, L"elem cannot be Nothing"));
    EXPECT_EQ(L"Talvex", system->CompanyName);
    EXPECT_TRUE(FailedWith(system->ToXmlElement(nullptr, element.GetAddressOf()), support::kObjectRequired,
                           L"Object required"));
}

}  // namespace
}  // namespace lejis
