// What surrounds the library during one case: the host suite, a server that is played, message boxes that are
// not shown, and objects to hand in.
#pragma once

#include "com/Values.h"
#include "engine/Case.h"
#include "unit_support/ScriptedRequest.h"
#include "unit_support/TestHost.h"

#include <TVLejisCore.h>
#include <windows.h>
#include <wrl/client.h>

#include <functional>
#include <string>
#include <vector>

namespace fuzzing {

class World {
public:
    explicit World(Case& input);
    // Brings what is pending to its end, empties the collections that were seen, and forgets all of it.
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    // Made with the first case and kept: registering it costs more than many cases.
    static support::TestHost& Host();
    // Takes the host out of the registry when the process is about to be ended.
    static void ForgetHost();

    // What the requests made from now on do and answer.
    support::Script script;

    // Runs at each yield to the host, before the requests and timers advance.
    std::function<void()> onYield = [] {};

    // Values whose objects are of this world.
    Values& Any() { return values_; }
    // A new object of some creatable class, a client's, one of a DOM, or null; now and then one that was seen before.
    Microsoft::WRL::ComPtr<IUnknown> AnyObject();
    // Makes it one of the objects seen. A collection may come to hold itself: it is emptied in the end.
    void See(Microsoft::WRL::ComPtr<IUnknown> object);

    // Lets requests and timers go on by a step.
    void Advance();

private:
    static constexpr int kLongestWait = 40;

    Microsoft::WRL::ComPtr<IXMLHTTPRequest> MakeRequest();
    void Yield();
    void EndRequests();
    void EmptyCollections();

    Case& case_;
    int yields_ = 0;
    bool isEnding_ = false;
    std::vector<Microsoft::WRL::ComPtr<support::ScriptedRequest>> requests_;
    std::vector<Microsoft::WRL::ComPtr<IUnknown>> seen_;
    Values values_;
};

}  // namespace fuzzing
