// Searches that end by a tick of the host suite's timer.
#include "end_to_end/EndToEndTest.h"
#include "end_to_end/SearchSink.h"
#include "support/ComCheck.h"
#include "support/Messages.h"
#include "support/OwnTimer.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;
using support::Bstr;
using support::OwnTimerClass;
using support::TimerKind;

namespace end_to_end {
namespace {

using Events = std::vector<std::wstring>;

class SuiteTimer : public EndToEndTest {
protected:
    SuiteTimer() {
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchWebService), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(search_.GetAddressOf())));
        EXPECT_OK(search_->put_URL(Bstr(SearchUrl())));
        EXPECT_OK(search_->put_Username(Bstr(L"jdoe")));
        sink_ = std::make_unique<SearchSink>(search_.Get());
    }

    void StartSearch() {
        ComPtr<ILejisSearchRequest> request;
        ComPtr<IPersonInquiryArguments> person;
        EXPECT_OK(CoCreateInstance(__uuidof(LejisSearchRequest), nullptr, CLSCTX_INPROC_SERVER,
                                   IID_PPV_ARGS(request.GetAddressOf())));
        EXPECT_OK(request->get_personArguments(person.GetAddressOf()));
        EXPECT_OK(person->put_SurName(Bstr(L"ROE")));
        EXPECT_OK(search_->Search(request.Get()));
    }

    ComPtr<ILejisSearchWebService> search_;
    std::unique_ptr<SearchSink> sink_;
};

TEST_F(SuiteTimer, WithEventsOfItsOwnBringsASearchToItsEvent) {
    const OwnTimerClass registered(TimerKind::kTellsClass);
    StartSearch();
    ASSERT_TRUE(support::PumpUntil([&] { return !registered.timers.empty(); }));
    EXPECT_EQ(100, registered.timers[0]->interval);
    EXPECT_TRUE(registered.timers[0]->enabled);
    support::PumpFor(250);
    EXPECT_EQ(Events{}, sink_->TakeEvents()) << "before the timer has ticked";
    registered.timers[0]->Tick();
    EXPECT_EQ(Events{L"SearchCompleted"}, sink_->TakeEvents());
    EXPECT_FALSE(registered.timers[0]->enabled);
}

TEST_F(SuiteTimer, WithoutEventsIsReplacedByTheBuiltInOne) {
    const OwnTimerClass registered(TimerKind::kHasNoEvents);
    StartSearch();
    EXPECT_EQ(Events{L"SearchCompleted"}, sink_->AwaitEvents());
    EXPECT_EQ(1u, registered.timers.size());
}

}  // namespace
}  // namespace end_to_end
