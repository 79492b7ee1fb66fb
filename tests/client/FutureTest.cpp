// Work of the client's own that the library runs a moment later.
#include "client/Client.h"
#include "client/ClientObject.h"
#include "client/LateBound.h"
#include "support/Messages.h"

#include <gtest/gtest.h>

#include <string>

namespace client {
namespace {

using support::PumpFor;
using support::PumpUntil;

// Long enough for every pending tick on a busy machine.
constexpr unsigned kLongAfter = 400;

bool Completed(IFuture* future) {
    VARIANT_BOOL completed = VARIANT_FALSE;
    EXPECT_OK(future->get_Completed(&completed));
    return completed != VARIANT_FALSE;
}

class Deferred : public testing::Test {
protected:
    ComPtr<Work> Noting(wchar_t letter) {
        return Make<Work>([this, letter] {
            ran_ += letter;
            return S_OK;
        });
    }

    ComPtr<IFutureManager> manager_ = Create<FutureManager, IFutureManager>();
    ComPtr<IFuture> future_ = Create<Future, IFuture>();
    std::wstring ran_;
};

TEST_F(Deferred, WorkRunsOnceAndLaterFromTheMessageLoop) {
    const ULONGLONG start = GetTickCount64();
    ASSERT_OK(future_->Execute(Noting(L'a').Get(), nullptr));
    EXPECT_EQ(L"", ran_);
    Sleep(200);
    EXPECT_EQ(L"", ran_) << "without the message loop nothing runs";
    EXPECT_FALSE(Completed(future_.Get()));
    ASSERT_TRUE(PumpUntil([&] { return !ran_.empty(); }));
    EXPECT_GE(GetTickCount64() - start, 90U);
    PumpFor(kLongAfter);
    EXPECT_EQ(L"a", ran_);
    EXPECT_TRUE(Completed(future_.Get()));
}

TEST_F(Deferred, WorkWaitsAboutATenthOfASecond) {
    const ULONGLONG start = GetTickCount64();
    ASSERT_OK(manager_->InvokeLater(Noting(L'a').Get()));
    ASSERT_TRUE(PumpUntil([&] { return !ran_.empty(); }));
    EXPECT_GE(GetTickCount64() - start, 90U);
    EXPECT_LE(GetTickCount64() - start, 2000U);
}

TEST_F(Deferred, WorksRunInTheirOrder) {
    ASSERT_OK(manager_->InvokeLater(Noting(L'a').Get()));
    ASSERT_OK(manager_->InvokeLater(Noting(L'b').Get()));
    ASSERT_TRUE(PumpUntil([&] { return ran_.size() == 2; }));
    PumpFor(kLongAfter);
    EXPECT_EQ(L"ab", ran_);
}

TEST_F(Deferred, WorkMayDeferMoreWork) {
    bool inside = false;
    const auto first = Make<Work>([&] {
        inside = true;
        EXPECT_OK(manager_->InvokeLater(Make<Work>([&] {
                                            EXPECT_FALSE(inside) << "run inside of the work that deferred it";
                                            ran_ += L'b';
                                            return S_OK;
                                        }).Get()));
        ran_ += L'a';
        inside = false;
        return S_OK;
    });
    ASSERT_OK(manager_->InvokeLater(first.Get()));
    ASSERT_TRUE(PumpUntil([&] { return ran_.size() == 2; }));
    EXPECT_EQ(L"ab", ran_);
}

TEST_F(Deferred, ObserverIsToldOfTheFutureAfterItsWork) {
    const auto observer = Make<Observer>([&](IFuture* future) {
        EXPECT_EQ(future_.Get(), future);
        EXPECT_TRUE(Completed(future));
        EXPECT_EQ(L"a", ran_);
        ran_ += L'o';
        return S_OK;
    });
    ASSERT_OK(future_->Execute(Noting(L'a').Get(), observer.Get()));
    ASSERT_TRUE(PumpUntil([&] { return ran_.size() == 2; }));
    PumpFor(kLongAfter);
    EXPECT_EQ(L"ao", ran_);
}

TEST_F(Deferred, ObserverThatFailsChangesNothing) {
    const auto observer = Make<Observer>([](IFuture*) { return E_FAIL; });
    ASSERT_OK(future_->Execute(Noting(L'a').Get(), observer.Get()));
    ASSERT_TRUE(PumpUntil([&] { return !ran_.empty(); }));
    PumpFor(kLongAfter);
    EXPECT_EQ(L"a", ran_);
    EXPECT_TRUE(Completed(future_.Get()));
}

TEST_F(Deferred, ManagerThatIsReleasedLivesUntilItsWorkHasRun) {
    auto manager = Create<FutureManager, IFutureManager>();
    auto work = Noting(L'a');
    bool ended = false;
    work->TellEnd(&ended);
    ASSERT_OK(manager->InvokeLater(work.Get()));
    work.Reset();
    manager.Reset();
    EXPECT_FALSE(ended);
    ASSERT_TRUE(PumpUntil([&] { return ended; })) << "the work is released after it has run";
    EXPECT_EQ(L"a", ran_);
}

TEST_F(Deferred, PendingWorkKeepsTheDllLoaded) {
    const Module module;
    const auto canUnloadNow = module.Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow");
    auto manager = Create<FutureManager, IFutureManager>();
    auto alone = Create<Future, IFuture>();
    ASSERT_OK(manager->InvokeLater(Noting(L'a').Get()));
    manager.Reset();
    alone.Reset();
    EXPECT_EQ(S_FALSE, canUnloadNow());
    ASSERT_TRUE(PumpUntil([&] { return !ran_.empty(); }));
}

TEST_F(Deferred, FutureThatIsReleasedBeforeItsTickNeverRuns) {
    auto future = Create<Future, IFuture>();
    bool ended = false;
    auto work = Noting(L'a');
    work->TellEnd(&ended);
    ASSERT_OK(future->Execute(work.Get(), nullptr));
    work.Reset();
    future.Reset();
    EXPECT_TRUE(ended);
    PumpFor(kLongAfter);
    EXPECT_EQ(L"", ran_);
}

TEST_F(Deferred, WorkThatFailsIsNotCompletedNorRepeatedNorTold) {
    int runs = 0;
    const auto failing = Make<Work>([&] {
        ++runs;
        return E_FAIL;
    });
    const auto observer = Make<Observer>([&](IFuture*) {
        ran_ += L'o';
        return S_OK;
    });
    ASSERT_OK(future_->Execute(failing.Get(), observer.Get()));
    ASSERT_TRUE(PumpUntil([&] { return runs > 0; }));
    PumpFor(kLongAfter);
    EXPECT_EQ(1, runs);
    EXPECT_FALSE(Completed(future_.Get()));
    EXPECT_EQ(L"", ran_);
}

TEST_F(Deferred, WorkThatFailsEndsWithItsManager) {
    const Module module;
    const auto canUnloadNow = module.Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow");
    bool ran = false;
    bool ended = false;
    auto manager = Create<FutureManager, IFutureManager>();
    auto failing = Make<Work>([&] {
        ran = true;
        return E_FAIL;
    });
    failing->TellEnd(&ended);
    ASSERT_OK(manager->InvokeLater(failing.Get()));
    failing.Reset();
    ASSERT_TRUE(PumpUntil([&] { return ran; }));
    PumpFor(kLongAfter);
    EXPECT_FALSE(ended) << "the manager keeps it";
    manager.Reset();
    EXPECT_TRUE(ended);
    manager_.Reset();
    future_.Reset();
    EXPECT_EQ(S_OK, canUnloadNow());
}

TEST_F(Deferred, WorkMayGiveItsFutureMoreWork) {
    const auto observer = Make<Observer>([&](IFuture*) {
        ran_ += L'o';
        return S_OK;
    });
    ComPtr<Work> work;
    int left = 3;
    work = Make<Work>([&] {
        ran_ += L'a';
        if (--left > 0) {
            EXPECT_OK(future_->Execute(work.Get(), observer.Get()));
        }
        return S_OK;
    });
    ASSERT_OK(future_->Execute(work.Get(), observer.Get()));
    ASSERT_TRUE(PumpUntil([&] { return ran_.size() == 6; }));
    PumpFor(kLongAfter);
    EXPECT_EQ(L"aoaoao", ran_);
}

TEST_F(Deferred, WorkMayReleaseItsFuture) {
    auto future = Create<Future, IFuture>();
    ASSERT_OK(future->Execute(Make<Work>([&] {
                                  future.Reset();
                                  ran_ += L'a';
                                  return S_OK;
                              }).Get(),
                              nullptr));
    ASSERT_TRUE(PumpUntil([&] { return !ran_.empty(); }));
    EXPECT_EQ(nullptr, future);
}

TEST_F(Deferred, CallsWithoutWorkSayWhatIsMissing) {
    EXPECT_TRUE(support::FailedWith(manager_->InvokeLater(nullptr), kInvalidArgument, L"runnable cannot be Nothing"));
    EXPECT_TRUE(
        support::FailedWith(future_->Execute(nullptr, nullptr), kInvalidArgument, L"runnable cannot be Nothing"));
    PumpFor(kLongAfter);
    EXPECT_FALSE(Completed(future_.Get()));
}

TEST_F(Deferred, WorkOfTheLibraryItselfMayBeDeferredByName) {
    const LateBound manager = CreateLateBound(L"FutureManager");
    const LateBound future = CreateLateBound(L"Future");
    const LateBound service = CreateLateBound(L"LejisSubmissionWebService");
    ASSERT_TRUE(Done(manager.Call(L"InvokeLater", {service.AsArgument()})));
    ASSERT_TRUE(Done(future.Call(L"Execute", {service.AsArgument(), support::Nothing()})));
    EXPECT_TRUE(PumpUntil([&] { return future.Get(L"Completed").value == _variant_t(true); }));
}

}  // namespace
}  // namespace client
