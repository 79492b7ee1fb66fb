#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// "sha256:" and the digest in hexadecimal digits.
std::string Digest(std::string_view content);

}  // namespace lejis_client
