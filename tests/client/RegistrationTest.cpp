// What regsvr32 has left in the registry, and that it is enough to create every class.
#include "client/Client.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace client {
namespace {

std::wstring ReadText(const std::wstring& key, const wchar_t* value = nullptr) {
    wchar_t text[512] = L"";
    DWORD size = sizeof text;
    const LSTATUS result = RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), value, RRF_RT_REG_SZ, nullptr, text, &size);
    return result == ERROR_SUCCESS ? text : L"(none)";
}

std::wstring ClassKey(const ClassRow& row) { return L"CLSID\\" + GuidText(row.id); }

class RegisteredClass : public testing::TestWithParam<ClassRow> {};

TEST_P(RegisteredClass, NamesTheDllAndItsApartment) {
    const std::wstring server = ClassKey(GetParam()) + L"\\InprocServer32";
    EXPECT_NE(INVALID_FILE_ATTRIBUTES, GetFileAttributesW(ReadText(server).c_str()));
    EXPECT_EQ(RegisteredPath(), ReadText(server));
    EXPECT_EQ(L"Apartment", ReadText(server, L"ThreadingModel"));
}

TEST_P(RegisteredClass, LeadsFromItsProgIdToItsIdentifierAndBack) {
    CLSID id = GUID_NULL;
    LPOLESTR progId = nullptr;
    const std::wstring expected = ProgIdOf(GetParam().name);
    ASSERT_OK(CLSIDFromProgID(expected.c_str(), &id));
    EXPECT_EQ(GuidText(GetParam().id), GuidText(id));
    ASSERT_OK(ProgIDFromCLSID(GetParam().id, &progId));
    EXPECT_EQ(expected, progId);
    CoTaskMemFree(progId);
    // What the platform allows a ProgID.
    EXPECT_LE(expected.size(), 39U);
}

TEST_P(RegisteredClass, IsDescribedAndPointsToItsTypeLibrary) {
    ComPtr<ITypeInfo> type;
    BSTR help = nullptr;
    ASSERT_OK(RegisteredTypeLibrary()->GetTypeInfoOfGuid(GetParam().id, type.GetAddressOf()));
    ASSERT_OK(type->GetDocumentation(MEMBERID_NIL, nullptr, &help, nullptr, nullptr));
    const std::wstring description = support::Take(help);
    EXPECT_EQ(description, ReadText(ClassKey(GetParam())));
    EXPECT_EQ(description, ReadText(ProgIdOf(GetParam().name)));
    EXPECT_EQ(L"{458BB764-060D-401D-BF22-1AC883769CB8}", ReadText(ClassKey(GetParam()) + L"\\TypeLib"));
    EXPECT_EQ(L"1.0", ReadText(ClassKey(GetParam()) + L"\\Version"));
}

TEST_P(RegisteredClass, CreatesAnObjectByProgIdAndByIdentifier) {
    ComPtr<IUnknown> byIdentifier;
    EXPECT_NE(nullptr, CreateByName(GetParam().name));
    ASSERT_OK(CoCreateInstance(GetParam().id, nullptr, CLSCTX_INPROC_SERVER, GetParam().defaultInterface,
                               reinterpret_cast<void**>(byIdentifier.GetAddressOf())));
    EXPECT_NE(nullptr, byIdentifier);
}

TEST_P(RegisteredClass, RefusesAggregation) {
    const ComPtr<IDispatch> outer = CreateByName(L"NullableLong");
    ComPtr<IUnknown> inner;
    EXPECT_EQ(CLASS_E_NOAGGREGATION,
              CoCreateInstance(GetParam().id, outer.Get(), CLSCTX_INPROC_SERVER, IID_PPV_ARGS(inner.GetAddressOf())));
    EXPECT_EQ(nullptr, inner);
}

INSTANTIATE_TEST_SUITE_P(All, RegisteredClass, testing::ValuesIn(CreatableClasses()),
                         [](const auto& row) { return support::Utf8(row.param.name); });

TEST(Registration, ListsExactlyTheCreatableClassesOfTheTypeLibrary) {
    const ComPtr<ITypeLib> library = RegisteredTypeLibrary();
    std::vector<std::wstring> creatable;
    for (UINT index = 0; index < library->GetTypeInfoCount(); ++index) {
        ComPtr<ITypeInfo> type;
        TYPEATTR* attributes = nullptr;
        ASSERT_OK(library->GetTypeInfo(index, type.GetAddressOf()));
        ASSERT_OK(type->GetTypeAttr(&attributes));
        if (attributes->wTypeFlags & TYPEFLAG_FCANCREATE) creatable.push_back(GuidText(attributes->guid));
        type->ReleaseTypeAttr(attributes);
    }
    ASSERT_EQ(CreatableClasses().size(), creatable.size());
    for (const ClassRow& row : CreatableClasses()) {
        EXPECT_NE(creatable.end(), std::find(creatable.begin(), creatable.end(), GuidText(row.id))) << row.name;
    }
}

TEST(Registration, OffersNoCollectionToCreate) {
    CLSID id = GUID_NULL;
    ComPtr<IUnknown> object;
    EXPECT_EQ(CO_E_CLASSSTRING, CLSIDFromProgID(L"TVLejisCore.Collection", &id));
    EXPECT_EQ(L"(none)", ReadText(L"CLSID\\" + GuidText(__uuidof(Collection))));
    EXPECT_EQ(REGDB_E_CLASSNOTREG, CoCreateInstance(__uuidof(Collection), nullptr, CLSCTX_INPROC_SERVER,
                                                    IID_PPV_ARGS(object.GetAddressOf())));
}

TEST(Registration, GivesProgIdsNoVersionedTwins) {
    for (const ClassRow& row : CreatableClasses()) {
        EXPECT_EQ(L"(none)", ReadText(ProgIdOf(row.name) + L".1\\CLSID")) << row.name;
        EXPECT_EQ(L"(none)", ReadText(ClassKey(row) + L"\\VersionIndependentProgID")) << row.name;
    }
}

TEST(Registration, RegistersTheTypeLibraryOfThisBitnessInTheDll) {
    const wchar_t* const platform = sizeof(void*) == 8 ? L"win64" : L"win32";
    const std::wstring key = L"TypeLib\\{458BB764-060D-401D-BF22-1AC883769CB8}\\1.0";
    EXPECT_EQ(L"Talvex Core LEJIS Support", ReadText(key));
    EXPECT_EQ(RegisteredPath(), ReadText(key + L"\\0\\" + platform));
}

TEST(Registration, LetsAutomationMarshalTheInterfaces) {
    for (const IID& iid : {__uuidof(ICollection), __uuidof(ILejisIncidentIndexCard), __uuidof(IRunnable)}) {
        const std::wstring key = L"Interface\\" + GuidText(iid);
        EXPECT_EQ(L"{00020424-0000-0000-C000-000000000046}", ReadText(key + L"\\ProxyStubClsid32"));
        EXPECT_EQ(L"{458BB764-060D-401D-BF22-1AC883769CB8}", ReadText(key + L"\\TypeLib"));
    }
}

}  // namespace
}  // namespace client
