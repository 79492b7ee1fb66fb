// How far the work on many incidents has come: a bar on a console, a number before each line elsewhere.
#pragma once

#include <windows.h>

#include <string>

namespace lejis_client {

class Progress {
public:
    explicit Progress(std::size_t total);

    // Shows which incident is worked on.
    void Begin(const std::wstring& name);
    // Takes the bar away, so that something can be told in its place.
    void Hide() const;
    // One has come to its end. Of those that were tried, the pace is told.
    void End(bool wasTried);
    // Shows the bar again below what has been told.
    void Show() const;
    // The number of the result: "[ 3/12] ", or an empty text where a bar or the eye counts.
    std::wstring Number() const;

private:
    bool HasBar() const;

    std::size_t total_;
    std::size_t done_ = 0;
    std::size_t tried_ = 0;
    std::wstring name_;
    ULONGLONG start_;
};

// One line without its end. Rate and remaining time are told once there is something to reckon them from; what was done
// without being tried counts for neither.
std::wstring ProgressLine(std::size_t done, std::size_t tried, std::size_t total, ULONGLONG milliseconds,
                          const std::wstring& name);

}  // namespace lejis_client
