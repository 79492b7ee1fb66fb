#pragma once

namespace support {

// The major version of the Wine under the tests, for what its versions do differently; 0 on Windows.
int WineVersion();

}  // namespace support
