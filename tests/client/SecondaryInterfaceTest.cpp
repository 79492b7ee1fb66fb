// The interfaces of a class beside its default one, called by name and number: each dispatches its own members.
#include "client/ClientObject.h"
#include "client/LateBound.h"

#include <gtest/gtest.h>
#include <ocidl.h>

namespace client {
namespace {

// The object's automation as this interface hands it out.
template <typename Interface>
LateBound As(const ComPtr<IDispatch>& object) {
    ComPtr<Interface> found;
    EXPECT_OK(object.As(&found));
    return LateBound(ComPtr<IDispatch>(found.Get()));
}

std::wstring NameOfType(IDispatch* object) {
    ComPtr<ITypeInfo> type;
    BSTR name = nullptr;
    EXPECT_OK(object->GetTypeInfo(0, LOCALE_USER_DEFAULT, type.GetAddressOf()));
    EXPECT_OK(type->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr));
    return support::Take(name);
}

constexpr const wchar_t* kServices[] = {L"LejisSubmissionWebService", L"LejisSearchWebService"};

TEST(SecondaryInterface, NamesItsOwnTypeAndMembers) {
    for (const wchar_t* name : kServices) {
        const LateBound runnable = As<IRunnable>(CreateByName(name));
        EXPECT_EQ(L"IRunnable", NameOfType(runnable.Pointer()));
        EXPECT_EQ(1, runnable.NumberOf(L"Run"));
        EXPECT_EQ(DISPID_UNKNOWN, runnable.NumberOf(L"URL"));
    }
    const LateBound observer = As<IFutureObserver>(CreateByName(L"FutureManager"));
    EXPECT_EQ(L"IFutureObserver", NameOfType(observer.Pointer()));
    EXPECT_EQ(1, observer.NumberOf(L"FutureCompleted"));
    EXPECT_EQ(DISPID_UNKNOWN, observer.NumberOf(L"InvokeLater"));
}

TEST(SecondaryInterface, LeavesTheDefaultOneToTheObjectItself) {
    for (const wchar_t* name : kServices) {
        const ComPtr<IDispatch> object = CreateByName(name);
        EXPECT_EQ(std::wstring(L"I") + name, NameOfType(object.Get()));
        EXPECT_EQ(DISPID_UNKNOWN, LateBound(object).NumberOf(L"Run"));
        // Asked for automation as such, every interface leads to the default one.
        ComPtr<IRunnable> runnable;
        ComPtr<IDispatch> automation;
        ASSERT_OK(object.As(&runnable));
        ASSERT_OK(runnable.As(&automation));
        EXPECT_EQ(object, automation);
        EXPECT_EQ(1, LateBound(automation).NumberOf(L"ValidateSchema"));
    }
}

TEST(SecondaryInterface, IsTheSameObject) {
    const ComPtr<IDispatch> manager = CreateByName(L"FutureManager");
    ComPtr<IFutureObserver> observer;
    ComPtr<IUnknown> one;
    ComPtr<IUnknown> other;
    ASSERT_OK(manager.As(&observer));
    ASSERT_OK(manager.As(&one));
    ASSERT_OK(observer.As(&other));
    EXPECT_EQ(one, other);
}

// Number 1 is the schema check of the services and InvokeLater of the manager; here it is another member.
TEST(SecondaryInterface, RunsItsOwnMemberByItsNumber) {
    const ComPtr<IDispatch> service = CreateByName(L"LejisSubmissionWebService");
    const LateBound runnable = As<IRunnable>(service);
    const Outcome run = runnable.InvokeNumber(1, DISPATCH_METHOD);
    EXPECT_TRUE(Done(run));
    EXPECT_EQ(VT_EMPTY, V_VT(&run.value));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND,
              runnable.InvokeNumber(1, DISPATCH_PROPERTYPUT, {true}, {DISPID_PROPERTYPUT}).result);
    EXPECT_EQ(_variant_t(false), LateBound(service).Get(L"ValidateSchema").value);
}

TEST(SecondaryInterface, TellsWhatFailedUnderTheNameOfTheClass) {
    const LateBound observer = As<IFutureObserver>(CreateByName(L"FutureManager"));
    const Outcome outcome = observer.Call(L"FutureCompleted", {CreateLateBound(L"Future").AsArgument()});
    EXPECT_TRUE(RaisedBy(outcome, static_cast<long>(0x80040205), L"theFuture is not pending here"));
    EXPECT_EQ(ProgIdOf(L"FutureManager"), outcome.source);
}

TEST(SecondaryInterface, AnswersNoLessThanTheDefaultOne) {
    const LateBound runnable = As<IRunnable>(CreateByName(L"LejisSearchWebService"));
    UINT count = 0;
    ComPtr<ITypeInfo> type;
    EXPECT_OK(runnable.Pointer()->GetTypeInfoCount(&count));
    EXPECT_EQ(1U, count);
    EXPECT_EQ(DISP_E_BADINDEX, runnable.Pointer()->GetTypeInfo(1, LOCALE_USER_DEFAULT, type.GetAddressOf()));
    EXPECT_EQ(E_POINTER, runnable.Pointer()->GetTypeInfoCount(nullptr));
    EXPECT_EQ(E_INVALIDARG, runnable.Pointer()->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_USER_DEFAULT, nullptr));
}

// A reference to this interface alone keeps the object alive, and the client may release it during a call.
TEST(SecondaryInterface, KeepsItsObjectDuringACall) {
    ComPtr<IRunnable> runnable;
    ASSERT_OK(CreateByName(L"LejisSubmissionWebService").As(&runnable));
    ComPtr<IConnectionPointContainer> container;
    ComPtr<IConnectionPoint> point;
    ASSERT_OK(runnable.As(&container));
    ASSERT_OK(container->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), point.GetAddressOf()));

    class LettingGo final : public ClientObject<IDispatch> {
    public:
        explicit LettingGo(std::function<void()> letGo) : letGo_(std::move(letGo)) {}
        STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override {
            ++heard;
            letGo_();
            return S_OK;
        }
        int heard = 0;

    private:
        const std::function<void()> letGo_;
    };
    const auto sink = Make<LettingGo>([&] {
        point.Reset();
        container.Reset();
        runnable.Reset();
    });
    DWORD cookie = 0;
    ASSERT_OK(point->Advise(sink.Get(), &cookie));
    IDispatch* const called = runnable.Get();
    DISPPARAMS none{};
    EXPECT_OK(called->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr));
    EXPECT_EQ(1, sink->heard);
}

}  // namespace
}  // namespace client
