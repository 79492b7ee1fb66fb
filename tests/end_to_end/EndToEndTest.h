#pragma once

#include "end_to_end/Client.h"
#include "end_to_end/Simulator.h"

#include <gtest/gtest.h>

namespace end_to_end {

// A client and a simulator that knows nothing yet. Whatever a test sends must be valid by the simulator's schemas.
class EndToEndTest : public testing::Test {
protected:
    EndToEndTest() {
        Reset();
        service = NewService(SubmissionUrl());
    }

    void TearDown() override {
        const std::string exchanges = Get("/control/exchanges");
        EXPECT_EQ(0u, Occurrences(exchanges, "\"valid\": false")) << exchanges;
    }

    Microsoft::WRL::ComPtr<ILejisSubmissionWebService> service;
};

}  // namespace end_to_end
