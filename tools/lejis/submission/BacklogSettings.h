// How a long list of incidents is worked on.
#pragma once

namespace lejis_client {

struct BacklogSettings {
    long jobs = 1;
    // How often a failure that may pass is tried again.
    long retries = 0;
    // How many such failures in a row end the run.
    long stopAfter = 10;
    // The most incidents to begin in a second; 0 means no limit.
    long rate = 0;
    // How long one incident is waited for.
    long seconds = 300;
};

}  // namespace lejis_client
