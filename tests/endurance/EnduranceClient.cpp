// endurance_client URL COUNT SEED CONTROL_URL
// Submits and withdraws incidents COUNT times, at random from SEED, and prints lines of fields between tabs:
//     sample, exchanges so far, private bytes, handles
//     control, the same of requests that are made without the library
//     held, incident number, version or "-", version that it may be instead or "=" where there is no doubt
//     counts, exchanges, transient errors, refusals, doubts
// First the ledger is printed, before doubts are settled. Then the program waits for a line on standard input, settles
// the doubts, and prints the ledger, the counts and the objects that are left. Last, it sends half as many requests to
// CONTROL_URL without the library. The line holds the length of their bodies, because the platform may keep each body
// that it sends.
#include "endurance/BareRequest.h"
#include "endurance/CarefulClient.h"
#include "endurance/Memory.h"
#include "support/LibraryUnloads.h"
#include "support/Printing.h"
#include "wire_client/Program.h"

#include <iostream>
#include <memory>
#include <random>
#include <string>

namespace endurance {
namespace {

constexpr int kIncidents = 400;
constexpr int kSampleEvery = 100;
// The number of withdrawals among ten exchanges.
constexpr int kWithdrawalsOfTen = 3;

std::string Named(Version version) { return version ? std::to_string(*version) : "-"; }

void PrintSample(const char* word, int count) {
    const Memory memory = MemoryInUse();
    std::cout << word << '\t' << count << '\t' << memory.privateBytes << '\t' << memory.handles << std::endl;
}

void PrintLedger(const Ledger& ledger) {
    for (const auto& [id, entry] : ledger) {
        std::cout << "held\t" << support::Utf8(id) << '\t' << Named(entry.told) << '\t'
                  << (entry.isInDoubt ? Named(entry.intended) : "=") << '\n';
    }
    std::cout << "end of ledger" << std::endl;
}

void PrintCounts(const CarefulClient& client) {
    std::cout << "counts\t" << client.Exchanges() << '\t' << client.Transient() << '\t' << client.Refused() << '\t'
              << client.Doubted() << std::endl;
}

void SendAtRandom(CarefulClient& client, int count, unsigned seed) {
    // Not the distributions of the standard library, which differ from one to another.
    std::mt19937 random(seed);
    for (int number = 1; number <= count; ++number) {
        const std::wstring id = L"2007-" + std::to_wstring(random() % kIncidents);
        const bool withdraws = random() % 10 < kWithdrawalsOfTen;
        client.Send(id, withdraws ? Version() : Version(number));
        if (number % kSampleEvery == 0) PrintSample("sample", number);
    }
}

void PostWithoutTheLibrary(const std::wstring& url, int count, size_t length) {
    const std::wstring body = L"<body>" + std::wstring(length, L'x') + L"</body>";
    for (int number = 1; number <= count; ++number) {
        PostBare(url, body);
        if (number % kSampleEvery == 0) PrintSample("control", number);
    }
}

int Endure(const std::string& url, int count, unsigned seed, const std::string& controlUrl) {
    auto client = std::make_unique<CarefulClient>(support::Wide(url));
    SendAtRandom(*client, count, seed);
    PrintLedger(client->Believed());
    std::string line;
    std::getline(std::cin, line);
    client->SettleAll();
    PrintLedger(client->Believed());
    PrintCounts(*client);
    client.reset();
    std::cout << "left behind\t" << (support::LibraryCanUnload() == S_OK ? "nothing" : "objects of the library")
              << std::endl;
    PostWithoutTheLibrary(support::Wide(controlUrl), count / 2, std::stoul(line));
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace endurance

int main(int count, char** arguments) {
    return wire_client::Run(count, arguments, [&] {
        return endurance::Endure(arguments[1], std::stoi(arguments[2]), static_cast<unsigned>(std::stoul(arguments[3])),
                                 arguments[4]);
    });
}
