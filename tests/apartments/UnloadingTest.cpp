// Workers that load the library, use it and free it.
#include "apartments/ChildProcess.h"
#include "apartments/Client.h"

#include <gtest/gtest.h>

#include <objbase.h>

#include <cstdio>
#include <thread>

namespace apartments {
namespace {

constexpr int kTimes = 100;

struct Round {
    Tally tally;
    bool couldUnload = false;
    bool wasUnloaded = false;
};

Round LoadUseAndFree() {
    Round round;
    std::thread worker([&] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        {
            const Library library;
            LibraryClient().Work(round.tally);
            round.couldUnload = library.CanUnloadNow() == S_OK;
        }
        round.wasUnloaded = !Library::IsLoaded();
        CoUninitialize();
    });
    worker.join();
    return round;
}

TEST(UnloadingDeathTest, WorksAHundredTimes) {
    InChildProcess([] {
        int well = 0;
        for (int time = 0; time < kTimes; ++time) {
            const Round round = LoadUseAndFree();
            if (round.tally.searches == 1 && round.tally.submissions == 1 && round.couldUnload && round.wasUnloaded) {
                ++well;
            }
        }
        std::fprintf(stderr, "%d of %d times\n", well, kTimes);
        return well == kTimes;
    });
}

// The DLL goes while a thread that has used it stays, and its state with it.
TEST(UnloadingDeathTest, LeavesThreadsThatLiveOnAlone) {
    InChildProcess([] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        for (int time = 0; time < 3; ++time) {
            Tally tally;
            LibraryClient().Work(tally);
            if (tally.searches != 1 || Library::IsLoaded()) return false;
        }
        return true;
    });
}

}  // namespace
}  // namespace apartments
