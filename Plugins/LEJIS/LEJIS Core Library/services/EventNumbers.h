// The events of the services by their numbers in the interfaces.
#pragma once

#include <windows.h>

#include <oaidl.h>

namespace lejis {

namespace SearchEvents {

inline constexpr DISPID kSearchCompleted = 1;
// No search raises this event.
inline constexpr DISPID kSearchFailed = 2;
inline constexpr DISPID kConfigurationError = 3;
inline constexpr DISPID kNetworkError = 4;
inline constexpr DISPID kServiceError = 5;

}  // namespace SearchEvents

// The interface declares number 4, ValidationError, too. No submission raises it.
namespace SubmissionEvents {

inline constexpr DISPID kSubmissionCompleted = 1;
inline constexpr DISPID kConfigurationError = 2;
inline constexpr DISPID kNetworkError = 3;
inline constexpr DISPID kServiceError = 5;

}  // namespace SubmissionEvents

}  // namespace lejis
