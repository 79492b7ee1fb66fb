#include "support/LibraryUnloads.h"

#include <gtest/gtest.h>

namespace {

// After the last test the client holds nothing of the library, so the library holds nothing of itself.
class NothingLeftBehind : public testing::Environment {
public:
    void TearDown() override { EXPECT_EQ(S_OK, support::LibraryCanUnload()); }
};

testing::Environment* const environment = testing::AddGlobalTestEnvironment(new NothingLeftBehind);

}  // namespace
