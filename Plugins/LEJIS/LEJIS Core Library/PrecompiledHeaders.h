// Compiled once to save time; every file still includes what it uses.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>
#include <windows.h>
#include <wrl/client.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>
