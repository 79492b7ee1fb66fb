#include "apartments/Apartments.h"

#include <objbase.h>
#include <windows.h>

#include <algorithm>
#include <thread>
#include <vector>

namespace apartments {
namespace {

// Something that happens once.
class Happening {
public:
    Happening() : event_(CreateEventW(nullptr, TRUE, FALSE, nullptr)) {}
    ~Happening() { CloseHandle(event_); }
    Happening(const Happening&) = delete;
    Happening& operator=(const Happening&) = delete;

    void Tell() { SetEvent(event_); }
    void Await() { WaitForSingleObject(event_, INFINITE); }

private:
    const HANDLE event_;
};

class Apartment {
public:
    Apartment(int rounds, Ending ending, const ClientMaker& makeClient)
        : rounds_(rounds), ending_(ending), makeClient_(makeClient), thread_([this] { Live(); }) {}

    void AwaitWork() { worked_.Await(); }
    void LetEnd() { mayEnd_.Tell(); }
    // Returns when the thread has left the process.
    void AwaitEnd() { thread_.join(); }

    Tally tally;

private:
    void Live() {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        auto client = makeClient_();
        for (int round = 0; round < rounds_; ++round) client->Work(tally);
        worked_.Tell();
        mayEnd_.Await();
        if (ending_ == Ending::kLeavesWork) client->Begin();
        if (ending_ == Ending::kForgetsToRelease) {
            client->Forget();
            // The DLL stays loaded, for its objects do.
            client.release();
        }
        client.reset();
        CoUninitialize();
    }

    const int rounds_;
    const Ending ending_;
    const ClientMaker& makeClient_;
    Happening worked_;
    Happening mayEnd_;
    std::thread thread_;
};

}  // namespace

Tally RunApartments(int count, int rounds, Order order, Ending ending, const ClientMaker& makeClient) {
    std::vector<std::unique_ptr<Apartment>> all;
    for (int index = 0; index < count; ++index) {
        all.push_back(std::make_unique<Apartment>(rounds, ending, makeClient));
        if (order == Order::kAsTheyCome) all.back()->LetEnd();
    }
    for (const auto& one : all) one->AwaitWork();
    if (order == Order::kLastToFirst) std::ranges::reverse(all);
    if (order == Order::kAllAtOnce) {
        for (const auto& one : all) one->LetEnd();
    }
    Tally sum;
    for (const auto& one : all) {
        if (order == Order::kFirstToLast || order == Order::kLastToFirst) one->LetEnd();
        one->AwaitEnd();
        sum.searches += one->tally.searches;
        sum.submissions += one->tally.submissions;
    }
    return sum;
}

}  // namespace apartments
