// The type library is a contract: once released, nothing in it changes.
#include "client/Client.h"
#include "client/TypeLibraryListing.h"
#include "support/Printing.h"
#include "support/TestFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace client {
namespace {

// Set to 1, this environment variable makes the present type library the agreed one.
constexpr char kAccept[] = "ACCEPT_TYPE_LIBRARY";

std::wstring AgreedListing() { return support::TestFile(L"type_library.txt", L"" TYPE_LIBRARY_LIST); }

std::string ReadFile(const std::wstring& path) {
    std::ifstream file{std::filesystem::path(path)};
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// The first line in which the two differ.
std::string FirstDifference(const std::string& agreed, const std::string& present) {
    std::istringstream left(agreed);
    std::istringstream right(present);
    std::string leftLine;
    std::string rightLine;
    for (int number = 1;; ++number) {
        const bool leftThere = static_cast<bool>(std::getline(left, leftLine));
        const bool rightThere = static_cast<bool>(std::getline(right, rightLine));
        if (!leftThere && !rightThere) return "";
        if (leftThere && rightThere && leftLine == rightLine) continue;
        return "line " + std::to_string(number) + "\n  agreed  " + (leftThere ? leftLine : "(end)") + "\n  present " +
               (rightThere ? rightLine : "(end)");
    }
}

std::vector<std::wstring> ValueNames(ITypeInfo* enumeration) {
    std::vector<std::wstring> names;
    VARDESC* value = nullptr;
    while (SUCCEEDED(enumeration->GetVarDesc(static_cast<UINT>(names.size()), &value))) {
        _bstr_t name;
        EXPECT_OK(enumeration->GetDocumentation(value->memid, name.GetAddress(), nullptr, nullptr, nullptr));
        enumeration->ReleaseVarDesc(value);
        names.emplace_back(name);
    }
    return names;
}

TEST(TypeLibrary, MatchesTheAgreedListing) {
    const std::string present = support::Utf8(List(RegisteredTypeLibrary().Get()));
    const char* const accept = std::getenv(kAccept);
    if (accept && std::string(accept) == "1") std::ofstream(TYPE_LIBRARY_LIST, std::ios::binary) << present;
    EXPECT_EQ("", FirstDifference(ReadFile(AgreedListing()), present))
        << "Clients were built against the agreed type library, and break when anything but its end changes. If the "
           "change is meant, run the tests once with "
        << kAccept << "=1 and commit " << TYPE_LIBRARY_LIST;
}

TEST(TypeLibrary, IsTheSameInTheRegistryAndInTheDll) {
    ComPtr<ITypeLib> inDll;
    ASSERT_OK(LoadTypeLibEx(RegisteredPath().c_str(), REGKIND_NONE, inDll.GetAddressOf()));
    EXPECT_EQ(List(RegisteredTypeLibrary().Get()), List(inDll.Get()));
}

TEST(TypeLibrary, HasHelpForEverything) {
    std::istringstream lines(support::Utf8(List(RegisteredTypeLibrary().Get())));
    for (std::string line; std::getline(lines, line);) {
        EXPECT_EQ(std::string::npos, line.find("[no help]")) << line;
    }
}

// A value has no help string of its own: the compiler of the type library takes none there.
TEST(TypeLibrary, ExplainsEveryValueInTheHelpOfItsEnumeration) {
    const ComPtr<ITypeLib> library = RegisteredTypeLibrary();
    int values = 0;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        TYPEKIND kind;
        ASSERT_OK(library->GetTypeInfoType(index, &kind));
        if (kind != TKIND_ENUM) continue;
        ComPtr<ITypeInfo> type;
        _bstr_t help;
        ASSERT_OK(library->GetTypeInfo(index, type.GetAddressOf()));
        ASSERT_OK(type->GetDocumentation(MEMBERID_NIL, nullptr, help.GetAddress(), nullptr, nullptr));
        for (const std::wstring& name : ValueNames(type.Get())) {
            ++values;
            EXPECT_NE(std::wstring::npos, std::wstring(help).find(name + L": ")) << support::Utf8(name);
        }
    }
    EXPECT_EQ(2, values);
}

TEST(TypeLibrary, MakesEveryInterfaceDualAndFitForAutomation) {
    std::istringstream lines(support::Utf8(List(RegisteredTypeLibrary().Get())));
    int interfaces = 0;
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("interface ")) continue;
        ++interfaces;
        EXPECT_NE(std::string::npos, line.find("dual, oleautomation")) << line;
    }
    EXPECT_EQ(34, interfaces);
}

TEST(TypeLibrary, KeepsTheLowerCaseNames) {
    const std::wstring list = List(RegisteredTypeLibrary().Get());
    EXPECT_NE(std::wstring::npos, list.find(L" address("));
    // One spelling holds for a name wherever it stands.
    EXPECT_EQ(std::wstring::npos, list.find(L" Address"));
    EXPECT_NE(std::wstring::npos, list.find(L" reasonMessage"));
    EXPECT_NE(std::wstring::npos, list.find(L" theFuture"));
    EXPECT_NE(std::wstring::npos, list.find(L" runnable"));
    EXPECT_NE(std::wstring::npos, list.find(L" observer"));
}

TEST(TypeLibrary, HoldsTheTwoNumbersOfAFailedSubmission) {
    static_assert(tvTransientError == static_cast<long>(0xA38F7530));
    static_assert(tvFatalError == static_cast<long>(0xA38F7531));
    const std::wstring list = List(RegisteredTypeLibrary().Get());
    EXPECT_NE(std::wstring::npos, list.find(L"tvTransientError = -1550879440 long\n"));
    EXPECT_NE(std::wstring::npos, list.find(L"tvFatalError = -1550879439 long\n"));
}

TEST(TypeLibrary, GivesEveryClassOneDefaultInterface) {
    const ComPtr<ITypeLib> library = RegisteredTypeLibrary();
    for (const ClassRow& row : CreatableClasses()) {
        ComPtr<ITypeInfo> type;
        ASSERT_OK(library->GetTypeInfoOfGuid(row.id, type.GetAddressOf()));
        INT flags = 0;
        ASSERT_OK(type->GetImplTypeFlags(0, &flags));
        EXPECT_EQ(IMPLTYPEFLAG_FDEFAULT, flags) << support::Utf8(row.name);
    }
}

}  // namespace
}  // namespace client
