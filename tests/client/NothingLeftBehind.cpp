// When the last test is over and all objects are released, the library lets itself be unloaded.
#include "client/Client.h"

#include <gtest/gtest.h>

namespace client {
namespace {

class NothingLeftBehind : public testing::Environment {
public:
    void TearDown() override {
        const Module module;
        const auto canUnloadNow = module.Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow");
        ASSERT_NE(nullptr, canUnloadNow);
        EXPECT_EQ(S_OK, canUnloadNow()) << "objects of the library are still alive";
    }
};

testing::Environment* const environment = testing::AddGlobalTestEnvironment(new NothingLeftBehind);

}  // namespace
}  // namespace client
