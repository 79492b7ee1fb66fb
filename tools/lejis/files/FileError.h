#pragma once

#include <string>

namespace lejis_client {

// A file cannot be used as an incident file; the reason is a sentence.
struct FileError {
    std::wstring reason;
};

}  // namespace lejis_client
