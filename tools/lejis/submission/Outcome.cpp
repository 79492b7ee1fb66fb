#include "submission/Outcome.h"

#include "library/Library.h"

namespace lejis_client {

Outcome FailedCall(const LibraryError& error) {
    if (error.number == tvTransientError) {
        return {
            Result::TryAgain, {error.description}, {}, L"Trying again later can help; the incident is not at fault."};
    }
    return {Result::Refused, {error.description}, {}, L"Trying again does not help until this is put right."};
}

}  // namespace lejis_client
