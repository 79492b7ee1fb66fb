// The rules of COM that every object keeps, and what an object tells of its class.
#include "client/Client.h"
#include "client/Members.h"
#include "support/Printing.h"

#include <gtest/gtest.h>
#include <ocidl.h>

namespace client {
namespace {

std::wstring NameOf(ITypeInfo* type) {
    BSTR name = nullptr;
    EXPECT_OK(type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return support::Take(name);
}

ComPtr<IUnknown> Query(IUnknown* object, REFIID iid) {
    ComPtr<IUnknown> found;
    EXPECT_OK(object->QueryInterface(iid, reinterpret_cast<void**>(found.GetAddressOf())));
    return found;
}

class Identity : public testing::TestWithParam<ClassRow> {
protected:
    std::vector<IID> AllInterfaces() const {
        std::vector<IID> all = InterfacesOf(GetParam().id);
        all.insert(all.end(), {__uuidof(IUnknown), __uuidof(IDispatch), __uuidof(ISupportErrorInfo),
                               __uuidof(IProvideClassInfo), __uuidof(IProvideClassInfo2)});
        return all;
    }

    const ComPtr<IDispatch> object_ = CreateByName(GetParam().name);
};

TEST_P(Identity, IsOneForAllInterfaces) {
    const ComPtr<IUnknown> identity = Query(object_.Get(), __uuidof(IUnknown));
    for (const IID& iid : AllInterfaces()) {
        EXPECT_EQ(identity, Query(Query(object_.Get(), iid).Get(), __uuidof(IUnknown)));
    }
}

TEST_P(Identity, LeadsFromEveryInterfaceToEveryOther) {
    for (const IID& from : AllInterfaces()) {
        const ComPtr<IUnknown> start = Query(object_.Get(), from);
        for (const IID& to : AllInterfaces()) EXPECT_NE(nullptr, Query(start.Get(), to));
    }
}

TEST_P(Identity, RefusesWhatTheClassDoesNotImplement) {
    void* found = this;
    EXPECT_EQ(E_NOINTERFACE, object_->QueryInterface(__uuidof(ITypeLib), &found));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(E_POINTER, object_->QueryInterface(__uuidof(IUnknown), nullptr));
}

TEST_P(Identity, GivesTheTypeOfItsClass) {
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> type;
    ASSERT_OK(object_.As(&provider));
    ASSERT_OK(provider->GetClassInfo(type.GetAddressOf()));
    EXPECT_EQ(GetParam().name, NameOf(type.Get()));
    EXPECT_EQ(E_POINTER, provider->GetClassInfo(nullptr));
}

TEST_P(Identity, GivesTheTypeOfItsDefaultInterface) {
    UINT count = 0;
    ComPtr<ITypeInfo> type;
    ASSERT_OK(object_->GetTypeInfoCount(&count));
    EXPECT_EQ(1U, count);
    ASSERT_OK(object_->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.GetAddressOf()));
    EXPECT_EQ(std::wstring(L"I") + GetParam().name, NameOf(type.Get()));
    EXPECT_EQ(DISP_E_BADINDEX, object_->GetTypeInfo(1, LOCALE_USER_DEFAULT, type.ReleaseAndGetAddressOf()));
    EXPECT_EQ(nullptr, type);
}

TEST_P(Identity, TellsItsDefaultEventsAndOnlyThose) {
    ComPtr<IProvideClassInfo2> provider;
    GUID events = __uuidof(IUnknown);
    ASSERT_OK(object_.As(&provider));
    EXPECT_OK(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    GUID expected = GUID_NULL;
    if (GetParam().id == __uuidof(LejisSubmissionWebService)) expected = __uuidof(_LejisSubmissionWebServiceEvents);
    if (GetParam().id == __uuidof(LejisSearchWebService)) expected = __uuidof(_LejisSearchWebServiceEvents);
    EXPECT_EQ(GuidText(expected), GuidText(events));
    EXPECT_EQ(E_INVALIDARG, provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID + 1, &events));
    EXPECT_EQ(E_POINTER, provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, nullptr));
}

INSTANTIATE_TEST_SUITE_P(All, Identity, testing::ValuesIn(CreatableClasses()),
                         [](const auto& row) { return support::Utf8(row.param.name); });

TEST(Class, OfDeferredWorkHasTheInterfacesOfItsTrade) {
    const ComPtr<IDispatch> service = CreateByName(L"LejisSubmissionWebService");
    const ComPtr<IDispatch> manager = CreateByName(L"FutureManager");
    void* found = nullptr;
    EXPECT_NE(nullptr, Query(service.Get(), __uuidof(IRunnable)));
    EXPECT_NE(nullptr, Query(service.Get(), __uuidof(IConnectionPointContainer)));
    EXPECT_NE(nullptr, Query(manager.Get(), __uuidof(IFutureObserver)));
    EXPECT_EQ(E_NOINTERFACE, CreateByName(L"Future")->QueryInterface(__uuidof(IRunnable), &found));
}

TEST(Class, ThatCannotBeCreatedStillTellsItsName) {
    const auto validator = Create<LejisIncidentValidator, ILejisIncidentValidator>();
    ComPtr<ICollection> errors;
    ComPtr<IProvideClassInfo> provider;
    ComPtr<ITypeInfo> type;
    ASSERT_OK(validator->get_Errors(errors.GetAddressOf()));
    ASSERT_OK(errors.As(&provider));
    ASSERT_OK(provider->GetClassInfo(type.GetAddressOf()));
    EXPECT_EQ(L"Collection", NameOf(type.Get()));
}

}  // namespace
}  // namespace client
