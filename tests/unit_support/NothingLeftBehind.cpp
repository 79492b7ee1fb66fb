// After the last test no object of the library is alive: what DllCanUnloadNow would tell.
#include "platform/com/Module.h"

#include <gtest/gtest.h>

namespace {

class NothingLeftBehind : public testing::Environment {
public:
    void TearDown() override {
        EXPECT_FALSE(platform::module::InUse()) << "objects of the library are still alive";
        EXPECT_EQ(std::vector<std::string>(), platform::living::Names());
    }
};

testing::Environment* const environment = testing::AddGlobalTestEnvironment(new NothingLeftBehind);

}  // namespace
