// The messages of the client's thread go on while the service is slow.
#include "end_to_end/EndToEndTest.h"
#include "kit/Ticks.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

using Microsoft::WRL::ComPtr;

namespace kit_tests {
namespace {

// A slow answer lasts forty ticks.
constexpr int kFewestTicks = 10;

class Waiting : public end_to_end::EndToEndTest {
protected:
    void Submit() {
        ComPtr<ICollection> warnings;
        EXPECT_OK(service->SubmitIncident(end_to_end::NewIncident().Get(), warnings.GetAddressOf()));
    }
};

TEST_F(Waiting, ForASubmissionDispatchesMessages) {
    end_to_end::Play(R"({"kind": "slow", "seconds": 2})");
    const Ticks ticks;
    Submit();
    EXPECT_LE(kFewestTicks, ticks.Seen()) << "a submission blocks its thread: see docs/host-suite.md";
}

TEST_F(Waiting, ForTheWsdlDispatchesMessages) {
    end_to_end::Play(R"({"kind": "slow", "seconds": 2, "target": "wsdl"})");
    EXPECT_OK(service->put_ValidateSchema(VARIANT_TRUE));
    const Ticks ticks;
    Submit();
    EXPECT_LE(kFewestTicks, ticks.Seen());
}

}  // namespace
}  // namespace kit_tests
