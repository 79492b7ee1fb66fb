#pragma once

#include "apartments/EventCounter.h"
#include "apartments/Library.h"

#include <functional>
#include <string>

namespace apartments {

// What one apartment has done.
struct Tally {
    // Successful calls.
    int searches = 0;
    int submissions = 0;
};

// Dispatches messages until the condition holds; false when it does not within a minute. Sixteen apartments on a busy
// machine wait longer than one.
bool PumpPatiently(const std::function<bool()>& condition);

// A client that works with the simulator from the apartment of its thread.
class Client {
public:
    virtual ~Client() = default;

    // Searches and, while the answer is under way, submits.
    virtual void Work(Tally& tally) = 0;

    // Starts work and does not wait for its end.
    virtual void Begin() = 0;

    // Forgets to release what it holds.
    virtual void Forget() = 0;
};

// The library's.
class LibraryClient final : public Client {
public:
    LibraryClient();
    ~LibraryClient() override;

    void Work(Tally& tally) override;
    void Begin() override;
    void Forget() override;

private:
    ComPtr<ILejisIncidentIndexCard> NewIncident() const;

    const Library library_;
    ComPtr<ILejisSearchWebService> search_;
    ComPtr<ILejisSearchRequest> request_;
    ComPtr<ILejisSubmissionWebService> submission_;
    ComPtr<IConnectionPoint> events_;
    ComPtr<EventCounter> counter_;
    DWORD cookie_ = 0;
};

}  // namespace apartments
