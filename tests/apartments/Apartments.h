#pragma once

#include "apartments/Client.h"

#include <functional>
#include <memory>

namespace apartments {

// The order in which the threads end.
enum class Order { kAsTheyCome, kFirstToLast, kLastToFirst, kAllAtOnce };

// What a thread does before it leaves COM and ends.
enum class Ending {
    kReleases,
    kForgetsToRelease,
    // Releases everything while a search and deferred work are not done yet.
    kLeavesWork,
};

using ClientMaker = std::function<std::unique_ptr<Client>()>;

// Lets as many threads work, each in an apartment of its own, and end; tells what all of them have done.
Tally RunApartments(int count, int rounds, Order order, Ending ending, const ClientMaker& makeClient);

}  // namespace apartments
