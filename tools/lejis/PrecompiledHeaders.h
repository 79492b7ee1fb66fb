// What most files need of others, read once for all of them. Each file includes what it uses all the same.
#pragma once

#include <comdef.h>
#include <comutil.h>
#include <ole2.h>
#include <windows.h>
#include <wrl/client.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
