#include "platform/thread/ThreadState.h"

#include "platform/com/UnknownObject.h"

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>

namespace platform::thread {
namespace {

std::atomic<int> living = 0;

struct Part final : ThreadPart {
    Part() { ++living; }
    ~Part() override { --living; }

    void Release() noexcept override {
        ++releases;
        onRelease();
    }

    int releases = 0;
    std::function<void()> onRelease = [] {};
};

struct OtherPart final : ThreadPart {
    void Release() noexcept override { ++releases; }

    int releases = 0;
};

class Object final : public UnknownObject<IUnknown> {};

// Each test has a thread of its own, which knows of no object and no part.
void InNewThread(const std::function<void()>& work) { std::thread(work).join(); }

TEST(ThreadState, HasOnePartOfAKindInEachThread) {
    InNewThread([] {
        Part& part = ThisThreads<Part>();
        EXPECT_EQ(&part, &ThisThreads<Part>());
        EXPECT_NE(static_cast<ThreadPart*>(&part), &ThisThreads<OtherPart>());
        InNewThread([&] { EXPECT_NE(&part, &ThisThreads<Part>()); });
    });
}

TEST(ThreadState, EndsWithItsThread) {
    const int before = living;
    InNewThread([&] {
        ThisThreads<Part>();
        EXPECT_EQ(before + 1, living);
    });
    EXPECT_EQ(before, living);
}

TEST(ThreadState, IsNotReleasedWhenItsThreadEnds) {
    static std::atomic<int> releases = 0;
    InNewThread([] {
        ThisThreads<Part>().onRelease = [] { ++releases; };
        CountObject();
    });
    EXPECT_EQ(0, releases);
}

TEST(ThreadState, ReleasesItsPartsWhenTheLastObjectGoes) {
    InNewThread([] {
        Part& part = ThisThreads<Part>();
        Microsoft::WRL::ComPtr<Object> first = Create<Object>();
        Microsoft::WRL::ComPtr<Object> second = Create<Object>();
        first.Reset();
        EXPECT_EQ(0, part.releases);
        second.Reset();
        EXPECT_EQ(1, part.releases);
        EXPECT_EQ(&part, &ThisThreads<Part>()) << "the thread may go on to use it";
    });
}

TEST(ThreadState, ReleasesItsPartsOnDemand) {
    InNewThread([] {
        Part& part = ThisThreads<Part>();
        OtherPart& other = ThisThreads<OtherPart>();
        ReleaseParts();
        EXPECT_EQ(1, part.releases);
        EXPECT_EQ(1, other.releases);
    });
}

TEST(ThreadState, SurvivesAReleaseThatMakesObjectsAndParts) {
    InNewThread([] {
        Part& part = ThisThreads<Part>();
        part.onRelease = [] {
            ThisThreads<OtherPart>();
            Create<Object>();
        };
        Create<Object>();
        EXPECT_EQ(1, part.releases);
        EXPECT_EQ(1, ThisThreads<OtherPart>().releases);
    });
}

TEST(ThreadState, LeavesOtherThreadsAloneWhenTheirObjectEndsHere) {
    InNewThread([] {
        Part& part = ThisThreads<Part>();
        Microsoft::WRL::ComPtr<Object> object = Create<Object>();
        InNewThread([&] {
            OtherPart& own = ThisThreads<OtherPart>();
            object.Reset();
            EXPECT_EQ(0, own.releases);
            Create<Object>();
            EXPECT_EQ(1, own.releases) << "its own objects are counted as before";
        });
        EXPECT_EQ(0, part.releases);
    });
}

}  // namespace
}  // namespace platform::thread
