// LEJIS_PLAIN_READING=off in the environment runs all tests with answers that are read from MSXML's documents.
#include "unit_support/PlainReadingSwitch.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

namespace {

class PlainReadingOfTheRun : public testing::Environment {
public:
    void SetUp() override {
        const char* const wanted = std::getenv("LEJIS_PLAIN_READING");
        if (wanted) lejis::SwitchPlainReading(wanted != std::string_view("off"));
    }
};

testing::Environment* const switchOfTheRun = testing::AddGlobalTestEnvironment(new PlainReadingOfTheRun);

}  // namespace
