#include "submission/ServiceOperation.h"

#include "library/LibraryError.h"

#include <gtest/gtest.h>

namespace lejis_client {
namespace {

// Nobody listens there.
constexpr wchar_t kNobody[] = L"http://127.0.0.1:1/submission";

// Instead of asking the service it counts.
class CountingOperation final : public ServiceOperation {
public:
    explicit CountingOperation(const std::wstring& url) : ServiceOperation(ServiceSettings{url, false}) {}

    int asked = 0;
    mutable int checked = 0;

private:
    std::vector<std::wstring> Ask(ILejisIncidentIndexCard*) override {
        ++asked;
        throw LibraryError{tvTransientError, L"The connection timed-out."};
    }
    void RequireFit(ILejisIncidentIndexCard*) const override { ++checked; }
};

TEST(ServiceOperation, IsNotCalledWhereNobodyListens) {
    CountingOperation operation(kNobody);
    bool isBegun = false;
    const Outcome outcome = operation.Run(nullptr, [&] { isBegun = true; });
    EXPECT_EQ(Result::NotSent, outcome.result);
    EXPECT_TRUE(outcome.canTryAgain);
    EXPECT_EQ(0, operation.asked);
    EXPECT_EQ(1, operation.checked);
    EXPECT_FALSE(isBegun);
}

// The library alone refuses what is no address, in its own words.
TEST(ServiceOperation, IsCalledForAnInvalidAddress) {
    CountingOperation operation(L"nonsense");
    bool isBegun = false;
    EXPECT_EQ(Result::Unknown, operation.Run(nullptr, [&] { isBegun = true; }).result);
    EXPECT_EQ(1, operation.asked);
    EXPECT_TRUE(isBegun);
}

}  // namespace
}  // namespace lejis_client
